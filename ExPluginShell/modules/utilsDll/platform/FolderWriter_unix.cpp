#include "platform/FolderWriter.h"

#include "platform/HeldSizeSignal.h"

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <deque>
#include <utility>
#include <vector>

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

constexpr int mostLinks = 40; // on the way to one folder
constexpr int mostNameAttempts = 100;

WriteResult resultOf(int error)
{
    switch (error) {
    case EACCES:
    case EPERM:
    case EROFS:
        return WriteResult::Denied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return WriteResult::Full;
    case EEXIST:
    case ENOTDIR:
    case ELOOP:
        return WriteResult::InTheWay;
    default:
        return WriteResult::Failed;
    }
}

class Handle
{
public:
    explicit Handle(int descriptor = -1)
        : m_descriptor(descriptor)
    {
    }
    Handle(Handle&& other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    {
    }
    Handle& operator=(Handle&& other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    ~Handle()
    {
        if (m_descriptor >= 0) {
            close(m_descriptor);
        }
    }
    int get() const { return m_descriptor; }
    int release() { return std::exchange(m_descriptor, -1); }

private:
    int m_descriptor;
};

Handle openFolder(int parent, const QByteArray& name, int flags)
{
    return Handle(openat(parent, name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | flags));
}

mode_t toMode(QFile::Permissions permissions)
{
    // Qt's groups of bits are hexadecimal digits: owner, user, group, others.
    const auto bits = static_cast<unsigned>(permissions);
    return static_cast<mode_t>((bits >> 12 & 7) << 6 | (bits >> 4 & 7) << 3 | (bits & 7));
}

QByteArray linkTarget(int folder, const QByteArray& name)
{
    char target[PATH_MAX];
    const auto length = readlinkat(folder, name.constData(), target, sizeof target);
    return length < 0 ? QByteArray() : QByteArray(target, static_cast<int>(length));
}

} // namespace

class FolderWriter::Data
{
public:
    struct Folder {
        QString name;
        Handle handle;
    };

    int current() const { return way.empty() ? root.get() : way.back().handle.get(); }
    WriteResult follow(std::deque<QString>& parts, const QByteArray& target);
    WriteResult step(std::deque<QString>& parts, int& links);

    Handle root;
    QString rootPath;
    QStringList entered;
    std::vector<Folder> way; ///< the folders below the root, down to the current one

