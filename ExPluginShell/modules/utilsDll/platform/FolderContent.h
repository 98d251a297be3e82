#pragma once

#include <filesystem>
#include <memory>
#include <vector>

class QDir;

namespace TOLVAN_NAMESPACE::Platform
{

/// A file, a link or a folder in a folder.
struct FolderEntry {
    std::filesystem::path::string_type name; ///< the system's own form; need not be valid text
    bool isFolder;                           ///< false for a link to a folder
};

/// The entries of a folder, which are removed one by one. On Unix no link is followed, even if another process
/// replaces a folder with one meanwhile.
class FolderContent
{
public:
    /// \param dir the folder, with its name filters, which hold for files; may itself be named by a link
    explicit FolderContent(const QDir& dir);
    ~FolderContent();
    FolderContent(FolderContent&& other) noexcept;
    FolderContent& operator=(FolderContent&&) = delete;

    /// All entries, including hidden and system ones: folders first, both sorted by name. Empty if the folder
    /// is missing or can't be read.
    std::vector<FolderEntry> entries();
    /// One of the folders among the entries. Name filters do not apply to its content.
    FolderContent folder(const FolderEntry& entry) const;
    /// Deletes a file or a link.
    /// \return whether it was deleted
    bool removeFile(const FolderEntry& entry) const;

private:
    class Data;
    explicit FolderContent(std::unique_ptr<Data> data);

    std::unique_ptr<Data> m_data;
};

} // namespace TOLVAN_NAMESPACE::Platform
