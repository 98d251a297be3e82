#pragma once

namespace TOLVAN_NAMESPACE::Platform
{

/// Horizontal logical dots per inch of the screen; 96 if the system doesn't report them. On Unix they come
/// from Qt, which may have put a factor of them, \a inRatio, into its ratio of device pixels.
double logicalDotsPerInch(double inRatio);

/// Returns whether the user asked the system for high contrast; false if the system does not report it. On Linux
/// this asks the desktop portal, for at most half a second.
bool usesHighContrast();

} // namespace TOLVAN_NAMESPACE::Platform
