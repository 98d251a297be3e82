#include "platform/WindowMenu.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

namespace TOLVAN_NAMESPACE::Platform
{

void setCloseCommandEnabled(quint64 window, bool enable)
{
    if (window == 0) { // the handle of widgets without a native window
        return;
    }
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->internalWinId() != window) {
            continue;
        }
        Qt::WindowFlags flags = widget->windowFlags();
        flags.setFlag(Qt::WindowCloseButtonHint, enable);
        // setWindowFlags() would hide the widget and create a new native window.
        widget->overrideWindowFlags(flags);
        widget->windowHandle()->setFlags(flags);
    }
}

} // namespace TOLVAN_NAMESPACE::Platform
