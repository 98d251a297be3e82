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
/// Nothing here throws or returns an error code. Misuse is reported in the log, and the call then has no
/// effect; inputs with nothing to draw or to compare return quietly. Everything belongs to the main thread
/// except lineAndCircleIntersectionPoints(), roundWithPrecision() and compareImages(), which touch nothing
/// shared and may run on any thread.

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

/// Draws a guide line by laying \a pattern along it from \a from to \a to, the pattern's width running along
/// the line. Lengths are logical pixels of the painter, also those of a pattern with a device pixel ratio.
///
/// The line is drawn from left to right, or from bottom to top when it is steep, whichever end is given
/// first, so a pattern never stands on its head. Horizontal and vertical lines hang below (right of) the
/// points; an oblique line is lifted by half the height of the pattern.
///
/// The transform of \a painter is replaced while drawing and restored afterwards, so the points are device
/// positions whatever transform was set. QPainter::SmoothPixmapTransform stays switched on.
///
/// \param stretch true to stretch one copy over the whole length; false to repeat the pattern: at least one
///        copy, and the last one may run past the end. A repeated line costs one drawing for each copy,
///        visible or not.
/// \param clip    without width or height: everything is drawn. Else a line with one end inside is cut where
///        it leaves the rectangle, and one with both ends outside is not drawn at all, even if it crosses.
///
/// A null painter or pattern, and points that are not finite, draw nothing.
UTILSDLL_EXPORT void drawToolLine(const QPointF& from, const QPointF& to, const QPixmap& pattern,
                                  bool stretch, QPainter* painter, const QRectF& clip);

/// The picture of a tool cursor, 23 × 24 pixels.
/// \return a null pixmap for a value that is no ToolCursorType, which is reported in the log
UTILSDLL_EXPORT QPixmap toolCursorPixmap(ToolCursorType type);

/// Paints \a icon into \a rect.
/// \param aspect Qt::IgnoreAspectRatio hands the whole rectangle to the icon; otherwise the icon's size is
///        scaled in this way and centred, where with Qt::KeepAspectRatioByExpanding it reaches beyond
/// A null painter or icon paints nothing.
UTILSDLL_EXPORT void paintIcon(QPainter* painter, const QIcon& icon, const QRect& rect,
                               Qt::AspectRatioMode aspect, QIcon::Mode mode, QIcon::State state);

/// The largest width and, separately, the largest height that \a icon offers, in pixels; 0 × 0 when it offers
/// none, as drawings without a size of their own do.
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

/// Centres the frame of \a window on the screen of \a parent, or on the default screen when there is none. A
/// window larger than the screen overhangs on both sides alike.
///
/// Reported in the log, with no effect: \a window is null or no window of its own; there is no desktop; the
/// screen of the parent has no valid geometry, as for a parent embedded in a scene without extent.
UTILSDLL_EXPORT void moveWindowToScreenCenter(QWidget* window, QWidget* parent);

/// Scaling of the display: 1.0 at 96 dots per inch, 1.5 at 144. Read once, on the first call from any thread;
/// later changes of the setting are not seen.
///
/// Windows tells the horizontal dots per inch of the screen; elsewhere they are the logical ones of the
/// primary screen, or 96 as long as there is no application with a screen.
UTILSDLL_EXPORT double systemScalingFactor();

/// Points in which the infinite line through (\a x1, \a y1) and (\a x2, \a y2) meets the circle around
/// (\a cx, \a cy).
///
/// The centre is projected on the line; by Pythagoras the points lie at the root of radius² - distance² on
/// either side of the foot.
///
/// \return two points, the one that comes first in the direction from (x1, y1) to (x2, y2) first; one when
///         the distance equals the radius to 12 digits from above; none when the line passes by, its two
///         points coincide (to 1e-12), or a value is not a number
UTILSDLL_EXPORT QList<QPointF> lineAndCircleIntersectionPoints(double x1, double y1, double x2, double y2,
                                                               double cx, double cy, double radius);

/// \a value rounded to \a precision decimals; halves go up (2.5 gives 3, -2.5 gives -2).
///
/// A value that already has that many decimals (to 12 digits) comes back unchanged, bit for bit; so does one
/// whose decimals lie beyond what a double can hold, and infinity.
///
/// \param precision 0 or less rounds to a 32-bit integer: values beyond its range give its nearest end, and
///        what is not a number gives 0
UTILSDLL_EXPORT double roundWithPrecision(double value, int precision);

/// Measures how far two images differ, and whether that stays below \a threshold.
///
/// The measure sums |ΔR| + |ΔG| + |ΔB| of all pixels, each as a part of 1; alpha does not count. After every
/// row, and once more at the end, the running total is scaled by 100 / (3 · width · height), so that
/// differences weigh less the further up they are. The measure is meant for comparison with thresholds found
/// in the same way, not as a percentage.
///
/// The pixels are read as they lie in memory, which is meant for the 32-bit RGB formats; images of less than
/// 32 bits a pixel are converted first. The images may be read by other threads at the same time.
///
/// \param difference [in,out] the measure is added to what is there, so set it to 0 first; untouched for the
///        answers imgCmpInvalid and imgCmpSizeDiffers
UTILSDLL_EXPORT imgCmpResult compareImages(const QImage& first, const QImage& second, double& difference,
                                           double threshold);

/// Sends \a widget a mouse move to the screen position \a globalPos, without buttons and modifiers, and
/// returns when it was handled. A null widget is ignored.
UTILSDLL_EXPORT void synthesizeMouseEvent(QWidget* widget, const QPoint& globalPos);

/// Makes \a widget look anew whether the cursor is over it, for instance after it was shown under a cursor
/// that did not move. Moves the cursor to the next pixel and back when it is over the widget; the events are
/// handled when the call returns, the repaint is scheduled. A menu also chooses its active action anew.
///
/// Does nothing for a null widget, while the application is starting, or when none of its windows is active.
UTILSDLL_EXPORT void flickHoverEvent(QWidget* widget);

/// Enables or greys the close button of a native window.
///
/// On Windows this is the command "Close" of the system menu, of any window. Elsewhere \a handle is the
/// QWidget::winId() of a window of this process, whose Qt::WindowCloseButtonHint is set; whether the button
/// is greyed or goes away is the window manager's choice. Other handles are ignored.
UTILSDLL_EXPORT void enableWindowCloseButton(quint64 handle, bool enable);

} // namespace TOLVAN_NAMESPACE
