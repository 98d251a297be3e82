// Loads the library as a module of the process that never calls it, and looks at what it brings.

#include "FileTree.h"
#include "TestMain.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDomDocument>
#include <QLibrary>
#include <QResource>

#include <algorithm>

class BundlesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void filesAndNames();
    void storedForm();
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

QStringList ownFiles()
{
    QStringList files;
    for (const QString& root : roots) {
        files += FileTree::filesBelow(QStringLiteral(":/") + root);
    }
    return files;
}

/// Every folder with the number of its files.
const char contents[] =
    "calibration/caf 2, calibration/db 1, fonts 9, icons 30, icons/aboutDialog_vantora 4, "
    "icons/additionalOptions 6, icons/anamorphose 10, icons/app_icon_trelioapp 8, icons/buttons 6, "
    "icons/cafDialog 3, icons/checkBox 17, icons/comboBox 2, icons/confirm 4, icons/correctionInfo 12, "
    "icons/crashSender 1, icons/crop 2, icons/cursors 12, icons/distortion 34, icons/groupBox 10, "
    "icons/handTool 1, icons/horizon 6, icons/keystoning 8, icons/leftToolBar 6, icons/loupeShadow 1, "
    "icons/messagebox 7, icons/perspective 12, icons/plugin_bar 6, icons/previewShadow 8, "
    "icons/processing 3, icons/radioButton 2, icons/reset 3, icons/scrollBar 12, "
    "icons/secondary_windows 1, icons/settingsPanel 10, icons/shadow 7, icons/slider 6, "
    "icons/thumbnail 1, icons/tiltshift 13, icons/tiltshift/slider 6, icons/toolbar 49, "
    "icons/toolbar/filebrowser 12, icons/winTitleBar 16, other 1, qss 7, translations 10";

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

void BundlesTest::initTestCase()
{
    QCOMPARE(ownFiles(), QStringList());
    QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
}

void BundlesTest::filesAndNames()
{
    QMap<QString, int> counts;
    for (const QString& path : ownFiles()) {
        ++counts[QFileInfo(path).path().mid(2)];
        QVERIFY2(QFileInfo(path).size() > 0, qPrintable(path));
        const bool image = path.endsWith(QLatin1String(".svg")) || path.endsWith(QLatin1String(".png"));
        QCOMPARE(image, path.startsWith(QLatin1String(":/icons/")));
        QCOMPARE(path.startsWith(QLatin1String(":/icons/cursors/")),
                 QFileInfo(path).fileName().startsWith(QLatin1String("cusors_")));
    }
    QStringList found;
    for (auto folder = counts.cbegin(); folder != counts.cend(); ++folder) {
        found += QStringLiteral("%1 %2").arg(folder.key()).arg(folder.value());
    }
    QCOMPARE(found, QString::fromLatin1(contents).split(QStringLiteral(", ")));
    QCOMPARE(ownFiles().size(), 367 + 3 + 9 + 8);
    for (const auto& [folder, names] : fixedNames) {
        for (const QString& name : QString::fromLatin1(names).split(QLatin1Char(' '))) {
            const QString path = QStringLiteral(":/%1/%2").arg(QLatin1String(folder), name);
            QVERIFY2(QFile::exists(path), qPrintable(path));
        }
    }
}

void BundlesTest::storedForm()
{
    // The four bundles lie in the library as the resource compiler wrote them, header included.
    const QByteArray library = FileTree::read(m_library.fileName());
    const QByteArray magic("qres\0\0\0", 7);
    QCOMPARE(library.count(magic + '\1'), 4);
    QCOMPARE(library.count(magic + '\2') + library.count(magic + '\3'), 0);
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

void BundlesTest::countries()
{
    const QByteArray text = FileTree::read(QStringLiteral(":/translations/countries.en.txt"));
    QCOMPARE(text.count('\n'), 244);
    QStringList lines = QString::fromUtf8(text).split(QStringLiteral("\r\n"));
    QCOMPARE(lines.size(), 245);
    QCOMPARE(lines.takeLast(), QString());
    const QStringList preferred = lines.mid(0, 6);
    const QStringList all = lines.mid(7);
    QCOMPARE(preferred.join(QLatin1Char(',')),
             QStringLiteral("United States,France,Germany,United Kingdom,Japan,China"));
    QCOMPARE(lines.at(6), QStringLiteral("--------------- ; not_selectable"));
    for (int i = 1; i < all.size(); ++i) {
        QVERIFY2(QString::compare(all.at(i - 1), all.at(i), Qt::CaseInsensitive) < 0, qPrintable(all.at(i)));
    }
    QVERIFY(std::all_of(preferred.begin(), preferred.end(),
                        [&](const QString& name) { return all.contains(name); }));
}

void BundlesTest::correctionRules()
{
    // What the schema can't express; the file is validated with it by a check of its own.
    QDomDocument document;
    QVERIFY(document.setContent(FileTree::read(QStringLiteral(":/other/CorrectionsStateMachine.xml")), true));
    const QDomElement modules = document.documentElement();
    const auto values = [&modules](const char* tag, const char* attribute = nullptr) {
        QSet<QString> found;
        const QDomNodeList elements = modules.elementsByTagName(QLatin1String(tag));
        for (int i = 0; i < elements.size(); ++i) {
            const QDomElement element = elements.at(i).toElement();
            found += attribute ? element.attribute(QLatin1String(attribute)) : element.text().trimmed();
        }
        return found;
    };
    QCOMPARE(modules.elementsByTagName(QStringLiteral("action")).size(), 50);
    QCOMPARE(values("userActivity").size(), 10);
    QCOMPARE(values("currentCorrection").size(), 5);
    QCOMPARE(values("moduleActivity").size(), 3); // "True" as well
    QCOMPARE(values("moduleActivity", "name").size(), 6);
    QVERIFY(values("conditions").contains(QString()) && !values("moduleApply").isEmpty());
    // "No tool" answers only while no correction is current; the resets concern all tools.
    const QDomElement noTool = modules.firstChildElement().firstChildElement();
    for (QDomElement e = noTool.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        const QDomElement current = e.firstChildElement(QStringLiteral("conditions"))
                                        .firstChildElement(QStringLiteral("currentCorrection"));
        QVERIFY(e.firstChildElement().text().contains(QStringLiteral("reset")) ||
                current.text().contains(QStringLiteral("None")));
    }
    // An action that switches one tool twice would contradict itself.
    const QDomNodeList changes = modules.elementsByTagName(QStringLiteral("changes"));
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
    const QByteArray one = FileTree::read(QStringLiteral(":/calibration/caf/C36841a_000.caf"));
    const QByteArray two = FileTree::read(QStringLiteral(":/calibration/caf/C35830b_002.caf"));
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
