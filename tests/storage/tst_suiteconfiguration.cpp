#include "InstalledLogger.h"
#include "TestMain.h"
#include "Texts.h"

#include <utilsDll/Settings.h>
#include <utilsDll/StorageLocation.h>

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <thread>
#include <vector>

using TOLVAN_NAMESPACE::CSettings;
using TOLVAN_NAMESPACE::CStorageLocation;

namespace
{

/// The operations on any file, which the class keeps for itself.
class AnyFile : public CSettings
{
public:
    using CSettings::getSettingFromConfigFile;
    using CSettings::writeSettingToConfigFile;
};

} // namespace

class SuiteConfigurationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QDir(QFileInfo(m_path).path()).removeRecursively();
        QVERIFY(CStorageLocation::ensureOstraUserConfigFolder());
        installedLogger().take();
    }

    void freshFileText()
    {
        QVERIFY(write("K", "V"));
        QByteArray content = contentOf(m_path);
        for (const char* attribute : {" value=\"V\"", " type=\"T\"", " name=\"K\""}) { // in any order
            content.replace(attribute, "*");
        }
        QCOMPARE(content,
                 QByteArray("<configuration>\n    <group name=\"G\">\n        <key***/>\n    </group>\n"
                            "</configuration>\n"));
        QVERIFY(installedLogger().take().isEmpty());
    }

    void bothFilesAreKeptApart()
    {
        const QString global = CStorageLocation::getOstraGlobalConfigFileLocation();
        QVERIFY(CStorageLocation::ensureOstraGlobalConfigFolder());
        QFile::remove(global);
        QVERIFY(write("K", "user"));
        QVERIFY(
            CSettings::writeSettingToOstraGlobalConfigFile(text("G"), text("K"), text("global"), text("T")));
        QCOMPARE(read(), text("user"));
        QCOMPARE(CSettings::getSettingFromOstraGlobalConfigFile(text("G"), text("K"), {}), text("global"));
        QVERIFY(QFile::remove(global));
        QCOMPARE(CSettings::getSettingFromOstraGlobalConfigFile(text("G"), text("K"), text("d")), text("d"));
        QVERIFY(!QFile::exists(global)); // reading never creates
    }

    void reading_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("value");
        const auto row = [](const char* name, const char* body, const char* value) {
            QTest::newRow(name) << QByteArray("<configuration>") + body + "</configuration>" << text(value);
        };
        row("search goes on in groups of the same name",
            "<group name='G'><key name='X' value='1'/></group><group name='G'><key name='K' "
            "value='2'/></group>",
            "2");
        row("tag of the key plays no part", "<group name='G'><anything name='K' value='1'/></group>", "1");
        row("tag of the group does", "<groups name='G'><key name='K' value='1'/></groups>", "default");
        row("only direct children", "<x><group name='G'><key name='K' value='1'/></group></x>", "default");
        row("no value means English", "<group name='G'><key name='K'/></group>", "en");
        QTest::newRow("byte order mark and declaration")
            << QByteArray("\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?><configuration><group name='G'>"
                          "<key name='K' value='\xE6\x97\xA5'/></group></configuration>")
            << text("日");
    }

    void reading()
    {
        QFETCH(QByteArray, xml);
        setContent(xml);
        QTEST(read(), "value");
        QVERIFY(installedLogger().take().isEmpty());
        QCOMPARE(contentOf(m_path), xml);
    }

    void writing()
    {
        const QByteArray foreign = "<foreign a=\"b\">text</foreign>";
        setContent("<c><!-- note -->" + foreign +
                   "<group name='G'><key name='K' type='old' value='1'/></group></c>");
        int entries = 0; // groups and keys afterwards
        for (const char* const key : {"K", "K2", "schlüssel 日本 <&\"'>"}) {
            ++entries;
            QVERIFY(write(key, "ä\"<new>"));
            QCOMPARE(read(key), text("ä\"<new>"));
            QDomDocument document;
            QVERIFY(document.setContent(contentOf(m_path)));
            QCOMPARE(document.elementsByTagName(text("group")).count(), entries);
            QCOMPARE(document.elementsByTagName(text("key")).count(), entries);
            QVERIFY(contentOf(m_path).contains(foreign) && contentOf(m_path).contains("\"old\""));
        }
    }

    void failures()
    {
        const QString suite = text("Ostra Collection configuration file");
        QVERIFY(QDir(QFileInfo(m_path).path()).removeRecursively());
        QVERIFY(read() == text("default") && !write("K", "V"));
        const QString absent =
            text("W TOLVAN_NAMESPACE::CSettings::getSettingFromConfigFile: %1 was not found: %2");
        QCOMPARE(installedLogger().take(),
                 QStringList({absent.arg(suite, m_path),
                              m_writing + text("Fail to create %1 : %2").arg(suite, m_path)}));
        QVERIFY(QDir().mkpath(m_path)); // a folder in the place of the file
        QVERIFY(read() == text("default") && !write("K", "V"));
        QCOMPARE(installedLogger().take(),
                 QStringList({m_reading + text("Fail to open the %1: %2").arg(suite, m_path),
                              m_writing + text("Fail to open %1: %2").arg(suite, m_path)}));
    }

    void malformedTexts()
    {
        const int deep = 200000;
        const QByteArray entity =
            "<!DOCTYPE c [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;'>"
            "<!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;'><!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;'>"
            "<!ENTITY e '&d;&d;&d;&d;&d;&d;&d;&d;'>]><c>&e;</c>";
        for (const QByteArray& xml : {QByteArray(), QByteArray("<a><b></a>"), QByteArray("<"), entity,
                                      QByteArray("<a>").repeated(deep) + QByteArray("</a>").repeated(deep)}) {
            setContent(xml);
            QVERIFY(read() == text("default") && !write("K", "V"));
            const QString line = text("The stream is not a valid XML:\n") + QString::fromUtf8(xml);
            QCOMPARE(installedLogger().take(), QStringList({m_reading + line, m_writing + line}));
            QCOMPARE(contentOf(m_path), xml);
        }
    }

    void textThatXmlCannotHold()
    {
        QVERIFY(write("K", "1"));
        const QString noCharacter(QChar(0xFFFE)); // written, it would make all other settings unreadable
        QVERIFY(!CSettings::writeSettingToOstraUserConfigFile(text("G"), noCharacter, text("V"), text("T")));
        QVERIFY(installedLogger().take().value(0).contains(text("The stream is not a valid XML:\n")));
        QCOMPARE(read(), text("1"));
    }

    /// Another process writes two files over and over, is read while it does, and is killed at any moment.
    void writerIsReadAndKilled()
    {
        const QStringList files = {m_path + text(".0"), m_path + text(".1")};
        for (int round = 0; round < 40; ++round) {
            QProcess writer;
            writer.start(QCoreApplication::applicationFilePath(), QStringList(text("--write")) + files);
            QVERIFY(writer.waitForStarted());
            QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(files[0]) && QFile::exists(files[1]), 30000);
            int previous[2] = {};
            for (int read = 0; read < (round == 0 ? 400 : 4); ++read) {
                const int number = AnyFile::getSettingFromConfigFile(files.at(read % 2), text("G"), text("K"),
                                                                     text("default"))
                                       .section(QLatin1Char(' '), 0, 0)
                                       .toInt();
                QVERIFY(number > 0 && number >= previous[read % 2]);
                previous[read % 2] = number;
            }
            QThread::usleep(static_cast<unsigned long>(round * 37 % 3000));
            QVERIFY2(!writer.waitForFinished(0), "the writer ended by itself");
            writer.kill();
            QVERIFY(writer.waitForFinished() && writer.exitStatus() == QProcess::CrashExit);
            for (const QString& file : files) {
                QDomDocument document;
                const QByteArray content = contentOf(file);
                QVERIFY2(document.setContent(content) && content.endsWith("</configuration>\n"),
                         content.left(500));
                QVERIFY(QFile::remove(file));
            }
        }
    }

