#pragma once

#include "utilsdll_global.h"

#include <QIcon>
#include <QList>
#include <QPixmap>
#include <QPointF>
#include <QSize>

class QImage;
class QPainter;
class QPoint;
class QRect;
class QRectF;
class QWidget;

/// \file
/// Drawing and geometry helpers that the windows and the correction tools of the product share.
///
/// No function throws or returns an error code. Misuse is reported in the log, and the call then has no
/// effect. Null inputs, with nothing to draw or to compare, return without a report.
///
/// Threads: lineAndCircleIntersectionPoints(), roundWithPrecision() and compareImages() use no shared state
/// and may be called from any thread, as may systemScalingFactor() after its first call. Call all other
/// functions from the main thread.

/// The cursor pictures of the correction tools.
enum ToolCursorType {
    ArrowDiagonalLeft = 0,
    ArrowDiagonalRight = 1,
    ArrowHorizontal = 2,
    ArrowSquare = 3,
    ArrowVertical = 4,
    RotationTop = 5,
    RotationBottom = 6
};

/// Draws a guide line by laying \a pattern along it from \a from to \a to, the pattern's width running
/// along the line. All lengths are logical pixels of the painter, whose pixel ratio the pattern may have.
///
/// The line is drawn from left to right, or from bottom to top if it is steep, for either order of the
/// ends, so the pattern is never upside down. Horizontal and vertical lines are drawn below (right of) the
/// points; an oblique line is moved up by half the height of the pattern.
///
/// The transform of \a painter is replaced while drawing and restored afterwards, so the points are always
/// device positions. QPainter::SmoothPixmapTransform stays switched on.
///
/// \param stretch true stretches one copy over the whole length. false repeats the pattern: at least one
///        copy is drawn, and the last one may run past the end. Invisible copies are drawn as well.
/// \param clip    a rectangle without width or height draws the whole line. Otherwise a line with one end
///        inside is cut at the edge, and a line with both ends outside isn't drawn at all.
///
/// A null painter or pattern, and points that are not finite, draw nothing.
UTILSDLL_EXPORT void drawToolLine(const QPointF& from, const QPointF& to, const QPixmap& pattern,
                                  bool stretch, QPainter* painter, const QRectF& clip);

/// The picture of a tool cursor, 23 × 24 pixels.
/// \return a null pixmap for a value outside the enumeration, which is reported in the log
UTILSDLL_EXPORT QPixmap toolCursorPixmap(ToolCursorType type);

/// Paints \a icon into \a rect.
/// \param aspect Qt::IgnoreAspectRatio passes the whole rectangle to the icon. Otherwise the icon's size is
///        scaled in this mode and centred; with Qt::KeepAspectRatioByExpanding it is larger than \a rect.
///
/// A null painter or icon paints nothing.
UTILSDLL_EXPORT void paintIcon(QPainter* painter, const QIcon& icon, const QRect& rect,
                               Qt::AspectRatioMode aspect, QIcon::Mode mode, QIcon::State state);

/// The largest width and, separately, the largest height of the available sizes of \a icon, in pixels.
/// \return 0 × 0 for an icon without sizes
UTILSDLL_EXPORT QSize sizeOfIcon(const QIcon& icon, QIcon::Mode mode, QIcon::State state);

