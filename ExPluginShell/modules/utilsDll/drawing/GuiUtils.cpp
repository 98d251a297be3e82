#include "GuiUtils.h"

#include "frame/Logging.h"
#include "frame/QtVersion.h"
#include "platform/Display.h"
#include "platform/WindowMenu.h"

#include <QApplication>
#include <QCursor>
#include <QEnterEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QScreen>

namespace TOLVAN_NAMESPACE
{

namespace
{

void reportMisplacedWindow(int line, const char* message)
{
    Logging::reportAssertionX("TOLVAN_NAMESPACE::moveWindowToScreenCenter", "GuiUtils", line, message);
}

QRect defaultScreenGeometry()
{
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return screen ? screen->geometry() : QRect();
}

void moveCursorThereAndBack(const QPoint& position)
{
    QCursor::setPos(position.x() + 1, position.y() + 1);
    QCursor::setPos(position.x(), position.y());
}

void chooseActiveAction(QMenu& menu, const QPoint& globalPos)
{
    constexpr int moves = 2; // QMenu ignores the first move after it was shown
    for (int i = 0; i < moves; ++i) {
        QMouseEvent move(QEvent::MouseMove, menu.mapFromGlobal(globalPos), globalPos, Qt::NoButton,
                         QGuiApplication::mouseButtons(), QGuiApplication::keyboardModifiers());
        QCoreApplication::sendEvent(&menu, &move);
    }
    const QAction* const active = menu.activeAction();
    if (active && active->isSeparator()) {
        menu.setActiveAction(nullptr);
    }
}

void sendLeave(QWidget& widget)
{
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&widget, &leave);
}

void sendEnter(QWidget& widget, const QPoint& globalPos)
{
    QEnterEvent enter(widget.mapFromGlobal(globalPos), widget.window()->mapFromGlobal(globalPos), globalPos);
    QCoreApplication::sendEvent(&widget, &enter);
}

} // namespace

void moveWindowToScreenCenter(QWidget* window, QWidget* parent)
{
    if (!window || !window->isWindow()) {
        reportMisplacedWindow(116, "Bug!!!");
        return;
    }
    if (!QtVersion::hasDesktop()) {
        reportMisplacedWindow(111, "desktop is unavailable");
        return;
    }
    const QRect screen = parent ? QtVersion::screenGeometry(*parent) : defaultScreenGeometry();
    if (parent && !screen.isValid()) {
        reportMisplacedWindow(90, "wrong screen geometry of parent widget");
    }
    if (!screen.isValid()) {
        return;
    }
    // While a window manager takes a window over, an X server may report a frame smaller than the window.
    const QSize frame = window->frameGeometry().size().expandedTo(window->size());
    window->move(screen.x() + (screen.width() - frame.width()) / 2,
                 screen.y() + (screen.height() - frame.height()) / 2);
}

double systemScalingFactor()
{
    static const float factor =
        static_cast<float>(Platform::logicalDotsPerInch(QtVersion::dotsInRatio())) / 96.0F;
    return static_cast<double>(factor);
}

void synthesizeMouseEvent(QWidget* widget, const QPoint& globalPos)
{
    if (!widget) {
        return;
    }
    QMouseEvent move(QEvent::MouseMove, widget->mapFromGlobal(globalPos), globalPos, Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
}

void flickHoverEvent(QWidget* widget)
{
    if (!widget || QCoreApplication::startingUp() || !QApplication::activeWindow()) {
        return;
    }
    const QPoint position = QCursor::pos();
    if (!widget->rect().contains(widget->mapFromGlobal(position))) {
        sendLeave(*widget);
        widget->update();
        return;
    }
    moveCursorThereAndBack(position);
    sendLeave(*widget);
    sendEnter(*widget, position);
    if (auto* const menu = qobject_cast<QMenu*>(widget)) {
        chooseActiveAction(*menu, position);
    }
    widget->update();
}

void enableWindowCloseButton(quint64 handle, bool enable)
{
    Platform::setCloseCommandEnabled(handle, enable);
}

} // namespace TOLVAN_NAMESPACE
