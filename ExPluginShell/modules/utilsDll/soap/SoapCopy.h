#pragma once

#include "qtsoaptype.h"

namespace TOLVAN_NAMESPACE
{

/// Internal: a copy of a child for a copy of its parent.
///
/// Objects of the library's own classes are copied; of classes derived outside it only their owner knows how
/// to copy them, so those are shared.
QtSmartPtr<QtSoapType> copySoapValue(const QtSmartPtr<QtSoapType>& value);

} // namespace TOLVAN_NAMESPACE
