#include "platform/FileMoves.h"
#include "platform/KnownFolders.h"
#include "platform/Trash.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <optional>

// The layout of the freedesktop.org trash, version 1.0: a folder with "files" and "info", where
// "info" holds for each file a text with its old path and the time.

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

constexpr int longestFileName = 255;
const QLatin1String infoSuffix(".trashinfo");

struct TrashFolder {
    QString path;
    QString pathsRelativeTo; ///< the top folder of its file system; empty for the user's own trash
};

std::optional<struct stat> statusOf(const QString& path)
{
    struct stat status = {};
    if (lstat(QFile::encodeName(path).constData(), &status) != 0) {
        return std::nullopt;
    }
    return status;
}

/// Creates a folder that only the user can read, if it is missing. A link is not accepted: the file would
/// leave the file system, or reach another user.
bool ensurePrivateFolder(const QString& path)
{
    const auto before = statusOf(path);
    if (!before) {
        return mkdir(QFile::encodeName(path).constData(), S_IRWXU) == 0;
    }
    return S_ISDIR(before->st_mode) && before->st_uid == getuid();
}

bool prepare(const TrashFolder& trash)
{
    return ensurePrivateFolder(trash.path) && ensurePrivateFolder(trash.path + QStringLiteral("/files")) &&
           ensurePrivateFolder(trash.path + QStringLiteral("/info"));
}

std::optional<TrashFolder> trashOfUser()
{
    const QString data = knownFolder(KnownFolder::LocalAppData);
    if (data.isEmpty() || !QDir().mkpath(data)) {
        return std::nullopt;
    }
    // The desktops accept a link to another folder of the user here.
    const QString given = data + QStringLiteral("/Trash");
    const QString real = QFileInfo(given).canonicalFilePath();
    const TrashFolder trash{real.isEmpty() ? given : real, {}};
    return prepare(trash) ? std::make_optional(trash) : std::nullopt;
}

/// The highest folder above \a folder that is still on the same file system.
QString topFolder(const QString& folder, dev_t device)
{
    QDir top(folder);
    for (QDir above = top; above.cdUp(); top = above) {
        const auto status = statusOf(above.path());
        if (!status || status->st_dev != device) {
            break;
        }
    }
    return top.path();
}

std::optional<TrashFolder> trashOfFileSystem(const QString& top)
{
    const QString user = QString::number(getuid());
    const QString shared = QDir(top).filePath(QStringLiteral(".Trash"));
    const auto status = statusOf(shared);
    if (status && S_ISDIR(status->st_mode) && (status->st_mode & S_ISVTX)) {
        const TrashFolder trash{shared + QLatin1Char('/') + user, top};
        if (prepare(trash)) {
            return trash;
        }
    }
    const TrashFolder own{QDir(top).filePath(QStringLiteral(".Trash-") + user), top};
    if (!prepare(own)) {
        return std::nullopt;
    }
    return own;
}

/// At most \a length bytes, and no part of a character at the end.
QByteArray shortened(const QByteArray& text, int length)
{
    if (text.size() <= length) {
        return text;
    }
    while (length > 0 && (static_cast<unsigned char>(text.at(length)) & 0xC0) == 0x80) {
        --length;
    }
    return text.left(length);
}

/// The first free name is that of the file; then a number stands before its suffix. Shortened where the name
/// of the info file would become too long.
QByteArray nameInTrash(const QByteArray& fileName, int attempt)
{
    const QByteArray number = attempt == 1 ? QByteArray() : '.' + QByteArray::number(attempt);
    const int dot = fileName.lastIndexOf('.');
    const QByteArray base = dot > 0 ? fileName.left(dot) : fileName;
    const int room = longestFileName - infoSuffix.size() - 1 - number.size();
    const QByteArray suffix = shortened(fileName.mid(base.size()), qMax(room / 2, room - base.size()));
    return shortened(base, room - suffix.size()) + number + suffix;
}

/// The path is percent-encoded: line feeds, percent signs and bytes that are no text are restored exactly.
QByteArray infoText(const QString& path)
{
    return "[Trash Info]\nPath=" + QFile::encodeName(path).toPercentEncoding("/") + "\nDeletionDate=" +
           QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-ddThh:mm:ss")).toLatin1() + '\n';
}

/// Creates the info file exclusively; that reserves the name in "files" as well.
bool claimName(const QString& infoFile, const QByteArray& text, bool& taken)
{
    const QByteArray path = QFile::encodeName(infoFile);
    const int file = open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    taken = file < 0 && errno == EEXIST;
    if (file < 0) {
        return false;
    }
    const bool written = write(file, text.constData(), static_cast<std::size_t>(text.size())) == text.size();
    const bool closed = close(file) == 0;
    if (!written || !closed) {
        unlink(path.constData());
    }
    return written && closed;
}

bool moveInto(const TrashFolder& trash, const QString& folder, const QString& fileName, QString* place)
{
    const QString path = QDir(folder).filePath(fileName);
    const QByteArray text =
        infoText(trash.pathsRelativeTo.isEmpty() ? path : QDir(trash.pathsRelativeTo).relativeFilePath(path));
    for (int attempt = 1; attempt < 100000; ++attempt) {
        const QString name = QFile::decodeName(nameInTrash(QFile::encodeName(fileName), attempt));
        const QString infoFile = trash.path + QStringLiteral("/info/") + name + infoSuffix;
        bool taken = false;
        if (!claimName(infoFile, text, taken)) {
            if (taken) {
                continue;
            }
            return false;
        }
        const QString target = trash.path + QStringLiteral("/files/") + name;
        if (moveWithoutReplacing(path, target)) {
            if (place) {
                *place = target;
            }
            return true;
        }
        QFile::remove(infoFile);
        if (!statusOf(target)) { // not a left-over file without info, but a move that is refused
            return false;
        }
    }
    return false;
}

} // namespace

bool moveToRecycleBin(const QString& path, QString* place)
{
    const QFileInfo file(QDir::cleanPath(path));
    const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
    // The folder decides: on overlay file systems a file may report another device than the folder it lies in.
    const auto status = statusOf(folder);
    const auto home = trashOfUser();
    const auto homeStatus = home ? statusOf(home->path) : std::nullopt;
    if (!status || !homeStatus || file.fileName().isEmpty()) {
        return false;
    }
    if (homeStatus->st_dev != status->st_dev) {
        const auto other = trashOfFileSystem(topFolder(folder, status->st_dev));
        if (other && moveInto(*other, folder, file.fileName(), place)) {
            return true;
        }
    }
    return moveInto(*home, folder, file.fileName(), place);
}

bool restoreFromRecycleBin(const QString& place, const QString& path)
{
    const QFileInfo file(place);
    QDir().mkpath(QFileInfo(path).absolutePath());
    if (!moveWithoutReplacing(place, path)) {
        return false;
    }
    QFile::remove(QDir::cleanPath(file.path() + QStringLiteral("/../info/") + file.fileName() + infoSuffix));
    return true;
}

} // namespace TOLVAN_NAMESPACE::Platform