namespace TOLVAN_NAMESPACE
{

/// The answer of compareImages().
enum imgCmpResult {
    imgCmpInvalid = 0,     ///< at least one image is null
    imgCmpSizeDiffers = 1, ///< the images differ in size
    imgCmpSimilar = 2,     ///< the measure is below the threshold
    imgCmpDifferent = 3    ///< the measure reaches or exceeds the threshold
};

/// Centres the frame of \a window on the screen of \a parent, or on the default screen if \a parent is
/// null. A window larger than the screen overhangs equally on both sides.
///
/// The window isn't moved, and the log reports it, if \a window is null or not a top-level window, if there
/// is no desktop, or if the parent's screen has no valid geometry (a parent embedded in an empty scene).
UTILSDLL_EXPORT void moveWindowToScreenCenter(QWidget* window, QWidget* parent);

/// Scaling of the display: 1.0 at 96 dots per inch, 1.5 at 144. The first call computes the value; later
/// changes of the setting are not seen.
///
/// On Windows the value comes from the screen's device context. On Unix it is the logical dots per inch of
/// Qt's primary screen, or 96 without a QGuiApplication. So make the first call on the main thread, after
/// the application object was created; later calls only read the value and may come from any thread.
UTILSDLL_EXPORT double systemScalingFactor();

/// Points in which the infinite line through (\a x1, \a y1) and (\a x2, \a y2) meets the circle
/// around (\a cx, \a cy).
///
/// \return two points in the direction from (x1, y1) to (x2, y2); one point if the line touches the circle,
///        which is a distance that exceeds the radius by less than 12 digits; none if the line misses the
///        circle, if its two points coincide (to 1e-12), or if a value is not a number
UTILSDLL_EXPORT QList<QPointF> lineAndCircleIntersectionPoints(double x1, double y1, double x2, double y2,
                                                               double cx, double cy, double radius);

/// \a value rounded to \a precision decimals; halves go up (2.5 gives 3, -2.5 gives -2).
///
/// A value that already has that many decimals (to 12 digits) is returned unchanged, bit for bit; so are
/// infinity and a value whose decimals a double can't hold.
///
/// \param precision 0 or less rounds to a 32-bit integer: values beyond its range give the nearest limit,
///        and NaN gives 0
UTILSDLL_EXPORT double roundWithPrecision(double value, int precision);

/// Measures how much two images differ, and compares the measure with \a threshold.
///
/// The measure sums |ΔR| + |ΔG| + |ΔB| of all pixels, each from 0 to 1; alpha is ignored. After every row,
/// and once more at the end, the running total is multiplied by 100 / (3 · width · height), so differences
/// in upper rows weigh less. The measure isn't a percentage: compare it only with thresholds found with it.
///
/// The sum of a row is exact: it is counted in whole steps of 1/255 and converted to a double once per row.
/// So the result doesn't depend on the order of the pixels in a row, and it is the same on every processor.
///
/// The pixels are read without conversion, as the 32-bit RGB formats store them; images of less than 32
/// bits a pixel are converted first. Other threads may read the same images during the call.
///
/// \param difference [in,out] the measure is added to this value, so set it to 0 first; it isn't changed if
///        the result is imgCmpInvalid or imgCmpSizeDiffers
UTILSDLL_EXPORT imgCmpResult compareImages(const QImage& first, const QImage& second, double& difference,
                                           double threshold);

/// Sends \a widget a mouse move to the screen position \a globalPos, without buttons and modifiers. The
/// event has been handled when the call returns. A null widget is ignored.
UTILSDLL_EXPORT void synthesizeMouseEvent(QWidget* widget, const QPoint& globalPos);

/// Makes \a widget update its hover state, for instance after it was shown under a cursor that didn't move.
/// If the cursor is over the widget, it is moved by one pixel and back. The events have been handled when
/// the call returns; the repaint is scheduled. A menu also updates its active action.
///
/// Does nothing for a null widget, while the application is starting, or while no window of it is active.
UTILSDLL_EXPORT void flickHoverEvent(QWidget* widget);

/// Enables or greys the close button of a native window.
///
/// On Windows the command "Close" of the system menu is enabled or greyed; \a handle may be any window. On
/// Unix Qt::WindowCloseButtonHint is set or cleared, and the window manager greys or removes the button;
/// \a handle is the QWidget::winId() of a window of this process, and other handles are ignored.
UTILSDLL_EXPORT void enableWindowCloseButton(quint64 handle, bool enable);

} // namespace TOLVAN_NAMESPACE
