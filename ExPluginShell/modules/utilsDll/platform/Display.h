#pragma once

namespace TOLVAN_NAMESPACE::Platform
{

/// Horizontal logical dots per inch of the screen; 96 if the system doesn't report them.
double logicalDotsPerInch();

/// Returns whether the user asked the system for high contrast; false if the system does not report it. On Linux
/// this asks the desktop portal, for at most half a second.
bool usesHighContrast();

} // namespace TOLVAN_NAMESPACE::Platform
