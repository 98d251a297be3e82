#include "FatalBoxes.h"

#include <QMutex>

#include <windows.h>

#include <atomic>
#include <thread>

namespace
{

QString textOf(HWND window)
{
    wchar_t text[2048] = {};
    const int length = GetWindowTextW(window, text, 2047);
    return QString::fromWCharArray(text, length);
}

BOOL CALLBACK noteBox(HWND window, LPARAM result)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    wchar_t className[16] = {};
    GetClassNameW(window, className, 15);
    if (process != GetCurrentProcessId() || wcscmp(className, L"#32770") != 0 || !IsWindowVisible(window)) {
        return TRUE;
    }
    *reinterpret_cast<HWND*>(result) = window;
    return FALSE;
}

} // namespace

class FatalBoxes::Watcher
{
public:
    Watcher()
        : m_thread([this] { watch(); })
    {
    }
    ~Watcher()
    {
        m_stop = true;
        m_thread.join();
    }

    QStringList take()
    {
        const QMutexLocker locker(&m_mutex);
        return std::exchange(m_boxes, {});
    }

private:
    void watch()
    {
        while (!m_stop) {
            HWND box = nullptr;
            EnumWindows(&noteBox, reinterpret_cast<LPARAM>(&box));
            // Its one button and its text have their places in every message box of the system.
            const HWND button = box ? GetDlgItem(box, IDOK) : nullptr;
            const HWND label = box ? GetDlgItem(box, 0xFFFF) : nullptr;
            if (button && label) {
                {
                    const QMutexLocker locker(&m_mutex);
                    m_boxes.append(textOf(box) + QLatin1Char('|') + textOf(label));
                }
                // A click before the box has its turn is lost.
                while (IsWindow(box) && !m_stop) {
                    PostMessageW(button, BM_CLICK, 0, 0);
                    Sleep(50);
                }
            }
            Sleep(20);
        }
    }

    QMutex m_mutex;
    QStringList m_boxes;
    std::atomic<bool> m_stop{false};
    std::thread m_thread;
};

FatalBoxes::FatalBoxes(const QString&)
    : m_watcher(new Watcher)
{
}

FatalBoxes::~FatalBoxes() = default;

QStringList FatalBoxes::take()
{
    return m_watcher->take();
}

QList<QStringList> FatalBoxes::takeArguments()
{
    return {};
}
