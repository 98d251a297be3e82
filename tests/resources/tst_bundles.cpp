// Loads the library as a module of the process that never calls it, and looks at what it brings.

#include "FileTree.h"
#include "TestMain.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLibrary>
#include <QResource>

namespace
{

const QStringList roots{QStringLiteral("calibration"), QStringLiteral("fonts"),
                        QStringLiteral("icons"),       QStringLiteral("other"),
                        QStringLiteral("qss"),         QStringLiteral("translations")};

constexpr int fileCount = 367 + 3 + 9 + 8;

QStringList ownFiles()
{
    QStringList files;
    for (const QString& root : roots) {
        files += FileTree::filesBelow(QStringLiteral(":/") + root);
    }
    return files;
}

/// The names that callers know, by folder.
const char* const fixedNames[][2] = {
    {"qss", "custom.qss slider.qss settings.qss message_box.qss win.qss mac.qss crash_sender.qss"},
    {"fonts", "Roboto-Light.ttf Roboto-Regular.ttf Roboto-Medium.ttf Roboto-Bold.ttf OpenSans-Light.ttf "
              "MavenPro-Regular.ttf MavenPro-Medium.ttf MavenProLight-300.otf Segoe+UI.ttf"},
    {"other", "CorrectionsStateMachine.xml"},
    {"translations", "countries.en.txt tolvan_de.qm tolvan_en.qm tolvan_fr.qm tolvan_ja.qm tolvan_zh-CN.qm "
                     "qt_de.qm qt_fr.qm qt_ja.qm qt_zh-CN.qm"},
    {"calibration/db", "CAFList5.db"},
    {"calibration/caf", "C36841a_000.caf C35830b_002.caf"},
    {"icons/messagebox", "info_dark_icon.svg alert_dark_icon.svg question_mark_dark_icon.svg"},
    {"icons/app_icon_trelioapp", "logo_16.png logo_32.png logo_48.png logo_96.png logo_128.png logo_256.png "
                                 "logo_512.png logo_1024.png"},
};

} // namespace

class BundlesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCOMPARE(ownFiles(), QStringList());
        QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
    }

    void filesAndNames()
    {
        QCOMPARE(ownFiles().size(), fileCount);
        for (const QString& path : ownFiles()) {
            QVERIFY2(QFileInfo(path).size() > 0, qPrintable(path));
            const bool image = path.endsWith(QLatin1String(".svg")) || path.endsWith(QLatin1String(".png"));
            QCOMPARE(image, path.startsWith(QLatin1String(":/icons/")));
        }
        for (const auto& [folder, names] : fixedNames) {
            for (const QString& name : QString::fromLatin1(names).split(QLatin1Char(' '))) {
                const QString path = QStringLiteral(":/%1/%2").arg(QLatin1String(folder), name);
                QVERIFY2(QFile::exists(path), qPrintable(path));
            }
        }
    }

    void storedForm()
    {
        // The four bundles lie in the library as the resource compiler wrote them, header included, unless it embeds
        // them itself.
        const QByteArray library = FileTree::read(m_library.fileName());
        const QByteArray magic("qres\0\0\0", 7);
        QCOMPARE(library.count(magic + '\1'), PACKED_BUNDLES);
        QCOMPARE(library.count(magic + '\2') + library.count(magic + '\3'), 0);
        for (const QString& path : ownFiles()) {
            const auto algorithm = QResource(path).compressionAlgorithm();
            QVERIFY2(algorithm != QResource::ZstdCompression, qPrintable(path));
            const bool asItIs =
                path.startsWith(QStringLiteral(":/calibration")) || path.endsWith(QStringLiteral(".qm"));
            QVERIFY2(!asItIs || algorithm == QResource::NoCompression, qPrintable(path));
        }
    }

    void calibrationData()
    {
        // The same bytes on every machine; what is in them is checked where the database is made.
        QFile database(QStringLiteral(":/calibration/db/CAFList5.db"));
        QVERIFY(database.open(QIODevice::ReadOnly));
        QVERIFY(database.map(0, database.size())); // and not read into memory
        QCryptographicHash hash(QCryptographicHash::Sha256);
        QVERIFY(hash.addData(&database));
        QCOMPARE(hash.result().toHex(),
                 QByteArray("4e713712896d4bcea2a4d0a780abdf3a859b5a8607819ed5d6d785b60020edfa"));
    }

    void unloading()
    {
        QVERIFY(m_library.unload());
        QCOMPARE(ownFiles(), QStringList());
        QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
        QCOMPARE(ownFiles().size(), fileCount);
        QVERIFY(m_library.unload());
    }

private:
    QLibrary m_library{QCoreApplication::applicationDirPath() + QStringLiteral("/UtilsDllTrelioFrame")};
};

TOLVAN_GUI_TEST_MAIN(BundlesTest)
#include "tst_bundles.moc"
