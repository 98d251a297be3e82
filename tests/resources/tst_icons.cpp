#include "Contrast.h"
#include "FileTree.h"
#include "TestMain.h"

#include <QColor>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QProcess>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include <algorithm>
#include <vector>

namespace
{

const QStringList stateSuffixes{QStringLiteral("_hover"), QStringLiteral("_pressed"),
                                QStringLiteral("_checked"), QStringLiteral("_disabled"),
                                QStringLiteral("_focus")};

/// The image of a drawing; its own size unless another is given.
QImage rendered(const QString& file, QSize size = {})
{
    QSvgRenderer renderer(file);
    QImage image(size.isEmpty() ? renderer.defaultSize() : size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    return image;
}

QImage onGround(const QImage& image, const QColor& ground)
{
    QImage result(image.size(), QImage::Format_RGB32);
    result.fill(ground);
    QPainter(&result).drawImage(0, 0, image);
    return result;
}

/// Contrast that a tenth of the solid pixels reach or exceed: that of the strokes, not of tints and edges.
double strokeContrast(const QImage& image, const QColor& ground)
{
    const QImage flat = onGround(image, ground);
    std::vector<double> values;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) >= 128) {
                values.push_back(contrast(flat.pixel(x, y), ground.rgb()));
            }
        }
    }
    if (values.empty()) {
        return 1;
    }
    const auto strong = values.begin() + static_cast<std::ptrdiff_t>(values.size() * 9 / 10);
    std::nth_element(values.begin(), strong, values.end());
    return *strong;
}

/// Mean of the greatest channel difference over the pixels that differ in either image from the ground.
double difference(const QImage& first, const QImage& second, const QColor& ground)
{
    double sum = 0;
    int pixels = 0;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            const QRgb a = first.pixel(x, y);
            const QRgb b = second.pixel(x, y);
            if (a == ground.rgb() && b == ground.rgb()) {
                continue;
            }
            sum += std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                             std::abs(qBlue(a) - qBlue(b))});
            ++pixels;
        }
    }
    return pixels == 0 ? 0 : sum / pixels;
}

} // namespace

/// The icon family as it is generated: complete, readable by Qt, distinct and legible.
class IconsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void unchangedFilesAreLeftAlone();
    void everyDrawingLoadsAndShows();
    void noTwoLookAlike();
    void strokesStandOutInNormalState();
    void statesCanBeToldApart();
    void cursorsReadOnEveryPicture();
    void applicationIconSizes();

private:
    QByteArray generate(const QStringList& arguments) const;
    QColor colour(const char* name) const { return QColor(m_palette.value(QLatin1String(name)).toString()); }
    QString file(const QString& name) const { return m_folder.filePath(QStringLiteral("icons/") + name); }

    QTemporaryDir m_folder;
    QStringList m_names;
    QJsonObject m_palette;
};

QByteArray IconsTest::generate(const QStringList& arguments) const
{
    QProcess python;
    python.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    python.start(QStringLiteral(PYTHON), QStringList{QStringLiteral(ICON_TOOL)} + arguments);
    const bool finished = python.waitForFinished(60000);
    return finished && python.exitCode() == 0 ? python.readAllStandardOutput() : QByteArray();
}

void IconsTest::initTestCase()
{
    QVERIFY(!generate({QStringLiteral("--out"), file({})}).isEmpty());
    m_names = FileTree::filesBelow(file({})).replaceInStrings(file({}), QString());
    QCOMPARE(m_names.size(), 349);
    QFile palette(QStringLiteral(ICON_PALETTE));
    QVERIFY(palette.open(QIODevice::ReadOnly));
    m_palette = QJsonDocument::fromJson(palette.readAll()).object();
    QVERIFY(!m_palette.isEmpty());
}

void IconsTest::unchangedFilesAreLeftAlone()
{
    const QString changed = file(m_names.first());
    const QDateTime old = QDateTime::currentDateTime().addDays(-1);
    for (const QString& name : {m_names.first(), m_names.last()}) {
        QFile made(file(name));
        QVERIFY(made.open(QIODevice::ReadWrite));
        QVERIFY(made.setFileTime(old, QFileDevice::FileModificationTime));
    }
    QFile damaged(changed);
    QVERIFY(damaged.open(QIODevice::ReadOnly));
    const QByteArray content = damaged.readAll();
    damaged.close();
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.close();

    QVERIFY(!generate({QStringLiteral("--out"), file({})}).isEmpty());
    QVERIFY(damaged.open(QIODevice::ReadOnly));
    QCOMPARE(damaged.readAll(), content);
    QVERIFY(qAbs(QFileInfo(file(m_names.last())).lastModified().secsTo(old)) <= 1);
}

void IconsTest::everyDrawingLoadsAndShows()
{
    QStringList wrong;
    for (const QString& name : qAsConst(m_names)) {
        QSvgRenderer renderer(file(name));
        const QSize size = renderer.defaultSize();
        if (!renderer.isValid() || renderer.viewBox().size().scaled(size, Qt::KeepAspectRatio) != size) {
            wrong << name + QStringLiteral(": not readable, or distorted");
            continue;
        }
        const QImage image = rendered(file(name));
        int visible = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                visible += qAlpha(image.pixel(x, y)) >= 64 ? 1 : 0;
            }
        }
        if (visible < 8) {
            wrong << QStringLiteral("%1: %2 visible pixels").arg(name).arg(visible);
        }
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1String("; "))));
}