    Handle file;
    QByteArray fileName;
    QByteArray writtenName; ///< another one while an existing file is replaced
};

/// Puts the target of a link in front of the parts that are left.
WriteResult FolderWriter::Data::follow(std::deque<QString>& parts, const QByteArray& target)
{
    QString text = QFile::decodeName(target);
    if (text.startsWith(QLatin1Char('/'))) {
        const QString clean = QDir::cleanPath(text) + QLatin1Char('/');
        const QString inside = rootPath.endsWith(QLatin1Char('/')) ? rootPath : rootPath + QLatin1Char('/');
        if (!clean.startsWith(inside)) {
            return WriteResult::Outside;
        }
        way.clear();
        text = clean.mid(inside.size());
    }
    const QStringList names = text.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    parts.insert(parts.begin(), names.begin(), names.end());
    return WriteResult::Done;
}

/// Takes the first of the parts.
WriteResult FolderWriter::Data::step(std::deque<QString>& parts, int& links)
{
    const QString part = parts.front();
    parts.pop_front();
    if (part == QLatin1String(".")) {
        return WriteResult::Done;
    }
    if (part == QLatin1String("..")) {
        if (way.empty()) {
            return WriteResult::Outside;
        }
        way.pop_back();
        return WriteResult::Done;
    }
    const QByteArray name = QFile::encodeName(part);
    Handle folder = openFolder(current(), name, O_NOFOLLOW);
    if (folder.get() < 0 && errno == ENOENT && mkdirat(current(), name.constData(), 0777) == 0) {
        folder = openFolder(current(), name, O_NOFOLLOW);
    }
    if (folder.get() >= 0) {
        way.push_back({part, std::move(folder)});
        return WriteResult::Done;
    }
    const int reason = errno;
    const QByteArray target = linkTarget(current(), name);
    if (target.isEmpty()) {
        return resultOf(reason);
    }
    return ++links > mostLinks ? WriteResult::Outside : follow(parts, target);
}

FolderWriter::FolderWriter()
    : m_data(std::make_unique<Data>())
{
}

FolderWriter::~FolderWriter()
{
    discard();
}

WriteResult FolderWriter::openRoot(const QString& path)
{
    const QString folder = path.isEmpty() ? QStringLiteral(".") : path;
    QDir().mkpath(folder);
    m_data->rootPath = QFileInfo(folder).canonicalFilePath();
    m_data->root = openFolder(AT_FDCWD, QFile::encodeName(folder), 0);
    return m_data->root.get() >= 0 ? WriteResult::Done : resultOf(errno);
}

WriteResult FolderWriter::enter(const QStringList& parts)
{
    Data& data = *m_data;
    if (parts == data.entered) {
        return WriteResult::Done;
    }
    data.way.clear();
    data.entered.clear();
    std::deque<QString> left(parts.begin(), parts.end());
    int links = 0;
    while (!left.empty()) {
        const WriteResult result = data.step(left, links);
        if (result != WriteResult::Done) {
            data.way.clear();
            return result;
        }
    }
    data.entered = parts;
    return WriteResult::Done;
}

QStringList FolderWriter::realParts() const
{
    QStringList parts;
    for (const Data::Folder& folder : m_data->way) {
        parts += folder.name;
    }
    return parts;
}

void FolderWriter::setPermissions(QFile::Permissions permissions)
{
    if (permissions) {
        fchmod(m_data->current(), S_IRWXU | toMode(permissions));
    }
}

qint64 FolderWriter::availableBytes() const
{
    struct statvfs volume = {};
    if (fstatvfs(m_data->current(), &volume) != 0) {
        return -1;
    }
    return static_cast<qint64>(volume.f_bavail) * static_cast<qint64>(volume.f_frsize);
}

WriteResult FolderWriter::begin(const QString& name)
{
    Data& data = *m_data;
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    data.fileName = QFile::encodeName(name);
    data.writtenName = data.fileName;
    data.file = Handle(openat(data.current(), data.fileName.constData(), flags, 0666));
    if (data.file.get() >= 0 || errno != EEXIST) {
        return data.file.get() >= 0 ? WriteResult::Done : resultOf(errno);
    }
    struct stat existing = {};
    if (fstatat(data.current(), data.fileName.constData(), &existing, AT_SYMLINK_NOFOLLOW) != 0) {
        return resultOf(errno);
    }
    if (!S_ISREG(existing.st_mode)) {
        return WriteResult::InTheWay;
    }
    for (int attempt = 0; attempt < mostNameAttempts && data.file.get() < 0; ++attempt) {
        data.writtenName = ".unpacking-" + QByteArray::number(QRandomGenerator::global()->generate(), 36);
        data.file = Handle(openat(data.current(), data.writtenName.constData(), flags, 0600));
    }
    if (data.file.get() < 0) {
        return resultOf(errno);
    }
    // Whose file it was and who may use it stays as it is, as far as the user may decide that.
    if (existing.st_uid != geteuid() || existing.st_gid != getegid()) {
        static_cast<void>(fchown(data.file.get(), existing.st_uid, existing.st_gid) == 0);
    }
    fchmod(data.file.get(), existing.st_mode & 07777);
    return WriteResult::Done;
}

WriteResult FolderWriter::write(const char* bytes, qint64 length)
{
    const HeldSizeSignal held;
    while (length > 0) {
        const auto written = ::write(m_data->file.get(), bytes, static_cast<std::size_t>(length));
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return resultOf(errno);
        }
        bytes += written;
        length -= written;
    }
    return WriteResult::Done;
}

WriteResult FolderWriter::commit(QFile::Permissions permissions, const QDateTime& modified)
{
    Data& data = *m_data;
    const int file = data.file.get();
    const bool replaces = data.writtenName != data.fileName;
    if (permissions) {
        fchmod(file, S_IRUSR | toMode(permissions));
    }
    if (modified.isValid()) {
        const timespec times[2] = {{0, UTIME_OMIT}, {static_cast<time_t>(modified.toSecsSinceEpoch()), 0}};
        futimens(file, times);
    }
    // The old content is the only copy until the new one is on the disk.
    if ((replaces && fsync(file) != 0) || close(data.file.release()) != 0 ||
        (replaces && renameat(data.current(), data.writtenName.constData(), data.current(),
                              data.fileName.constData()) != 0)) {
        const WriteResult result = resultOf(errno);
        unlinkat(data.current(), data.writtenName.constData(), 0);
        data.file = Handle();
        return result;
    }
    return WriteResult::Done;
}

void FolderWriter::discard()
{
    if (m_data->file.get() >= 0) {
        m_data->file = Handle();
        unlinkat(m_data->current(), m_data->writtenName.constData(), 0);
    }
}

WriteResult FolderWriter::createLink(const QString& name, const QString& target)
{
    const QByteArray link = QFile::encodeName(name);
    const QByteArray destination = QFile::encodeName(target);
    if (symlinkat(destination.constData(), m_data->current(), link.constData()) == 0) {
        return WriteResult::Done;
    }
    const int reason = errno;
    return linkTarget(m_data->current(), link) == destination ? WriteResult::Done : resultOf(reason);
}

} // namespace TOLVAN_NAMESPACE::Platform
