#include "FileTree.h"
#include "TestMain.h"

#include <utilsDll/NativeDialogs.h>

#include <windows.h>

#include <functional>
#include <thread>

using namespace TOLVAN_NAMESPACE;

namespace
{

/// The dialog of that title, once its accept button has the picker's label.
HWND waitForPicker()
{
    for (int i = 0; i < 400; ++i) {
        const HWND dialog = FindWindowW(nullptr, L"Test picker");
        wchar_t label[64] = {};
        if (dialog && GetWindowTextW(GetDlgItem(dialog, IDOK), label, 64) > 0 &&
            QString::fromWCharArray(label) == QLatin1String("Select Folder")) {
            return dialog;
        }
        Sleep(50);
    }
    return nullptr;
}

} // namespace

/// The system's own dialog, driven from a second thread as a user would.
class FolderPickerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selectFolder();
    void spaceBarOnTheButton();
    void choosingAFileKeepsItOpen();
    void cancelled();
    void missingFolder();

private:
    QString pick(const QString& folder, const std::function<void(HWND)>& steps, bool* shown = nullptr)
    {
        HWND dialog = nullptr;
        std::thread user([&] {
            dialog = waitForPicker();
            if (dialog) {
                Sleep(300); // its list is filled
                steps(dialog);
            }
        });
        const QString chosen = Singleton<CNativeDialogs>::instance().getFileBrowserDirectory(
            nullptr, QStringLiteral("Test picker"), folder, QStringLiteral("*.jpg *.png"), {});
        user.join();
        if (shown) {
            *shown = dialog != nullptr;
        }
        return chosen;
    }

    QTemporaryDir m_folder;
};

void FolderPickerTest::selectFolder()
{
    FileTree::write(m_folder.filePath(QStringLiteral("photo.jpg")));
    const QString chosen = pick(
        m_folder.path(), [](HWND dialog) { PostMessageW(GetDlgItem(dialog, IDOK), WM_LBUTTONUP, 0, 0); });
    QCOMPARE(chosen, QDir::toNativeSeparators(m_folder.path()));
}

void FolderPickerTest::spaceBarOnTheButton()
{
    const QString chosen = pick(
        m_folder.path(), [](HWND dialog) { PostMessageW(GetDlgItem(dialog, IDOK), WM_KEYUP, VK_SPACE, 0); });
    QCOMPARE(chosen, QDir::toNativeSeparators(m_folder.path()));
}

void FolderPickerTest::choosingAFileKeepsItOpen()
{
    bool stayed = false;
    const QString chosen = pick(m_folder.path(), [&](HWND dialog) {
        const HWND name = GetDlgItem(dialog, 1148); // the common dialog's field for the name
        SendMessageW(name ? name : dialog, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"photo.jpg"));
        SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED),
                     reinterpret_cast<LPARAM>(GetDlgItem(dialog, IDOK)));
        Sleep(500);
        stayed = IsWindow(dialog) && IsWindowVisible(dialog);
        PostMessageW(dialog, WM_CLOSE, 0, 0);
    });
    QVERIFY(stayed);
    QVERIFY(chosen.isEmpty());
}

void FolderPickerTest::cancelled()
{
    bool shown = false;
    QVERIFY(pick(
                m_folder.path(), [](HWND dialog) { PostMessageW(dialog, WM_CLOSE, 0, 0); }, &shown)
                .isEmpty());
    QVERIFY(shown);
}

void FolderPickerTest::missingFolder()
{
    QVERIFY(Singleton<CNativeDialogs>::instance()
                .getFileBrowserDirectory(nullptr, QStringLiteral("Never shown"),
                                         m_folder.filePath(QStringLiteral("missing")), QString(), {})
                .isEmpty());
}

TOLVAN_GUI_TEST_MAIN(FolderPickerTest)
#include "tst_folderpicker_win.moc"
