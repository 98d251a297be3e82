#pragma once

#include <QString>

namespace TOLVAN_NAMESPACE
{

/// Whether the elements of an XML text nest deeper than \a limit. A tree of elements is freed and written by
/// recursion, so a text that nests without bounds has to be refused before a tree is made of it. Costs one
/// scan of the text, and a streaming parse only where that scan is not sure. Internal, not installed.
/// \return false for a text that is not well-formed up to that depth: that is for its parser to say
bool nestsDeeperThan(const QString& xml, int limit);

} // namespace TOLVAN_NAMESPACE
