#include "controls/IconViewer.h"

#include "frame/QtVersion.h"

#include <QGuiApplication>
#include <QPainter>

namespace TOLVAN_NAMESPACE
{

namespace
{

/// Returns the icon in \a size device pixels, or smaller if it has no larger bitmap.
QPixmap devicePixmap(const QIcon& icon, const QSize& size, QIcon::Mode mode)
{
    const qreal enlargement = QtVersion::iconsUseDevicePixels() ? qGuiApp->devicePixelRatio() : 1.0;
    QPixmap pixmap = icon.pixmap((QSizeF(size) / enlargement).toSize(), mode);
    pixmap.setDevicePixelRatio(1.0);
    return pixmap;
}

} // namespace

CIconViewer::CIconViewer(QWidget* parent)
    : QWidget(parent)
{
}

CIconViewer::~CIconViewer() = default;

void CIconViewer::setIcon(const QIcon& icon)
{
    m_icon = icon;
    update();
}

QIcon CIconViewer::icon() const
{
    return m_icon;
}

void CIconViewer::setSizeHint(const QSize& size)
{
    if (m_sizeHint != size) {
        m_sizeHint = size;
        updateGeometry();
    }
}

QSize CIconViewer::sizeHint() const
{
    return m_sizeHint;
}

void CIconViewer::paintEvent(QPaintEvent*)
{
    if (m_icon.isNull() || rect().isEmpty()) {
        return;
    }
    const qreal ratio = devicePixelRatioF();
    const QSize available = (QSizeF(size()) * ratio).toSize();
    const QPixmap pixmap = devicePixmap(m_icon, available, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    if (pixmap.isNull()) {
        return;
    }
    // A bitmap smaller than the place for it keeps its size in logical pixels.
    const bool fills = pixmap.width() >= available.width() || pixmap.height() >= available.height();
    QSizeF shown = fills ? QSizeF(pixmap.size()) / ratio : QSizeF(pixmap.size());
    if (shown.width() > width() || shown.height() > height()) {
        shown.scale(size(), Qt::KeepAspectRatio);
    }
    QPointF corner((width() - shown.width()) / 2.0, (height() - shown.height()) / 2.0);
    corner = QPointF((corner * ratio).toPoint()) / ratio; // on a whole device pixel
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRectF(corner, shown), pixmap, QRectF(pixmap.rect()));
}

} // namespace TOLVAN_NAMESPACE
