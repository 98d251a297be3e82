#pragma once

#include <QByteArray>
#include <QFile>
#include <QIODevice>
#include <QString>

#include <optional>

namespace TOLVAN_NAMESPACE::Platform
{

/// Writes the new content of a file and puts it in the place of the old one, whole or not at all.
///
/// The content goes to a temporary file beside the target. commit() flushes it, checks every result and moves
/// it over the target, so that a reader, a crash, a full disk or a size limit leaves the old content or the
/// new one. The new file gets the owner, the group, the mode and the access list of the old one.
///
/// The target is overwritten in place where it can't be replaced: the folder refuses a new file, a sticky
/// folder or a lock protects the old one, or its owner can't be kept. The disk space is reserved first, so
/// that a full disk leaves the old content then too; only a crash can leave a mixture.
///
/// A link is followed: the file that it leads to is replaced. The position can be changed with seek().
///
/// \code
/// FileReplacement file(path);
/// const bool done = file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
/// \endcode
class FileReplacement : public QIODevice
{
public:
    explicit FileReplacement(const QString& path);
    /// Cancels what was not committed: the target is untouched.
    ~FileReplacement() override;

    /// Makes the temporary file. \param mode QIODevice::WriteOnly
    /// \return false if the target is no file or can't be written
    bool open(OpenMode mode) override;
    /// Puts the content in the place of the target. Blocks until the disk has it; on Windows it waits at most
    /// a second for programs that have the target open.
    /// \return whether all writes went through and the target holds the content
    bool commit();
    /// Removes the temporary file.
    void cancel();

    /// Gives the target these permissions instead of its old ones.
    void setPermissions(QFile::Permissions permissions) { m_permissions = permissions; }

    bool isSequential() const override { return false; }
    qint64 size() const override { return m_size; }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* data, qint64 length) override;

private:
    bool openTemporary(const QString& folder);
    bool overwriteTarget();

    // These ask the system.
    static bool createFile(QFile& file, bool isPrivate);
    static qint64 writeBlock(QFile& file, const char* data, qint64 length);
    static bool reserve(QFile& file, qint64 size);
    static bool flushToDisk(QFile& file);
    static bool keepRights(QFile& file, const QString& target);
    static bool moveOver(const QString& from, const QString& to);

    QString m_target;
    QString m_temporary; ///< empty while there is none
    QFile m_file;
    qint64 m_size = 0;
    std::optional<QFile::Permissions> m_permissions;
    bool m_replaces = false;
    bool m_isBeside = false;
    bool m_failed = false;
};

/// Replaces a file by \a content, or creates it. \return whether the file holds it; false leaves the old one
bool replaceFile(const QString& path, const QByteArray& content);

} // namespace TOLVAN_NAMESPACE::Platform
