#pragma once

namespace TOLVAN_NAMESPACE
{
namespace Platform
{

/// Horizontal logical dots per inch of the screen; 96 where the system does not tell.
double logicalDotsPerInch();

} // namespace Platform
} // namespace TOLVAN_NAMESPACE
