#pragma once

#include <QString>

namespace TOLVAN_NAMESPACE::Platform
{

/// Moves or renames a file or a folder. An existing target is never replaced, even if another process creates
/// it at the same moment: of several movers exactly one succeeds, the others fail and change nothing. Across
/// file systems the content is copied beside the target first, so that the target appears complete or not at
/// all.
/// \return whether the move took place
bool moveWithoutReplacing(const QString& from, const QString& to);

} // namespace TOLVAN_NAMESPACE::Platform
