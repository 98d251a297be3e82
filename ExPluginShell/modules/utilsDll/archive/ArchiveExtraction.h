#pragma once

#include <string>

namespace TOLVAN_NAMESPACE
{

/// Unpacks an archive entry by entry, with the rules of DecompressFiles(). Internal.
/// \return true if every entry was unpacked; false also for an archive that can't be opened or has no entries
bool DecompressFiles(const std::wstring& archive, const std::wstring& folder);

} // namespace TOLVAN_NAMESPACE
