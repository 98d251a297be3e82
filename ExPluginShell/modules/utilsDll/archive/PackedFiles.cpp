#include "PackedFiles.h"

#include "ArchiveNames.h"
#include "ArchiveWork.h"

#include <QDir>
#include <QFileInfo>

#include <filesystem>
#include <optional>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr int longestName = 0xFFFF; // bytes; the format has no room for more

class Collector
{
public:
    explicit Collector(ArchiveWork& work)
        : m_work(work)
        , m_archive(realPath(work.task().archive))
        , m_archiveName(QFileInfo(m_archive).fileName())
    {
    }

    /// Adds a file, or a folder and everything below it.
    void add(const QFileInfo& info, const QString& name, int depth)
    {
        const bool isLink = info.isSymLink() && nativeNameRules() == NameRules::Unix;
        const bool isFolder = info.isDir() && !isLink;
        if (const auto problem = problemOf(info, name, isLink, isFolder, depth)) {
            m_work.fail(info.filePath(), *problem);
            return;
        }
        if (!isFolder) {
            if (depth == 0 || info.fileName() != m_archiveName || realPath(info.filePath()) != m_archive) {
                append(info, name, isLink, false);
            }
            return;
        }
        if (!name.isEmpty()) {
            append(info, name + QLatin1Char('/'), false, true);
        }
        addContent(info, name, depth);
    }

    std::vector<PackedFile> files;

private:
    static QString realPath(const QString& path)
    {
        const QFileInfo info(path);
        return QFileInfo(info.absolutePath()).canonicalFilePath() + QLatin1Char('/') + info.fileName();
    }

    void addContent(const QFileInfo& folder, const QString& name, int depth)
    {
        const QDir content(folder.filePath());
        if (!content.isReadable()) {
            m_work.fail(folder.filePath(), ArchiveProblem::AccessDenied);
            return;
        }
        const auto entries = content.entryInfoList(
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
        for (const QFileInfo& entry : entries) {
            if (m_work.stopRequired()) {
                return;
            }
            const bool leadsAway = nativeNameRules() == NameRules::Windows && entry.isDir() &&
                                   (entry.isSymLink() || entry.isJunction());
            if (!leadsAway) {
                const QString below = name.isEmpty() ? QString() : name + QLatin1Char('/');
                add(entry, below + entry.fileName(), depth + 1);
            }
        }
    }

    std::optional<ArchiveProblem> problemOf(const QFileInfo& info, const QString& name, bool isLink,
                                            bool isFolder, int depth) const
    {
        const ArchiveTask& task = m_work.task();
        if (info.filePath().isEmpty() || (!info.exists() && !isLink)) {
            return ArchiveProblem::NotFound;
        }
        if (!isLink && !info.isFile() && !(isFolder && task.acceptFolders)) {
            return ArchiveProblem::NotAFile;
        }
        const bool isBase = isFolder && depth == 0 && !task.baseFolder.isEmpty();
        if (name.toUtf8().size() > longestName || (name.isEmpty() && !isBase) || depth > deepestName) {
            return ArchiveProblem::NameRefused;
        }
        return std::nullopt;
    }

    /// Of a shortcut on Windows Qt reports the size of what it leads to.
    static qint64 ownSize(const QFileInfo& info)
    {
        if (!info.isSymLink()) {
            return info.size();
        }
        std::error_code error;
        const auto size = std::filesystem::file_size(info.filePath().toStdU16String(), error);
        return error ? 0 : static_cast<qint64>(size);
    }

    /// QFileInfo::permissions() would also ask three times what the user of this process may do.
    static QFile::Permissions storedPermissions(const QFileInfo& info)
    {
        QFile::Permissions permissions;
        for (const QFile::Permission permission :
             {QFile::ReadOwner, QFile::WriteOwner, QFile::ExeOwner, QFile::ReadGroup, QFile::WriteGroup,
              QFile::ExeGroup, QFile::ReadOther, QFile::WriteOther, QFile::ExeOther}) {
            if (info.permission(permission)) {
                permissions |= permission;
            }
        }
        return permissions;
    }

    void append(const QFileInfo& info, const QString& name, bool isLink, bool isFolder)
    {
        PackedFile file;
        file.path = info.filePath();
        file.name = name;
        file.size = isLink || isFolder ? 0 : ownSize(info);
        file.lastModified = info.lastModified();
        file.permissions = storedPermissions(info);
        file.isLink = isLink;
        file.isFolder = isFolder;
        files.push_back(std::move(file));
    }

    ArchiveWork& m_work;
    const QString m_archive;
    const QString m_archiveName;
};

/// The name of a top-level file or folder in the archive. Empty for the base folder itself.
QString topName(const QFileInfo& info, const QString& baseFolder)
{
    if (baseFolder.isEmpty()) {
        return info.fileName();
    }
    const QString name = QDir(baseFolder).relativeFilePath(info.absoluteFilePath());
    return name == QLatin1String(".") ? QString() : name;
}

} // namespace

std::vector<PackedFile> filesToPack(ArchiveWork& work)
{
    const ArchiveTask& task = work.task();
    Collector collector(work);
    for (const QString& path : task.files) {
        // Without the separator at its end a folder has a name.
        const QFileInfo info(task.acceptFolders && path.size() > 1 ? QDir::cleanPath(path) : path);
        const QString name = topName(info, task.baseFolder);
        if (leadsOutside(name, nativeNameRules())) {
            work.fail(path, ArchiveProblem::OutsideFolder);
        } else {
            collector.add(info, name, 0);
        }
    }
    return std::move(collector.files);
}

} // namespace TOLVAN_NAMESPACE
