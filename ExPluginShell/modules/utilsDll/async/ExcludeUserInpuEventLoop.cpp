#include "ExcludeUserInpuEventLoop.h"

#include "DelayedCall.h"
#include "ScopedInputFilter.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QThread>

namespace
{

constexpr int succeeded = 0;
constexpr int failed = 1;
constexpr int notEntered = -1;

bool isUserInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Enter:
    case QEvent::Close:
    case QEvent::ShortcutOverride:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::DragLeave:
    case QEvent::Drop:
    case QEvent::Shortcut:
    case QEvent::GraphicsSceneMouseMove:
    case QEvent::GraphicsSceneMousePress:
    case QEvent::GraphicsSceneMouseRelease:
    case QEvent::GraphicsSceneMouseDoubleClick:
    case QEvent::GraphicsSceneContextMenu:
    case QEvent::GraphicsSceneDragEnter:
    case QEvent::GraphicsSceneDragMove:
    case QEvent::GraphicsSceneDragLeave:
    case QEvent::GraphicsSceneDrop:
    case QEvent::NonClientAreaMouseButtonPress:
    case QEvent::NonClientAreaMouseButtonRelease:
    case QEvent::NonClientAreaMouseButtonDblClick:
        return true;
    default:
        return false;
    }
}

} // namespace

CExcludeUserInpuEventsFilter::CExcludeUserInpuEventsFilter(QObject* target)
{
    if (!target) {
        return;
    }
    if (target->thread() == thread() && thread() == QThread::currentThread()) {
        setParent(target);
        target->installEventFilter(this);
    } else if (target != QCoreApplication::instance()) {
        qWarning("Logic error: can't install event filter in different thread");
    }
}

CExcludeUserInpuEventsFilter::~CExcludeUserInpuEventsFilter()
{
    if (parent()) {
        parent()->removeEventFilter(this);
    }
}

bool CExcludeUserInpuEventsFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (watched && event && isUserInput(event->type())) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

CExcludeUserInpuEventLoop::CExcludeUserInpuEventLoop()
    : CExcludeUserInpuEventLoop(QCoreApplication::instance())
{
}

CExcludeUserInpuEventLoop::CExcludeUserInpuEventLoop(QObject* watched, QObject* parent)
    : QObject(parent)
    , m_watched(watched)
{
}

bool CExcludeUserInpuEventLoop::isRunning() const
{
    return m_loop.isRunning();
}

int CExcludeUserInpuEventLoop::exec(int nQuitTimeout)
{
    if (isRunning() || !QAbstractEventDispatcher::instance()) {
        return notEntered;
    }
    const ScopedInputFilter filter(m_watched);
    if (nQuitTimeout != 0) {
        CDelayedCall::invoke(nQuitTimeout, this, "quit", true);
    }
    return m_loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void CExcludeUserInpuEventLoop::quit()
{
    exit(succeeded);
}

void CExcludeUserInpuEventLoop::failedQuit()
{
    exit(failed);
}

void CExcludeUserInpuEventLoop::exit(int returnCode)
{
    if (isRunning()) {
        m_loop.exit(returnCode);
    }
}
