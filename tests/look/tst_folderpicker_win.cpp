#include "FileTree.h"
#include "FolderTest.h"
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
class FolderPickerTest : public FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void selectFolder_data()
    {
        QTest::addColumn<int>("control"); // 0 is the dialog itself
        QTest::addColumn<uint>("message");
        QTest::addColumn<uint>("key");
        QTest::addColumn<bool>("chosen");
        QTest::newRow("mouse on the button") << IDOK << uint(WM_LBUTTONUP) << 0u << true;
        QTest::newRow("space bar on the button") << IDOK << uint(WM_KEYUP) << uint(VK_SPACE) << true;
        QTest::newRow("closed") << 0 << uint(WM_CLOSE) << 0u << false;
    }

    void selectFolder()
    {
        QFETCH(int, control);
        QFETCH(uint, message);
        QFETCH(uint, key);
        QFETCH(bool, chosen);
        const QString picked = pick([&](HWND dialog) {
            PostMessageW(control ? GetDlgItem(dialog, control) : dialog, message, key, 0);
        });
        QCOMPARE(picked, chosen ? QDir::toNativeSeparators(folder()) : QString());
    }

    void choosingAFileKeepsItOpen()
    {
        FileTree::write(path("photo.jpg"));
        bool stayed = false;
        const QString picked = pick([&](HWND dialog) {
            const HWND name = GetDlgItem(dialog, 1148); // the common dialog's field for the name
            SendMessageW(name ? name : dialog, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"photo.jpg"));
            SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED),
                         reinterpret_cast<LPARAM>(GetDlgItem(dialog, IDOK)));
            Sleep(500);
            stayed = stayed || (IsWindow(dialog) && IsWindowVisible(dialog));
            PostMessageW(dialog, WM_CLOSE, 0, 0);
        });
        QVERIFY(stayed);
        QCOMPARE(picked, QString());
    }

    void missingFolder()
    {
        QVERIFY(Singleton<CNativeDialogs>::instance()
                    .getFileBrowserDirectory(nullptr, QStringLiteral("Never shown"), path("missing"),
                                             QString(), {})
                    .isEmpty());
    }

private:
    /// Runs the steps again and again until the picker has gone: it may not be ready for the first ones.
    QString pick(const std::function<void(HWND)>& steps) const
    {
        bool shown = false;
        std::thread user([&] {
            const HWND dialog = waitForPicker();
            shown = dialog != nullptr;
            for (int i = 0; i < 100 && IsWindow(dialog); ++i) {
                steps(dialog);
                Sleep(200);
            }
        });
        const QString chosen = Singleton<CNativeDialogs>::instance().getFileBrowserDirectory(
            nullptr, QStringLiteral("Test picker"), folder(), QStringLiteral("*.jpg *.png"), {});
        user.join();
        return shown ? chosen : QStringLiteral("never shown");
    }
};

TOLVAN_GUI_TEST_MAIN(FolderPickerTest)
#include "tst_folderpicker_win.moc"
