#include "platform/FolderContent.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace TOLVAN_NAMESPACE::Platform
{

class FolderContent::Data
{
public:
    QString pathOf(const FolderEntry& entry) const
    {
        return dir.filePath(QString::fromStdWString(entry.name));
    }

    QDir dir;
};

FolderContent::FolderContent(const QDir& dir)
    : m_data(new Data{dir})
{
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
    const auto all = m_data->dir.entryInfoList(
        QDir::Files | QDir::AllDirs | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::DirsFirst);
    for (const QFileInfo& entry : all) {
        const bool isFolder = entry.isDir() && !entry.isSymLink() && !entry.isJunction();
        found.push_back({entry.fileName().toStdWString(), isFolder});
    }
    return found;
}

FolderContent FolderContent::folder(const FolderEntry& entry) const
{
    return FolderContent(QDir(m_data->pathOf(entry)));
}

/// The system keeps a link to a folder as a folder.
bool FolderContent::removeFile(const FolderEntry& entry) const
{
    const QString path = m_data->pathOf(entry);
    const QFileInfo info(path);
    return QFile::remove(path) || ((info.isSymLink() || info.isJunction()) && QDir().rmdir(path));
}

} // namespace TOLVAN_NAMESPACE::Platform
