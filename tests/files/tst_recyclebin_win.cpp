#include "FolderTest.h"

#include <utilsDll/FileManagement.h>

#include <windows.h>

#include <shellapi.h>

using namespace TOLVAN_NAMESPACE;

namespace
{

/// The shell's count of files in the recycle bin; -1 on failure.
qint64 filesInBin()
{
    SHQUERYRBINFO info = {};
    info.cbSize = sizeof info;
    return SUCCEEDED(SHQueryRecycleBinW(nullptr, &info)) ? info.i64NumItems : -1;
}

} // namespace

/// The recycle bin of the shell.
class RecycleBinTest : public FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void binHoldsTheFile()
    {
        for (const char* name : {"plain.txt", "100% a%20b", "#&;'", "ä日", "folder/file"}) {
            const QString top = path(text(name).section(QLatin1Char('/'), 0, 0));
            const qint64 before = filesInBin();
            for (int count = 1; count <= 2; ++count) { // the second one has the same name
                FileTree::write(path(name));
                QCOMPARE(moveFileToTrash(QDir::toNativeSeparators(top)), FileOperationSucceeded);
                QVERIFY(!QFile::exists(top));
                QCOMPARE(filesInBin(), before + count);
            }
        }
    }

    /// The system refuses a file that is open without sharing.
    void openFile()
    {
        const QString file = QDir::toNativeSeparators(FileTree::write(path("held")));
        const HANDLE held = CreateFileW(reinterpret_cast<const wchar_t*>(file.utf16()), GENERIC_READ, 0,
                                        nullptr, OPEN_EXISTING, 0, nullptr);
        QVERIFY(held != INVALID_HANDLE_VALUE);
        const qint64 before = filesInBin();
        const ErrorCodes result = moveFileToTrash(file);
        CloseHandle(held);
        QCOMPARE(result, FileOperationFailed);
        QVERIFY(QFile::exists(file));
        QCOMPARE(filesInBin(), before);
    }

    /// Wine does not report where the file went; such a receipt can't be restored.
    void receipt()
    {
        const QString file = FileTree::write(path("file"), "content");
        const TrashReceipt receipt = trash(file);
        QVERIFY(receipt.isTrashed && !QFile::exists(file));
        QCOMPARE(restore(receipt), !receipt.trashPath.isEmpty());
        QCOMPARE(QFile::exists(file), !receipt.trashPath.isEmpty());
        QVERIFY(!trash(path("missing")).isTrashed);
    }
};

TOLVAN_CORE_TEST_MAIN(RecycleBinTest)
#include "tst_recyclebin_win.moc"
