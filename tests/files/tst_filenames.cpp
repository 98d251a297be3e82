#include "TestMain.h"
#include "Texts.h"

#include <utilsDll/FileManagement.h>

#include <QDir>

using namespace TOLVAN_NAMESPACE;

/// Names that users type, and paths compared as texts.
class FileNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void validity_data();
    void validity();
    void lengths_data();
    void lengths();
    void comparison_data();
    void comparison();
    void normalized();
};

void FileNamesTest::validity_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("asName");
    QTest::addColumn<bool>("asPath");
    const bool windows = QDir::separator() == QLatin1Char('\\');
    const auto row = [](const char* title, const QString& name, bool asName, bool asPath) {
        QTest::newRow(title) << name << asName << asPath;
    };
    row("empty", QString(), false, false);
    row("plain", text("photo.jpg"), true, true);
    row("blanks and dots at the end", text("a. ."), true, true);
    row("only separators", text("///"), false, true);
    row("dot", text("."), true, true);
    row("dot dot", text(".."), false, false);
    row("dot dot inside", text("a..b"), false, false);
    row("cleaned away", text("a/../b"), true, true);
    row("leads up", text("../b"), false, false);
    row("drive and path", text("C:/Photos/a.jpg"), false, true);
    row("backslash", text("a\\b"), false, true);
    row("network path", text("//server/share/a"), false, true);
    for (const char forbidden : QByteArray("<>\"|?*")) {
        const QByteArray title = QByteArray("contains ") + forbidden;
        row(title, text("a") + QLatin1Char(forbidden), false, false);
    }
    row("colon", text("a:b"), false, true);
    row("right-to-left override", text("a\xE2\x80\xAEgpj.exe"), true, true);
    for (const char* device : {"CON", "pRn", "AUX", "nul", "COM1", "com9", "LPT1", "Lpt9"}) {
        row(device, text(device), false, false);
        const QString path = QStringLiteral("C:/a/") + text(device);
        row(qPrintable(path), path, false, false);
        row(qPrintable(QString(path).replace(QLatin1Char('/'), QLatin1Char('\\'))), path, false, false);
    }
    for (const char* none : {"CO", "COM", "COM0", "COM10", "LPTT", "NULL", "xCON", "\xE2\x84\xAAON"}) {
        row(none, text(none), true, true);
    }
    row("device and extension", text("con.txt"), true, true);
    row("device and colon", text("CON:"), false, true);
    row("device and blank", text("CON "), true, true);
    row("superscript digit", text("COM\xC2\xB9"), true, true);
    row("device behind a line feed in the folder", text("a\nb/nul"), false, false);
    row("device as a folder", text("C:/nul/a"), false, true);
    row("device and a separator behind it", text("C:/a/nul/"), false, false);
    row("device and a backslash behind it", text("C:/a/nul\\"), false, !windows);
}

void FileNamesTest::validity()
{
    QFETCH(QString, name);
    QTEST(validateFileName(name, false), "asName");
    QTEST(validateFileName(name, true), "asPath");
}

void FileNamesTest::lengths_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("valid");
    const auto part = [](int length) { return QString(length, QLatin1Char('a')); };
    const auto path = [&](int length) { // parts of 100 characters
        QString text;
        while (text.size() < length) {
            text += part(99) + QLatin1Char('/');
        }
        text.truncate(length);
        return text.endsWith(QLatin1Char('/')) ? text.chopped(1) + QLatin1Char('a') : text;
    };
    QTest::newRow("260 in one part") << part(260) << true;
    QTest::newRow("261 in one part") << part(261) << false;
    QTest::newRow("260 as a folder") << part(260) + QStringLiteral("/a") << true;
    QTest::newRow("261 as a folder") << part(261) + QStringLiteral("/a") << false;
    QTest::newRow("130 surrogate pairs") << QString::fromUtf8("\xF0\x9F\x93\xB7").repeated(130) << true;
    QTest::newRow("131 surrogate pairs") << QString::fromUtf8("\xF0\x9F\x93\xB7").repeated(131) << false;
    QTest::newRow("32766 in all") << path(32766) << true;
    QTest::newRow("32767 in all") << path(32767) << false;
    QTest::newRow("32767 that cleaning shortens") << path(32766) + QStringLiteral("/") << true;
}

void FileNamesTest::lengths()
{
    QFETCH(QString, name);
    QTEST(validateFileName(name, true), "valid");
}

void FileNamesTest::comparison_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<QVector<bool>>("equal"); // by condition, 4 stands for an unknown one
    const auto row = [](const char* title, const char* a, const char* b, QVector<bool> equal) {
        QTest::newRow(title) << QString::fromUtf8(a) << QString::fromUtf8(b) << equal;
    };
    row("case", "a/b.jpg", "A/B.JPG", {true, true, true, true, true});
    row("suffix", "a/b.jpg", "A/B.png", {false, true, false, true, true});
    row("folder", "a/b.jpg", "c/b.jpg", {false, false, true, true, true});
    row("cleaned", "a/./x/../b.jpg", "a//b.jpg", {true, true, true, true, true});
    row("two suffixes", "a/b.tar.gz", "a/b.tar.xz", {false, true, false, true, true});
    row("no separator between folder and name", "a/bc.jpg", "ab/c.jpg", {false, true, false, false, true});
    row("umlauts", "\xC3\xA4/\xC3\x96.jpg", "\xC3\x84/\xC3\xB6.jpg", {true, true, true, true, true});
    row("hidden file", "a/.b", "a/.c", {false, true, false, true, true});
}

void FileNamesTest::comparison()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(QVector<bool>, equal);
    for (int condition = 0; condition < equal.size(); ++condition) {
        const auto value = static_cast<FileCompareCondition>(condition);
        QVERIFY2(isEqualFileOrDirNames(QFileInfo(a), QFileInfo(b), value) == equal.at(condition),
                 qPrintable(QString::number(condition)));
    }
}

void FileNamesTest::normalized()
{
    const QString native = QDir::toNativeSeparators(QStringLiteral("c:/\u00e4/b.jpg"));
    QCOMPARE(normalizedFilePath(QStringLiteral("C:/\u00c4/B.JPG")), native);
    QCOMPARE(normalizedFilePath(QStringLiteral("A/../B")),
             QDir::toNativeSeparators(QStringLiteral("a/../b")));
    QVERIFY(normalizedFilePath(QString()).isEmpty());
}

TOLVAN_CORE_TEST_MAIN(FileNamesTest)
#include "tst_filenames.moc"
