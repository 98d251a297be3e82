#pragma once

#include <QRect>

class QColor;
class QScreen;
class QWidget;

/// Looks at the pixels of the screen: a QWidget reports where Qt believes its window to be.
namespace ScreenProbe
{

/// Returns the smallest rectangle around all pixels of \a color on \a screen, in screen coordinates; null if
/// there is none, and always on the platform "offscreen".
QRect areaOf(const QColor& color, QScreen& screen);

/// Returns whether the platform shows windows, so that areaOf() can find them.
bool canSee();

/// Fills the background of \a widget with \a color.
void paint(QWidget& widget, const QColor& color);

} // namespace ScreenProbe
