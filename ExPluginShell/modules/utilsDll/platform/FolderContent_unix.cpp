#include "platform/FolderContent.h"

#include <QDir>
#include <QFile>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <tuple>

namespace TOLVAN_NAMESPACE::Platform
{

/// Every call uses the open folder: the system resolves no path for each file, and no other process can
/// exchange the folder.
class FolderContent::Data
{
public:
    Data(int parent, const char* name, int flags)
    {
        const int descriptor = openat(parent, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC | flags);
        stream = descriptor >= 0 ? fdopendir(descriptor) : nullptr;
        if (descriptor >= 0 && !stream) {
            close(descriptor);
        }
    }
    ~Data()
    {
        if (stream) {
            closedir(stream);
        }
    }
    Data(const Data&) = delete;
    Data& operator=(const Data&) = delete;

    bool isFolder(const dirent& entry) const
    {
        if (entry.d_type != DT_UNKNOWN) {
            return entry.d_type == DT_DIR;
        }
        struct stat status = {};
        return fstatat(dirfd(stream), entry.d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
               S_ISDIR(status.st_mode);
    }
    bool isWanted(const FolderEntry& entry) const
    {
        return entry.isFolder || nameFilters.isEmpty() ||
               QDir::match(nameFilters, QFile::decodeName(entry.name.c_str()));
    }

    DIR* stream = nullptr;
    QStringList nameFilters;
};

FolderContent::FolderContent(const QDir& dir)
    : m_data(std::make_unique<Data>(AT_FDCWD, QFile::encodeName(dir.path()).constData(), 0))
{
    if (dir.nameFilters() != QStringList(QStringLiteral("*"))) {
        m_data->nameFilters = dir.nameFilters();
    }
}

FolderContent::FolderContent(std::unique_ptr<Data> data)
    : m_data(std::move(data))
{
}

FolderContent::FolderContent(FolderContent&& other) noexcept = default;
FolderContent::~FolderContent() = default;

std::vector<FolderEntry> FolderContent::entries()
{
    std::vector<FolderEntry> found;
    errno = 0;
    while (const dirent* const item = m_data->stream ? readdir(m_data->stream) : nullptr) {
        FolderEntry entry{item->d_name, m_data->isFolder(*item)};
        if (entry.name != "." && entry.name != ".." && m_data->isWanted(entry)) {
            found.push_back(std::move(entry));
        }
        errno = 0;
    }
    if (errno != 0) {
        return {}; // what could not be read might have come first
    }
    std::sort(found.begin(), found.end(), [](const FolderEntry& a, const FolderEntry& b) {
        return std::tie(b.isFolder, a.name) < std::tie(a.isFolder, b.name);
    });
    return found;
}

FolderContent FolderContent::folder(const FolderEntry& entry) const
{
    return FolderContent(std::make_unique<Data>(dirfd(m_data->stream), entry.name.c_str(), O_NOFOLLOW));
}

bool FolderContent::removeFile(const FolderEntry& entry) const
{
    return unlinkat(dirfd(m_data->stream), entry.name.c_str(), 0) == 0;
}

} // namespace TOLVAN_NAMESPACE::Platform
