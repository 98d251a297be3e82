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
    void validity()
    {
        enum { Never, AsPath, Always };
        const bool windows = QDir::separator() == QLatin1Char('\\');
        const auto check = [](const char* name, int valid) {
            QVERIFY2(validateFileName(text(name), false) == (valid == Always), name);
            QVERIFY2(validateFileName(text(name), true) == (valid != Never), name);
        };
        for (const char* name :
             {"photo.jpg", "a. .", ".", "a/../b", "a\xE2\x80\xAEgpj.exe", "CO", "COM", "COM0", "COM10",
              "LPTT", "NULL", "xCON", "\xE2\x84\xAAON", "con.txt", "CON ", "COM\xC2\xB9"}) {
            check(name, Always);
        }
        for (const char* name :
             {"///", "C:/Photos/a.jpg", "a\\b", "//server/share/a", "a:b", "CON:", "C:/nul/a"}) {
            check(name, AsPath);
        }
        for (const char* name :
             {"", "..", "a..b", "../b", "a<", "a>", "a\"", "a|", "a?", "a*", "a\nb/nul", "C:/a/nul/"}) {
            check(name, Never);
        }
        for (const char* device : {"CON", "pRn", "AUX", "nul", "COM1", "com9", "LPT1", "Lpt9"}) {
            for (const char* folder : {"", "C:/a/", "C:\\a\\"}) {
                check(QByteArray(folder) + device, Never);
            }
        }
        check("C:/a/nul\\", windows ? Never : AsPath);
    }

    void lengths()
    {
        const auto part = [](int length) { return QString(length, QLatin1Char('a')); };
        const QString camera = text("\U0001F4F7"),
                      folders = (part(99) + QLatin1Char('/')).repeated(327) + part(66);
        for (const QString& longest : {part(260), part(260) + text("/a"), camera.repeated(130), folders}) {
            QVERIFY2(validateFileName(longest, true), qPrintable(longest.left(10)));
            QVERIFY2(!validateFileName(QLatin1Char('a') + longest, true), qPrintable(longest.left(10)));
        }
        QVERIFY(validateFileName(folders + QLatin1Char('/'), true)); // cleaning shortens it
    }

    void comparison()
    {
        const struct {
            const char* a;
            const char* b;
            bool equal[5]; // by condition, 4 stands for an unknown one
        } rows[] = {
            {"a/b.jpg", "A/B.JPG", {true, true, true, true, true}},
            {"a/b.jpg", "A/B.png", {false, true, false, true, true}},
            {"a/b.jpg", "c/b.jpg", {false, false, true, true, true}},
            {"a/./x/../b.jpg", "a//b.jpg", {true, true, true, true, true}},
            {"a/b.tar.gz", "a/b.tar.xz", {false, true, false, true, true}},
            {"a/bc.jpg", "ab/c.jpg", {false, true, false, false, true}}, // without the separator the same
            {"ä/Ö.jpg", "Ä/ö.jpg", {true, true, true, true, true}},
            {"a/.b", "a/.c", {false, true, false, true, true}}};
        for (const auto& row : rows) {
            for (int condition = 0; condition < 5; ++condition) {
                const auto value = static_cast<FileCompareCondition>(condition);
                QVERIFY2(isEqualFileOrDirNames(QFileInfo(text(row.a)), QFileInfo(text(row.b)), value) ==
                             row.equal[condition],
                         qPrintable(text("%1 %2").arg(text(row.b)).arg(condition)));
            }
        }
    }

    void normalized()
    {
        const QString native = QDir::toNativeSeparators(text("c:/\u00e4/b.jpg"));
        QCOMPARE(normalizedFilePath(text("C:/\u00c4/B.JPG")), native);
        QCOMPARE(normalizedFilePath(text("A/../B")), QDir::toNativeSeparators(text("a/../b")));
        QVERIFY(normalizedFilePath(QString()).isEmpty());
    }
};

TOLVAN_CORE_TEST_MAIN(FileNamesTest)
#include "tst_filenames.moc"
