#include "InstalledLogger.h"
#include "Sandbox.h"
#include "TestMain.h"
#include "Texts.h"

#include <utilsDll/Settings.h>
#include <utilsDll/StorageLocation.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <algorithm>

using TOLVAN_NAMESPACE::CSettings;
using TOLVAN_NAMESPACE::CStorageLocation;

namespace
{

/// The operation on any file, which the class keeps for itself.
class AnyFile : public CSettings
{
public:
    using CSettings::getSettingFromConfigFile;
};

} // namespace

class SuiteConfigurationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QDir(QFileInfo(m_path).path()).removeRecursively();
        QVERIFY(QDir().mkpath(QFileInfo(m_path).path()));
        installedLogger().take();
    }

    void freshFileText()
    {
        QVERIFY(write("K", "V"));
        QByteArray content = contentOf(m_path);
        // The order of the attributes inside key is not significant.
        QVERIFY2(content.contains("value=\"V\"") && content.contains("type=\"T\"") &&
                     content.contains(" name=\"K\""),
                 content);
        content.replace(" value=\"V\"", "").replace(" type=\"T\"", "").replace(" name=\"K\"", "");
        QCOMPARE(content, QByteArray("<configuration>\n    <group name=\"G\">\n        <key/>\n    </group>\n"
                                     "</configuration>\n"));
        QVERIFY(installedLogger().take().isEmpty());
    }

    void bothFilesAreKeptApart()
    {
        const QString global = CStorageLocation::getOstraGlobalConfigFileLocation();
        QVERIFY(QDir().mkpath(QFileInfo(global).path()));
        QFile::remove(global);
        QVERIFY(write("K", "user"));
        QVERIFY(
            CSettings::writeSettingToOstraGlobalConfigFile(text("G"), text("K"), text("global"), text("T")));
        QCOMPARE(read(), text("user"));
        QCOMPARE(CSettings::getSettingFromOstraGlobalConfigFile(text("G"), text("K"), QString()),
                 text("global"));
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
        row("first match wins", "<group name='G'><key name='K' value='1'/><key name='K' value='2'/></group>",
            "1");
        row("search goes on in groups of the same name",
            "<group name='G'><key name='X' value='1'/></group><group name='G'><key name='K' "
            "value='2'/></group>",
            "2");
        row("tag of the key plays no part", "<group name='G'><anything name='K' value='1'/></group>", "1");
        row("tag of the group does", "<groups name='G'><key name='K' value='1'/></groups>", "default");
        row("only direct children", "<x><group name='G'><key name='K' value='1'/></group></x>", "default");
        row("names are case-sensitive", "<group name='g'><key name='K' value='1'/></group>", "default");
        row("no value means English", "<group name='G'><key name='K'/></group>", "en");
        row("an empty value is a value", "<group name='G'><key name='K' value=''/></group>", "");
        row("comments and foreign elements",
            "<!-- <group> --><f/><group name='G'><!-- c --><key name='K' value='1'/></group>", "1");
        row("entities", "<group name='G'><key name='K' value='&lt;&amp;&#228;'/></group>", "<&ä");
        QTest::newRow("byte order mark and declaration")
            << QByteArray("\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?><configuration><group name='G'>"
                          "<key name='K' value='\xE6\x97\xA5'/></group></configuration>")
            << text("日");
    }

    void reading()
    {
        QFETCH(QByteArray, xml);
        QFETCH(QString, value);
        setContent(xml);
        QCOMPARE(read(), value);
        QVERIFY(installedLogger().take().isEmpty());
        QCOMPARE(contentOf(m_path), xml);
    }

    void writing_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<int>("entries"); // groups and keys afterwards
        const auto row = [](const char* name, const char* body, const char* key, int entries) {
            QTest::newRow(name) << QByteArray("<c>") + body + "</c>" << QByteArray(key) << entries;
        };
        const char* const known = "<group name='G'><key name='K' type='old' value='1'/></group>";
        row("known key", known, "K", 1);
        row("key without a value", "<group name='G'><key name='K' type='old'/></group>", "K", 1);
        row("second key makes a second group", known, "K2", 2);
        row("non-ASCII names", "", "schlüssel 日本 <&\"'>", 1);
        row("comments and foreign elements stay", "<!-- note --><foreign a='b'>text</foreign>", "K", 1);
    }

    void writing()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, key);
        QFETCH(int, entries);
        setContent(before);
        QVERIFY(write(key.constData(), "ä\"<new>"));
        QCOMPARE(read(key.constData()), text("ä\"<new>"));
        QDomDocument document;
        QVERIFY(document.setContent(contentOf(m_path)));
        QCOMPARE(document.elementsByTagName(text("group")).count(), entries);
        QCOMPARE(document.elementsByTagName(text("key")).count(), entries);
        QVERIFY(!before.contains("old") ||
                contentOf(m_path).contains("\"old\"")); // the type is left as it was
        QVERIFY(!before.contains("note") || contentOf(m_path).contains("<!-- note -->"));
        QVERIFY(!before.contains("foreign") || contentOf(m_path).contains("<foreign a=\"b\">text</foreign>"));
    }

    void failures_data()
    {
        QTest::addColumn<QByteArray>("situation");
        QTest::addColumn<QString>("readLine");
        QTest::addColumn<QString>("writeLine");
        const auto row = [](const char* name, const QByteArray& situation, const QString& read,
                            const QString& written, const QString& detail) {
            QTest::newRow(name) << situation << read + detail
                                << text(
                                       "E TOLVAN_NAMESPACE::CSettings::writeSettingToOstraUserConfigFile: ") +
                                       written + detail;
        };
        const QString reading = text("E TOLVAN_NAMESPACE::CSettings::getSettingFromOstraUserConfigFile: ");
        const QString malformed = text("The stream is not a valid XML:\n");
        row("no folder", "no folder",
            text("W TOLVAN_NAMESPACE::CSettings::getSettingFromConfigFile: Ostra Collection configuration "
                 "file "
                 "was not found: "),
            text("Fail to create Ostra Collection configuration file : "), m_path);
        row("a folder in the way", "folder",
            reading + text("Fail to open the Ostra Collection configuration file: "),
            text("Fail to open Ostra Collection configuration file: "), m_path);
        row("empty file", "", reading + malformed, malformed, QString());
        row("not XML", "<a><b></a>", reading + malformed, malformed, text("<a><b></a>"));
    }

    void failures()
    {
        QFETCH(QByteArray, situation);
        QFETCH(QString, readLine);
        QFETCH(QString, writeLine);
        if (situation == "no folder") {
            QVERIFY(QDir(QFileInfo(m_path).path()).removeRecursively());
        } else if (situation == "folder") {
            QVERIFY(QDir().mkpath(m_path));
        } else {
            setContent(situation);
        }
        QCOMPARE(read(), text("default"));
        QCOMPARE(installedLogger().take(), QStringList(readLine));
        QVERIFY(!write("K", "V"));
        QCOMPARE(installedLogger().take(), QStringList(writeLine));
        if (situation != "no folder" && situation != "folder") {
            QCOMPARE(contentOf(m_path), situation);
        }
    }

    void readOnlyFile()
    {
        const QByteArray before = "<c><group name='G'><key name='K' value='1'/></group></c>";
        setContent(before);
        const auto readable = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
        QVERIFY(QFile::setPermissions(m_path, readable));
        {
            const OrdinaryUser user; // the administrator may write everything
            QCOMPARE(read(), text("1"));
            QVERIFY(!write("K", "2"));
        }
        QCOMPARE(
            installedLogger().take(),
            QStringList(text("E TOLVAN_NAMESPACE::CSettings::writeSettingToOstraUserConfigFile: Fail to open "
                             "Ostra Collection configuration file: ") +
                        m_path));
        QCOMPARE(contentOf(m_path), before);
        QVERIFY(QFile::setPermissions(m_path, readable | QFile::WriteOwner));
    }

    void hostileDocuments_data()
    {
        QTest::addColumn<QByteArray>("xml");
        const int deep = 200000;
        QTest::newRow("deep") << QByteArray("<a>").repeated(deep) + QByteArray("</a>").repeated(deep);
        QTest::newRow("deep behind closing tags in comments")
            << QByteArray("<a><!--</a>-->").repeated(deep) + QByteArray("</a>").repeated(deep);
        QTest::newRow("deep behind quoted slashes")
            << QByteArray("<a b='/>'>").repeated(deep) + QByteArray("</a>").repeated(deep);
        QTest::newRow("deep behind character data")
            << QByteArray("<a><![CDATA[</a>]]>").repeated(deep) + QByteArray("</a>").repeated(deep);
        QTest::newRow("entity bomb") << QByteArray(
            "<!DOCTYPE c [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;'><!ENTITY d "
            "'&b;&b;&b;&b;&b;&b;&b;&b;'>"
            "<!ENTITY e '&d;&d;&d;&d;&d;&d;&d;&d;'><!ENTITY f '&e;&e;&e;&e;&e;&e;&e;&e;'>]><c>&f;</c>");
        QTest::newRow("cut off in a comment") << QByteArray("<c><!-- ");
        QTest::newRow("cut off in a tag") << QByteArray("<c a='");
        QTest::newRow("only an opening bracket") << QByteArray("<");
    }

    void hostileDocuments()
    {
        QFETCH(QByteArray, xml);
        setContent(xml);
        QCOMPARE(read(), text("default"));
        QVERIFY(!write("K", "V"));
        QCOMPARE(contentOf(m_path), xml);
    }

    void largeDocument()
    {
        QByteArray xml = "<configuration>\n";
        int i = 0;
        while (xml.size() < 10 * 1024 * 1024) {
            const QByteArray n = QByteArray::number(i++);
            xml += "    <group name=\"group" + n + "\"><key name=\"K\" type=\"int\" value=\"" + n +
                   "\"/></group>\n";
        }
        setContent(xml + "</configuration>\n");
        const QByteArray last = "group" + QByteArray::number(i - 1);
        QCOMPARE(read("K", last.constData()), QString::number(i - 1));
        QVERIFY(write("K", "new", last.constData()));
        QCOMPARE(read("K", last.constData()), text("new"));
    }

    void textThatXmlCannotHold()
    {
        const QString noCharacter(QChar(0xFFFE)); // written, it would take all other settings with it
        const auto writeIt = [&] {
            return CSettings::writeSettingToOstraUserConfigFile(text("G"), noCharacter, text("V"), text("T"));
        };
        QVERIFY(!writeIt());
        QVERIFY(!QFile::exists(m_path));
        QVERIFY(write("K", "1"));
        installedLogger().take();
        QVERIFY(!writeIt());
        QVERIFY(installedLogger().take().value(0).contains(text("The stream is not a valid XML:\n")));
        QCOMPARE(read(), text("1"));
    }

    /// Another process writes four files over and over, is read while it does, and is killed at any moment.
    void writerIsReadAndKilled()
    {
#ifdef Q_OS_WIN
        constexpr int kills = 40; // under Wine a process takes ten times as long to start
#else
        constexpr int kills = 200;
#endif
        const QString program = QCoreApplication::applicationDirPath() + text("/suite_writer");
        const QStringList files = {m_path + text(".0"), m_path + text(".1"), m_path + text(".2"),
                                   m_path + text(".3")};
        for (int round = 0; round < kills; ++round) {
            QProcess writer; // without pipes: they are no part of this
            writer.setProcessChannelMode(QProcess::ForwardedChannels);
            writer.setStandardInputFile(QProcess::nullDevice());
            writer.start(program, files);
            QVERIFY2(writer.waitForStarted(), "the helper program suite_writer does not start");
            const QDeadlineTimer deadline(30000);
            while (
                !std::all_of(files.begin(), files.end(), [](const QString& f) { return QFile::exists(f); })) {
                QVERIFY2(!deadline.hasExpired() && !writer.waitForFinished(1), "suite_writer does not write");
            }
            int previous[4] = {};
            for (int read = 0; read < (round == 0 ? 400 : 4); ++read) {
                const int file = read % 4;
                const int number =
                    AnyFile::getSettingFromConfigFile(files.at(file), text("G"), text("K"), text("default"))
                        .section(QLatin1Char(' '), 0, 0)
                        .toInt();
                QVERIFY(number > 0 && number >= previous[file]);
                previous[file] = number;
            }
            QThread::usleep(static_cast<unsigned long>(round * 37 % 3000));
            QVERIFY2(!writer.waitForFinished(0), "the writer ended by itself");
            writer.kill();
            QVERIFY(writer.waitForFinished());
            QCOMPARE(writer.exitStatus(), QProcess::CrashExit);
            for (const QString& file : files) {
                QDomDocument document;
                const QByteArray content = contentOf(file);
                QVERIFY2(document.setContent(content), content.left(500));
                QVERIFY(content.endsWith("</configuration>\n"));
                QVERIFY(QFile::remove(file));
            }
        }
    }

private:
    QString m_path = CStorageLocation::getOstraUserConfigFileLocation();
    void setContent(const QByteArray& xml);
    static QString read(const char* key = "K", const char* group = "G")
    {
        return CSettings::getSettingFromOstraUserConfigFile(text(group), text(key), text("default"));
    }
    static bool write(const char* key, const char* value, const char* group = "G")
    {
        return CSettings::writeSettingToOstraUserConfigFile(text(group), text(key), text(value), text("T"));
    }
};

void SuiteConfigurationTest::setContent(const QByteArray& xml)
{
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(xml), qint64(xml.size()));
}

TOLVAN_CORE_TEST_MAIN(SuiteConfigurationTest)
#include "tst_suiteconfiguration.moc"
