#pragma once

namespace TOLVAN_NAMESPACE::Platform
{

/// Horizontal logical dots per inch of the screen; 96 if the system doesn't report them.
double logicalDotsPerInch();

} // namespace TOLVAN_NAMESPACE::Platform
