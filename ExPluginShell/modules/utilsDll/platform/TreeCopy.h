#pragma once

#include <sys/types.h>

#include <filesystem>
#include <map>
#include <utility>

namespace TOLVAN_NAMESPACE::Platform
{

/// Copies files, links and folders to another file system. Unix only.
///
/// Kept are times, permissions and holes; extended attributes and the owner as far as the target and the rights
/// of the user allow it; and second names (hard links) of one file among everything that one object copies.
class TreeCopy
{
public:
    /// Copies a file, a link, or a folder with everything below it. The content is on the disk afterwards.
    /// \param to path that is not in use
    /// \return false if something could not be copied: no rights, no space, or a socket or a device; the copy is
    ///         incomplete then
    bool copy(const std::filesystem::path& from, const std::filesystem::path& to);

private:
    std::map<std::pair<dev_t, ino_t>, std::filesystem::path> m_copied; ///< files with more than one name
};

} // namespace TOLVAN_NAMESPACE::Platform