private:
    const QString m_reading = text("E TOLVAN_NAMESPACE::CSettings::getSettingFromOstraUserConfigFile: ");
    const QString m_writing = text("E TOLVAN_NAMESPACE::CSettings::writeSettingToOstraUserConfigFile: ");
    const QString m_path = CStorageLocation::getOstraUserConfigFileLocation();
    void setContent(const QByteArray& xml)
    {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(xml) == xml.size());
    }
    static QString read(const char* key = "K")
    {
        return CSettings::getSettingFromOstraUserConfigFile(text("G"), text(key), text("default"));
    }
    static bool write(const char* key, const char* value)
    {
        return CSettings::writeSettingToOstraUserConfigFile(text("G"), text(key), text(value), text("T"));
    }
};

/// Writes the files over and over until the process is killed, each in a thread of its own.
static int writeForEver(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QString padding(40 * 1024, QLatin1Char('x'));
    std::vector<std::thread> threads;
    for (const QString& path : QCoreApplication::arguments().mid(2)) {
        threads.emplace_back([&padding, path] {
            for (int i = 1;; ++i) { // an exception ends the process
                AnyFile::writeSettingToConfigFile(path, text("G"), text("K"),
                                                  QString::number(i) + QLatin1Char(' ') + padding, text("T"));
            }
        });
    }
    threads.front().join();
    return 0;
}

int main(int argc, char* argv[])
{
    return argc > 2 && qstrcmp(argv[1], "--write") == 0
               ? writeForEver(argc, argv)
               : TestMain::run<QCoreApplication, SuiteConfigurationTest>(argc, argv);
}

#include "tst_suiteconfiguration.moc"
