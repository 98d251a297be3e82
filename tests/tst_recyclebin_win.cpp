#include "FileTree.h"
#include "TestMain.h"

#include <utilsDll/FileManagement.h>

#include <windows.h>

#include <shlobj.h>
#include <shlwapi.h>

using namespace TOLVAN_NAMESPACE;

namespace
{

/// Names of what lies in the recycle bin, as the shell lists them.
QStringList recycleBin()
{
    QStringList names;
    LPITEMIDLIST binList = nullptr;
    IShellFolder* desktop = nullptr;
    IShellFolder* bin = nullptr;
    IEnumIDList* items = nullptr;
    if (SUCCEEDED(SHGetSpecialFolderLocation(nullptr, CSIDL_BITBUCKET, &binList)) &&
        SUCCEEDED(SHGetDesktopFolder(&desktop)) &&
        SUCCEEDED(
            desktop->BindToObject(binList, nullptr, IID_IShellFolder, reinterpret_cast<void**>(&bin))) &&
        bin->EnumObjects(nullptr, SHCONTF_FOLDERS | SHCONTF_NONFOLDERS | SHCONTF_INCLUDEHIDDEN, &items) ==
            S_OK) {
        LPITEMIDLIST item = nullptr;
        while (items->Next(1, &item, nullptr) == S_OK) {
            STRRET text = {};
            wchar_t name[MAX_PATH] = {};
            if (SUCCEEDED(bin->GetDisplayNameOf(item, SHGDN_INFOLDER, &text)) &&
                SUCCEEDED(StrRetToBufW(&text, item, name, MAX_PATH))) {
                names += QString::fromWCharArray(name);
            }
            CoTaskMemFree(item);
        }
    }
    for (IUnknown* object : std::initializer_list<IUnknown*>{items, bin, desktop}) {
        if (object) {
            object->Release();
        }
    }
    CoTaskMemFree(binList);
    return names;
}

} // namespace

/// The shell's own store: what went there is listed there.
class RecycleBinTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(SUCCEEDED(CoInitialize(nullptr))); }
    void missingFile();
    void binHoldsTheFile_data();
    void binHoldsTheFile();
    void openFile();
    void cleanupTestCase() { CoUninitialize(); }

private:
    QTemporaryDir m_folder;
};

void RecycleBinTest::missingFile()
{
    const QStringList before = recycleBin();
    for (const QString& path : {QString(), m_folder.filePath(QStringLiteral("missing"))}) {
        QCOMPARE(moveFileToTrash(path), FileOperationFailed);
    }
    QCOMPARE(recycleBin(), before);
}

void RecycleBinTest::binHoldsTheFile_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"plain.txt", "with blank", "100%", "a%20b", "#&;'", "\xC3\xA4\xE6\x97\xA5"}) {
        QTest::newRow(name) << QString::fromUtf8(name);
    }
}

void RecycleBinTest::binHoldsTheFile()
{
    QFETCH(QString, name);
    const auto path = [&] { return QDir::toNativeSeparators(FileTree::write(m_folder.filePath(name))); };
    const int before = recycleBin().size();
    for (int count = 1; count <= 2; ++count) { // the second one has the same name
        QCOMPARE(moveFileToTrash(path()), FileOperationSucceeded);
        QVERIFY(!QFile::exists(m_folder.filePath(name)));
        const QStringList names = recycleBin();
        QCOMPARE(names.size(), before + count);
        QVERIFY2(!names.filter(QFileInfo(name).completeBaseName()).isEmpty(),
                 qPrintable(names.join(QLatin1Char('|'))));
    }
}

/// The system refuses a file that somebody has open for himself.
void RecycleBinTest::openFile()
{
    const QString path = QDir::toNativeSeparators(FileTree::write(m_folder.filePath(QStringLiteral("held"))));
    const HANDLE held = CreateFileW(reinterpret_cast<const wchar_t*>(path.utf16()), GENERIC_READ, 0, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    QVERIFY(held != INVALID_HANDLE_VALUE);
    const int before = recycleBin().size();
    const ErrorCodes result = moveFileToTrash(path);
    CloseHandle(held);
    QCOMPARE(result, FileOperationFailed);
    QVERIFY(QFile::exists(path));
    QCOMPARE(recycleBin().size(), before);
}

TOLVAN_CORE_TEST_MAIN(RecycleBinTest)
#include "tst_recyclebin_win.moc"