void IconsTest::noTwoLookAlike()
{
    QHash<QByteArray, QString> seen;
    QStringList twins;
    for (const QString& name : qAsConst(m_names)) {
        // At one common size, so that a copy does not pass for another image by its size.
        const QImage image = rendered(file(name), {64, 64});
        const QByteArray bytes(reinterpret_cast<const char*>(image.constBits()),
                               static_cast<int>(image.sizeInBytes()));
        if (seen.contains(bytes)) {
            twins << seen.value(bytes) + QStringLiteral(" = ") + name;
        }
        seen.insert(bytes, name);
    }
    QVERIFY2(twins.isEmpty(), qPrintable(twins.join(QLatin1String("; "))));
}

void IconsTest::strokesStandOutInNormalState()
{
    QStringList faint;
    double least = 21;
    for (const QString& name : qAsConst(m_names)) {
        const bool shade = name.contains(QLatin1String("hadow")) || name.contains(QLatin1String("backdrop"));
        const bool other =
            std::any_of(stateSuffixes.begin(), stateSuffixes.end(), [&name](const QString& suffix) {
                return name.endsWith(suffix + QStringLiteral(".svg"));
            });
        if (shade || other) {
            continue;
        }
        const double found = strokeContrast(rendered(file(name)), colour("ground"));
        least = qMin(least, found);
        if (found < 3) {
            faint << QStringLiteral("%1: %2").arg(name).arg(found);
        }
    }
    qInfo("least contrast of strokes: %.2f", least);
    QVERIFY2(faint.isEmpty(), qPrintable(faint.join(QLatin1String("; "))));
}

void IconsTest::statesCanBeToldApart()
{
    QHash<QString, QStringList> groups;
    for (const QString& name : qAsConst(m_names)) {
        QString base = name.chopped(4);
        for (const QString& suffix : stateSuffixes) {
            if (base.endsWith(suffix)) {
                const QString stem = base.chopped(suffix.size());
                base = m_names.contains(stem + QStringLiteral(".svg")) ? stem : base;
            }
        }
        groups[base] << name;
    }
    QStringList alike;
    double least = 255;
    for (const QStringList& states : qAsConst(groups)) {
        for (int first = 0; first < states.size(); ++first) {
            for (int second = first + 1; second < states.size(); ++second) {
                const QColor ground = colour("ground");
                const double found = difference(onGround(rendered(file(states[first])), ground),
                                                onGround(rendered(file(states[second])), ground), ground);
                least = qMin(least, found);
                if (found < 20) {
                    alike << QStringLiteral("%1 and %2: %3").arg(states[first], states[second]).arg(found);
                }
            }
        }
    }
    qInfo("least difference of two states: %.1f of 255", least);
    QVERIFY2(alike.isEmpty(), qPrintable(alike.join(QLatin1String("; "))));
    QVERIFY(groups.size() < m_names.size() / 2); // most images have states
}

void IconsTest::cursorsReadOnEveryPicture()
{
    for (const QString& name : m_names.filter(QStringLiteral("cusors_"))) {
        const QImage image = rendered(file(name));
        QCOMPARE(image.size(), QSize(23, 24));
        for (int at = 0; at < 23; ++at) { // a cursor that is cut is solid at the edge
            const QRgb edges[] = {image.pixel(at, 0), image.pixel(at, 23), image.pixel(0, at),
                                  image.pixel(22, at)};
            QVERIFY2(std::all_of(edges, edges + 4, [](QRgb pixel) { return qAlpha(pixel) <= 64; }),
                     qPrintable(name));
        }
        for (const QColor& ground : {QColor(Qt::black), QColor(Qt::white), QColor(Qt::gray)}) {
            const double found = strokeContrast(image, ground);
            QVERIFY2(found >= 4.5,
                     qPrintable(QStringLiteral("%1 on %2: %3").arg(name, ground.name()).arg(found)));
        }
    }
}

void IconsTest::applicationIconSizes()
{
    const QString folder = m_folder.filePath(QStringLiteral("logo"));
    generate({QStringLiteral("--logo-out"), folder});
    for (const int size : {16, 32, 48, 96, 128, 256, 512, 1024}) {
        const QImage logo(QStringLiteral("%1/logo_%2.png").arg(folder).arg(size));
        QCOMPARE(logo.size(), QSize(size, size));
        QVERIFY(qAlpha(logo.pixel(0, 0)) < 255); // round corners
        QCOMPARE(qAlpha(logo.pixel(size / 2, size / 2)), 255);
    }
    // The small ones are drawings of their own, not the master made small.
    const QImage master = QImage(folder + QStringLiteral("/logo_1024.png"));
    for (const int size : {16, 32}) {
        const QImage own(QStringLiteral("%1/logo_%2.png").arg(folder).arg(size));
        const QImage scaled = master.scaled(size, size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const QColor ground = colour("ground");
        QVERIFY(difference(onGround(own, ground), onGround(scaled, ground), ground) > 10);
    }
}

TOLVAN_GUI_TEST_MAIN(IconsTest)
#include "tst_icons.moc"
