// Loads the library as a module of the process that never calls it, and looks at what it brings.

#include "TestMain.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QDomDocument>
#include <QFontDatabase>
#include <QIcon>
#include <QImage>
#include <QLibrary>
#include <QResource>

class BundlesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void folders_data();
    void folders();
    void noOtherFolders();
    void fixedNames();
    void storedForm();
    void svgIcons();
    void appIcons();
    void fonts();
    void countries();
    void correctionRules();
    void calibrationData();
    void unloading();

private:
    QLibrary m_library{QCoreApplication::applicationDirPath() + QStringLiteral("/UtilsDllTrelioFrame")};
};

namespace
{

const QStringList roots{QStringLiteral("calibration"), QStringLiteral("fonts"),
                        QStringLiteral("icons"),       QStringLiteral("other"),
                        QStringLiteral("qss"),         QStringLiteral("translations")};

QStringList filesBelow(const QString& folder)
{
    QStringList files;
    for (QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        files.append(it.next());
    }
    files.sort();
    return files;
}

QStringList ownFiles()
{
    QStringList files;
    for (const QString& root : roots) {
        files += filesBelow(QStringLiteral(":/") + root);
    }
    return files;
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QVector<QDomElement> elementsBelow(const QDomElement& parent)
{
    QVector<QDomElement> elements;
    for (QDomElement e = parent.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        elements.append(e);
        elements += elementsBelow(e);
    }
    return elements;
}

struct FolderSize {
    const char* folder;
    int files;
};

const FolderSize folderTable[] = {
    {"calibration", 0},
    {"calibration/caf", 2},
    {"calibration/db", 1},
    {"fonts", 9},
    {"icons", 30},
    {"icons/aboutDialog_vantora", 4},
    {"icons/additionalOptions", 6},
    {"icons/anamorphose", 10},
    {"icons/app_icon_trelioapp", 8},
    {"icons/buttons", 6},
    {"icons/cafDialog", 3},
    {"icons/checkBox", 17},
    {"icons/comboBox", 2},
    {"icons/confirm", 4},
    {"icons/correctionInfo", 12},
    {"icons/crashSender", 1},
    {"icons/crop", 2},
    {"icons/cursors", 12},
    {"icons/distortion", 34},
    {"icons/groupBox", 10},
    {"icons/handTool", 1},
    {"icons/horizon", 6},
    {"icons/keystoning", 8},
    {"icons/leftToolBar", 6},
    {"icons/loupeShadow", 1},
    {"icons/messagebox", 7},
    {"icons/perspective", 12},
    {"icons/plugin_bar", 6},
    {"icons/previewShadow", 8},
    {"icons/processing", 3},
    {"icons/radioButton", 2},
    {"icons/reset", 3},
    {"icons/scrollBar", 12},
    {"icons/secondary_windows", 1},
    {"icons/settingsPanel", 10},
    {"icons/shadow", 7},
    {"icons/slider", 6},
    {"icons/thumbnail", 1},
    {"icons/tiltshift", 13},
    {"icons/tiltshift/slider", 6},
    {"icons/toolbar", 49},
    {"icons/toolbar/filebrowser", 12},
    {"icons/winTitleBar", 16},
    {"other", 1},
    {"qss", 7},
    {"translations", 10},
};

} // namespace

void BundlesTest::initTestCase()
{
    QCOMPARE(ownFiles(), QStringList());
    QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
}

void BundlesTest::folders_data()
{
    QTest::addColumn<int>("files");
    for (const FolderSize& row : folderTable) {
        QTest::newRow(row.folder) << row.files;
    }
}

void BundlesTest::folders()
{
    QFETCH(int, files);
    const QDir folder(QStringLiteral(":/") + QLatin1String(QTest::currentDataTag()));
    QVERIFY(folder.exists());
    const QStringList names = folder.entryList(QDir::Files);
    QVERIFY2(names.size() == files, qPrintable(names.join(QLatin1Char('\n'))));
    for (const QString& name : names) {
        QVERIFY2(QFileInfo(folder.filePath(name)).size() > 0, qPrintable(name));
    }
}

void BundlesTest::noOtherFolders()
{
    QStringList known;
    for (const FolderSize& row : folderTable) {
        known.append(QStringLiteral(":/") + QLatin1String(row.folder));
    }
    QStringList found;
    for (const QString& root : roots) {
        found.append(QStringLiteral(":/") + root);
        for (QDirIterator it(found.last(), QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
             it.hasNext();) {
            found.append(it.next());
        }
    }
    found.sort();
    known.sort();
    QCOMPARE(found, known);
    QCOMPARE(ownFiles().size(), 367 + 3 + 9 + 8);
}

void BundlesTest::fixedNames()
{
    const char* const paths[] = {
        "qss/custom.qss",
        "qss/slider.qss",
        "qss/settings.qss",
        "qss/message_box.qss",
        "qss/win.qss",
        "qss/mac.qss",
        "qss/crash_sender.qss",
        "fonts/Roboto-Light.ttf",
        "fonts/Roboto-Regular.ttf",
        "fonts/Roboto-Medium.ttf",
        "fonts/Roboto-Bold.ttf",
        "fonts/OpenSans-Light.ttf",
        "fonts/MavenPro-Regular.ttf",
        "fonts/MavenPro-Medium.ttf",
        "fonts/MavenProLight-300.otf",
        "fonts/Segoe+UI.ttf",
        "other/CorrectionsStateMachine.xml",
        "translations/countries.en.txt",
        "translations/tolvan_de.qm",
        "translations/tolvan_en.qm",
        "translations/tolvan_fr.qm",
        "translations/tolvan_ja.qm",
        "translations/tolvan_zh-CN.qm",
        "translations/qt_de.qm",
        "translations/qt_fr.qm",
        "translations/qt_ja.qm",
        "translations/qt_zh-CN.qm",
        "calibration/db/CAFList5.db",
        "calibration/caf/C36841a_000.caf",
        "calibration/caf/C35830b_002.caf",
        "icons/messagebox/info_dark_icon.svg",
        "icons/messagebox/alert_dark_icon.svg",
        "icons/messagebox/question_mark_dark_icon.svg",
    };
    for (const char* path : paths) {
        QVERIFY2(QFile::exists(QStringLiteral(":/") + QLatin1String(path)), path);
    }
    for (const QString& path : filesBelow(QStringLiteral(":/icons"))) {
        QVERIFY2(path.endsWith(QStringLiteral(".svg")) || path.endsWith(QStringLiteral(".png")),
                 qPrintable(path));
        QCOMPARE(path.startsWith(QStringLiteral(":/icons/cursors/")),
                 QFileInfo(path).fileName().startsWith(QStringLiteral("cusors_")));
    }
}

void BundlesTest::storedForm()
{
    // The four bundles lie in the library as the resource compiler wrote them, header included.
    const QByteArray library = contentOf(m_library.fileName());
    QCOMPARE(library.count(QByteArray::fromHex("71726573"
                                               "00000001")),
             4);
    QCOMPARE(library.count(QByteArray::fromHex("71726573"
                                               "00000002")),
             0);
    QCOMPARE(library.count(QByteArray::fromHex("71726573"
                                               "00000003")),
             0);
    int compressed = 0;
    for (const QString& path : ownFiles()) {
        const auto algorithm = QResource(path).compressionAlgorithm();
        QVERIFY2(algorithm != QResource::ZstdCompression, qPrintable(path));
        compressed += algorithm == QResource::ZlibCompression;
        if (path.startsWith(QStringLiteral(":/calibration")) || path.endsWith(QStringLiteral(".qm"))) {
            QVERIFY2(algorithm == QResource::NoCompression, qPrintable(path));
        }
    }
    QVERIFY(compressed > 100);
    // Stored as it is, the database is mapped and not read into memory.
    QFile database(QStringLiteral(":/calibration/db/CAFList5.db"));
    QVERIFY(database.open(QIODevice::ReadOnly));
    QVERIFY(database.map(0, database.size()));
}

void BundlesTest::svgIcons()
{
    const QIcon icon(QStringLiteral(":/icons/messagebox/info_dark_icon.svg"));
    QVERIFY2(!icon.pixmap(34, 34).isNull(),
             "An SVG icon gives no picture: the SVG icon engine of Qt (plug-in iconengines/qsvgicon, Debian "
             "package libqt5svg5) is not installed beside this program.");
}

void BundlesTest::appIcons()
{
    for (int size : {16, 32, 48, 96, 128, 256, 512, 1024}) {
        const QImage image(QStringLiteral(":/icons/app_icon_trelioapp/logo_%1.png").arg(size));
        QCOMPARE(image.size(), QSize(size, size));
        QVERIFY(image.hasAlphaChannel());
    }
}

void BundlesTest::fonts()
{
    QStringList styles;
    for (const QString& path : filesBelow(QStringLiteral(":/fonts"))) {
        const int id = QFontDatabase::addApplicationFont(path);
        QVERIFY2(id >= 0, qPrintable(path));
        const QStringList families = QFontDatabase::applicationFontFamilies(id);
        QVERIFY2(!families.isEmpty(), qPrintable(path));
        styles.append(families.first());
    }
    styles.removeDuplicates();
    for (const char* family : {"Roboto", "Open Sans", "Quicksand", "Cantarell"}) {
        QVERIFY2(!styles.filter(QLatin1String(family)).isEmpty(), family);
    }
    QVERIFY(QFontDatabase::removeAllApplicationFonts());
}

void BundlesTest::countries()
{
    const QByteArray text = contentOf(QStringLiteral(":/translations/countries.en.txt"));
    QCOMPARE(text.count('\n'), 244);
    QCOMPARE(text.count("\r\n"), 244);
    QVERIFY(text.endsWith("\r\n"));
    QStringList lines = QString::fromUtf8(text).split(QStringLiteral("\r\n"));
    lines.removeLast();
    const QStringList preferred{QStringLiteral("United States"), QStringLiteral("France"),
                                QStringLiteral("Germany"),       QStringLiteral("United Kingdom"),
                                QStringLiteral("Japan"),         QStringLiteral("China")};
    QCOMPARE(lines.mid(0, 6), preferred);
    QCOMPARE(lines.at(6), QStringLiteral("--------------- ; not_selectable"));
    const QStringList all = lines.mid(7);
    for (int i = 1; i < all.size(); ++i) {
        QVERIFY2(QString::compare(all.at(i - 1), all.at(i), Qt::CaseInsensitive) < 0, qPrintable(all.at(i)));
    }
    for (const QString& country : preferred) {
        QVERIFY2(all.contains(country), qPrintable(country));
    }
}

void BundlesTest::correctionRules()
{
    // What the schema cannot say; it is held against the file by a check of its own.
    const QByteArray text = contentOf(QStringLiteral(":/other/CorrectionsStateMachine.xml"));
    QDomDocument document;
    QVERIFY(document.setContent(text, true));
    QCOMPARE(document.documentElement().elementsByTagName(QStringLiteral("action")).size(), 50);
    QHash<QString, QSet<QString>> values;
    int capitals = 0;
    for (const QDomElement& element : elementsBelow(document.documentElement())) {
        if (element.firstChildElement().isNull()) {
            const QString value = element.text().trimmed();
            capitals += value == QStringLiteral("True");
            values[element.tagName()].insert(value);
            values[element.tagName() + QStringLiteral(" name")].insert(
                element.attribute(QStringLiteral("name")));
        }
    }
    QCOMPARE(capitals, 1);
    QCOMPARE(values.value(QStringLiteral("userActivity")).size(), 10);
    QCOMPARE(values.value(QStringLiteral("currentCorrection")).size(), 5);
    QCOMPARE(values.value(QStringLiteral("moduleActivity")).size(), 3);
    QCOMPARE(values.value(QStringLiteral("moduleActivity name")).size(), 6);
    QVERIFY(values.contains(QStringLiteral("moduleApply")));
    QVERIFY(values.contains(QStringLiteral("conditions"))); // an empty one
    // An action whose rules ask for one tool and switch it on and off at once would be nonsense.
    const QDomNodeList changes = document.documentElement().elementsByTagName(QStringLiteral("changes"));
    for (int i = 0; i < changes.size(); ++i) {
        QSet<QString> switched;
        for (QDomElement e = changes.at(i).firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
            const QString key = e.tagName() + e.attribute(QStringLiteral("name"));
            QVERIFY2(!switched.contains(key), qPrintable(key));
            switched.insert(key);
        }
    }
}

void BundlesTest::calibrationData()
{
    // The same bytes on every machine; what is in them is checked where the database is made.
    QFile database(QStringLiteral(":/calibration/db/CAFList5.db"));
    QCOMPARE(database.size(), 17391616);
    QVERIFY(database.open(QIODevice::ReadOnly));
    QCryptographicHash hash(QCryptographicHash::Sha256);
    QVERIFY(hash.addData(&database));
    QCOMPARE(hash.result().toHex(),
             QByteArray("4e713712896d4bcea2a4d0a780abdf3a859b5a8607819ed5d6d785b60020edfa"));
    const QByteArray one = contentOf(QStringLiteral(":/calibration/caf/C36841a_000.caf"));
    const QByteArray two = contentOf(QStringLiteral(":/calibration/caf/C35830b_002.caf"));
    QCOMPARE(QCryptographicHash::hash(one, QCryptographicHash::Sha256).toHex(),
             QByteArray("327b38dc9019d1e88ecc5590b5221781fec3e4c4a9208b7eecb331ce2364e794"));
    QCOMPARE(one.size(), two.size());
    QVERIFY(one != two);
}

void BundlesTest::unloading()
{
    QVERIFY(m_library.unload());
    QCOMPARE(ownFiles(), QStringList());
    QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
    QCOMPARE(ownFiles().size(), 387);
    QVERIFY(m_library.unload());
}

TOLVAN_GUI_TEST_MAIN(BundlesTest)
#include "tst_bundles.moc"
