#pragma once

#include <QSize>
#include <QString>

namespace TOLVAN_NAMESPACE
{

/// Horizontal and vertical dots per inch of a screen.
struct ScreenResolution {
    int horizontal;
    int vertical;
};

/// The text of sizeToString() for a given unit (0 pixels, 1 inches, 2 centimetres, 3 millimetres) and screen.
/// \return empty for any other unit
QString imageSizeText(const QSize& size, int unit, const ScreenResolution& resolution);

} // namespace TOLVAN_NAMESPACE
