#include "BaseDialog.h"

#include "GuiUtils.h"

#include <QMouseEvent>
#include <QShowEvent>

namespace TOLVAN_NAMESPACE
{

CBaseDialog::CBaseDialog(QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground, true);
    setWindowFlags(windowFlags() & ~(Qt::WindowMinMaxButtonsHint | Qt::WindowContextHelpButtonHint));
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
    m_dragOffset = event->globalPos() - pos();
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
