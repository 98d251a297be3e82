#pragma once

#include <QRect>

class QColor;
class QScreen;
class QWidget;

/// What the user sees. A window tells where its toolkit believes it is; the screen tells where it is.
namespace ScreenProbe
{

/// The smallest rectangle around all pixels of \a color on \a screen, in screen coordinates; null when there
/// is none. A screenless platform shows nothing: there it is null for everything.
QRect areaOf(const QColor& color, QScreen& screen);

/// Whether the platform shows windows, so that areaOf() can see them.
bool canSee();

/// Gives \a widget a ground in \a color that the probe finds.
void paint(QWidget& widget, const QColor& color);

} // namespace ScreenProbe
