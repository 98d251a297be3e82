#pragma once

#include <QDateTime>
#include <QFile>
#include <QString>
#include <QStringList>

#include <memory>

namespace TOLVAN_NAMESPACE::Platform
{

/// How a step of a FolderWriter ended.
enum class WriteResult {
    Done,
    Outside,  ///< a link leads out of the root
    InTheWay, ///< something else has the name
    Denied,
    Full,
    Failed,
};

/// Creates files, folders and links below a root folder, and nothing outside it.
///
/// On Unix everything is done through the handles of the folders on the way, so that another process can't lead a
/// file out of the root by putting a link in the place of a folder. Links that lie in the root and stay in it are
/// followed. On Windows the folders are named by their paths.
class FolderWriter
{
public:
    FolderWriter();
    ~FolderWriter();
    FolderWriter(const FolderWriter&) = delete;
    FolderWriter& operator=(const FolderWriter&) = delete;

    /// Opens the root and creates it with all missing parents. Links in \a path are followed.
    WriteResult openRoot(const QString& path);
    /// Goes to the folder with these parts below the root and creates what is missing.
    WriteResult enter(const QStringList& parts);
    /// Where the current folder lies below the root, once links are resolved.
    QStringList realParts() const;
    /// Sets the permissions of the current folder; its owner can always use it. Has no effect without
    /// permissions, and for a folder of another user.
    void setPermissions(QFile::Permissions permissions);
    /// Bytes that can be written to the volume of the current folder; -1 if unknown.
    qint64 availableBytes() const;

    /// Begins a file of the current folder. An existing file keeps its content until commit().
    WriteResult begin(const QString& name);
    WriteResult write(const char* data, qint64 length);
    /// Completes the file, which replaces an existing one, also a read-only one.
    /// \param permissions none: those of the existing file, or the system's default
    /// \param modified    invalid: now
    WriteResult commit(QFile::Permissions permissions, const QDateTime& modified);
    /// Removes what was written since begin().
    void discard();

    /// Creates a link in the current folder. A link with the same target may exist already. Windows: Failed.
    WriteResult createLink(const QString& name, const QString& target);

private:
    class Data;
    const std::unique_ptr<Data> m_data;
};

} // namespace TOLVAN_NAMESPACE::Platform
