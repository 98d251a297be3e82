#pragma once

#include <QColor>
#include <QPoint>

/// Looks at the pixels of the screen: a QWidget reports where Qt believes its window to be.
namespace ScreenProbe
{

/// Returns the upper left corner of the smallest rectangle around all pixels of \a color on the primary screen, in
/// screen coordinates; null if there is none, and always on the platform "offscreen".
QPoint placeOf(const QColor& color);

/// Returns whether the platform shows windows, so that placeOf() can find them.
bool canSee();

} // namespace ScreenProbe
