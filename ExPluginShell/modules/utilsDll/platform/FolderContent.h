#pragma once

#include <filesystem>
#include <memory>
#include <vector>

class QDir;

namespace TOLVAN_NAMESPACE
{
namespace Platform
{

/// A file, a link or a folder in a folder.
struct FolderEntry {
    std::filesystem::path::string_type name; ///< as the system has it, also where it is no text
    bool isFolder;                           ///< a link to a folder is none
};

/// What is in a folder, to be removed one by one. No link is followed on the way, also when another process
/// puts one in the place of a folder meanwhile (where the system lets that be seen).
class FolderContent
{
public:
    /// \param dir the folder, with its name filters, which hold for files; may itself be named by a link
    explicit FolderContent(const QDir& dir);
    ~FolderContent();
    FolderContent(FolderContent&& other) noexcept;
    FolderContent& operator=(FolderContent&&) = delete;

    /// All entries, hidden and system ones included: folders first, each kind in the order of the names. None
    /// when the folder is not there or can't be read.
    std::vector<FolderEntry> entries();
    /// One of the folders among the entries; its own content knows no name filters.
    FolderContent folder(const FolderEntry& entry) const;
    /// Deletes a file or a link.
    /// \return whether it is gone
    bool removeFile(const FolderEntry& entry) const;

private:
    class Data;
    explicit FolderContent(std::unique_ptr<Data> data);

    std::unique_ptr<Data> m_data;
};

} // namespace Platform
} // namespace TOLVAN_NAMESPACE
