#include "Contrast.h"
#include "FileTree.h"
#include "Sandbox.h"
#include "TestMain.h"

#include <QColor>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include <vector>

namespace
{

/// The image of a drawing at its own size unless another is given, on a ground if one is given.
QImage rendered(const QString& file, QColor ground = Qt::transparent, QSize size = {})
{
    QSvgRenderer renderer(file);
    QImage image(size.isEmpty() ? renderer.defaultSize() : size, QImage::Format_ARGB32);
    image.fill(ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    return image;
}

/// Contrast that a tenth of the solid pixels reach or exceed: that of the strokes, not of tints and edges.
double strokeContrast(const QString& file, const QColor& ground)
{
    const QImage flat = rendered(file, ground);
    std::vector<double> values{1.0};
    const QImage image = rendered(file);
    eachPixel(image, image.rect(), [&](QPoint at, QRgb pixel) {
        if (qAlpha(pixel) >= 128) {
            values.push_back(contrast(flat.pixel(at), ground.rgb()));
        }
    });
    std::sort(values.begin(), values.end());
    return values[values.size() * 9 / 10];
}

/// Mean of the greatest channel difference over the pixels that differ in either image from the ground.
double difference(const QImage& first, const QImage& second, const QColor& ground)
{
    double sum = 0;
    int pixels = 0;
    eachPixel(first, first.rect(), [&](QPoint at, QRgb a) {
        const QRgb b = second.pixel(at);
        sum += std::max(
            {std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
        pixels += a != ground.rgb() || b != ground.rgb();
    });
    return pixels == 0 ? 0 : sum / pixels;
}

/// The name without the ending of its state.
QString withoutState(const QString& name)
{
    static const QRegularExpression ending(
        QStringLiteral("(_(hover|pressed|checked|disabled|focus))?\\.svg$"));
    return QString(name).remove(ending);
}

} // namespace

/// The icon family as it is generated: complete, readable by Qt, distinct and legible.
class IconsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        generate({QStringLiteral("--out"), file({})});
        for (const QString& path : FileTree::filesBelow(file({}))) {
            m_names << QDir(file({})).relativeFilePath(path);
        }
        QCOMPARE(m_names.size(), 349);
        const QJsonObject palette =
            QJsonDocument::fromJson(FileTree::read(QStringLiteral(ICON_PALETTE))).object();
        m_ground = QColor(palette.value(QLatin1String("ground")).toString());
        QVERIFY(m_ground.isValid());
    }

    void everyDrawingShowsSomethingOfItsOwn()
    {
        QHash<QByteArray, QString> seen;
        for (const QString& name : qAsConst(m_names)) {
            const QSvgRenderer renderer(file(name));
            const QSize size = renderer.defaultSize();
            QVERIFY2(renderer.isValid() &&
                         renderer.viewBox().size().scaled(size, Qt::KeepAspectRatio) == size,
                     qPrintable(name));
            // At one common size, so that a copy does not pass for another image by its size.
            const QImage image = rendered(file(name), Qt::transparent, {64, 64});
            int visible = 0;
            eachPixel(image, image.rect(), [&](QPoint, QRgb pixel) { visible += qAlpha(pixel) >= 64; });
            QVERIFY2(visible >= 8, qPrintable(name));
            const QByteArray bytes(reinterpret_cast<const char*>(image.constBits()),
                                   int(image.sizeInBytes()));
            QVERIFY2(!seen.contains(bytes), qPrintable(name + QStringLiteral(" = ") + seen.value(bytes)));
            seen.insert(bytes, name);
        }
    }

    void strokesStandOutInNormalState()
    {
        for (const QString& name : qAsConst(m_names)) {
            const bool shade =
                name.contains(QLatin1String("hadow")) || name.contains(QLatin1String("backdrop"));
            if (!shade && withoutState(name) + QStringLiteral(".svg") == name) {
                QVERIFY2(strokeContrast(file(name), m_ground) >= 3, qPrintable(name));
            }
        }
    }

    void statesDiffer()
    {
        QMultiHash<QString, QString> groups;
        for (const QString& name : qAsConst(m_names)) {
            for (const QString& other : groups.values(withoutState(name))) {
                const double found =
                    difference(rendered(file(name), m_ground), rendered(file(other), m_ground), m_ground);
                QVERIFY2(found >= 20, qPrintable(name + QLatin1Char(' ') + other));
            }
            groups.insert(withoutState(name), name);
        }
        QVERIFY(groups.uniqueKeys().size() < m_names.size() / 2); // most images have states
    }

    void cursorsAreVisibleOnEveryPicture()
    {
        for (const QString& name : m_names.filter(QStringLiteral("cusors_"))) {
            const QImage image = rendered(file(name));
            QCOMPARE(image.size(), QSize(23, 24));
            eachPixel(image, image.rect(),
                      [&](QPoint at, QRgb pixel) { // a cursor that is cut is solid at the edge
                          const bool edge = !image.rect().adjusted(1, 1, -1, -1).contains(at);
                          QVERIFY2(!edge || qAlpha(pixel) <= 64, qPrintable(name));
                      });
            for (const QColor& ground : {QColor(Qt::black), QColor(Qt::white), QColor(Qt::gray)}) {
                QVERIFY2(strokeContrast(file(name), ground) >= 4.5, qPrintable(name + ground.name()));
            }
        }
    }

    void applicationIconSizes()
    {
        const QString folder = m_folder.filePath(QStringLiteral("logo"));
        generate({QStringLiteral("--logo-out"), folder});
        const auto logo = [&](int size) {
            return QImage(QStringLiteral("%1/logo_%2.png").arg(folder).arg(size));
        };
        for (const int size : {16, 32, 48, 96, 128, 256, 512, 1024}) {
            QCOMPARE(logo(size).size(), QSize(size, size));
            QVERIFY(qAlpha(logo(size).pixel(0, 0)) < 255); // round corners
            QCOMPARE(qAlpha(logo(size).pixel(size / 2, size / 2)), 255);
        }
    }

private:
    static void generate(const QStringList& arguments)
    {
        const Outcome made =
            runProgram(QStringLiteral(PYTHON), QStringList{QStringLiteral(ICON_TOOL)} + arguments);
        QVERIFY2(made.code == 0, made.output);
    }
    QString file(const QString& name) const { return m_folder.filePath(QStringLiteral("icons/") + name); }

    QTemporaryDir m_folder;
    QStringList m_names;
    QColor m_ground;
};

TOLVAN_GUI_TEST_MAIN(IconsTest)
#include "tst_icons.moc"
