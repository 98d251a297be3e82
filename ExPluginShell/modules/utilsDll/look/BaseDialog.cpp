#include "BaseDialog.h"

#include "GuiUtils.h"

#include <QMouseEvent>
#include <QPainter>
#include <QShowEvent>
#include <QStyleOption>

namespace TOLVAN_NAMESPACE
{

namespace
{

/// Paints the style sheet's background and border before the dialog paints itself. Qt does not paint them,
/// because a translucent window has no system background.
class FramePainter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            auto* const dialog = static_cast<QWidget*>(watched);
            QStyleOption option;
            option.initFrom(dialog);
            QPainter painter(dialog);
            dialog->style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, dialog);
        }
        return false;
    }
};

} // namespace

CBaseDialog::CBaseDialog(QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground, true);
    setWindowFlags(windowFlags() & ~(Qt::WindowMinMaxButtonsHint | Qt::WindowContextHelpButtonHint));
    installEventFilter(new FramePainter(this));
}

CBaseDialog::~CBaseDialog() = default;

void CBaseDialog::sendNotification() {}

void CBaseDialog::moveToScreenCenter()
{
    fitAndCenter();
}

QString CBaseDialog::getObjectName()
{
    return objectName();
}

void CBaseDialog::mousePressEvent(QMouseEvent* event)
{
    QWidget::mousePressEvent(event);
    const bool belowHeader = m_headerHeight != 0 && m_headerHeight < event->y();
    if (event->button() != Qt::LeftButton || belowHeader) {
        return;
    }
    m_dragging = true;
    m_dragOffset = event->pos(); // not from pos(): under some window managers Qt does not know the position
}

void CBaseDialog::mouseReleaseEvent(QMouseEvent* event)
{
    m_dragging = false;
    QWidget::mouseReleaseEvent(event);
}

void CBaseDialog::mouseMoveEvent(QMouseEvent* event)
{
    if (m_dragging) {
        move(event->globalPos() - m_dragOffset);
    }
    QWidget::mouseMoveEvent(event);
}

void CBaseDialog::showEvent(QShowEvent* event)
{
    if (!m_firstShow) {
        return;
    }
    m_firstShow = false;
    QDialog::showEvent(event);
    fitAndCenter();
}

bool CBaseDialog::canUseInAATSignalService() const
{
    return true;
}

void CBaseDialog::setHeaderHeight(int height)
{
    m_headerHeight = height;
}

void CBaseDialog::fitAndCenter()
{
    adjustSize();
    moveWindowToScreenCenter(this, parentWidget());
}

} // namespace TOLVAN_NAMESPACE
