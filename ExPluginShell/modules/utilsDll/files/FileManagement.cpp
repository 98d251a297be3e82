#include "FileManagement.h"

#include "frame/Logging.h"
#include "platform/FileMoves.h"
#include "platform/FolderContent.h"
#include "platform/ShellSelection.h"
#include "platform/Trash.h"

#include <QDebug>
#include <QStorageInfo>

#include <algorithm>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr int longestPart = 260;   // UTF-16 units
constexpr int tooLongPath = 32767; // UTF-16 units

// Locations of the assertion reports, which are part of the log texts.
constexpr int missingFolderLine = 176;
constexpr int unknownFolderLine = 191;

bool isForbiddenIn(QChar character, bool isPath)
{
    switch (character.unicode()) {
    case '<':
    case '>':
    case '"':
    case '|':
    case '?':
    case '*':
        return true;
    case ':':
    case '/':
    case '\\':
        return !isPath;
    default:
        return false;
    }
}

/// Matches "CON|PRN|...|LPT9" as a whole, ignoring case. A pattern object takes ten times as long, and threads
/// can't share its matching state.
bool isDeviceName(QStringView name)
{
    const auto is = [](QStringView text, QLatin1String device) {
        return text.compare(device, Qt::CaseInsensitive) == 0;
    };
    if (name.size() == 3) {
        return is(name, QLatin1String("CON")) || is(name, QLatin1String("PRN")) ||
               is(name, QLatin1String("AUX")) || is(name, QLatin1String("NUL"));
    }
    if (name.size() != 4 || name.back() < QLatin1Char('1') || name.back() > QLatin1Char('9')) {
        return false;
    }
    return is(name.left(3), QLatin1String("COM")) || is(name.left(3), QLatin1String("LPT"));
}

bool hasTooLongPart(QStringView path)
{
    const QChar separator = QDir::separator();
    auto begin = path.begin();
    while (begin != path.end()) {
        const auto end = std::find(begin, path.end(), separator);
        if (end - begin > longestPart) {
            return true;
        }
        begin = end == path.end() ? end : end + 1;
    }
    return false;
}

QStringView lastPart(QStringView path)
{
    const auto isSeparator = [](QChar c) { return c == QLatin1Char('/') || c == QLatin1Char('\\'); };
    auto begin = path.end();
    while (begin != path.begin() && !isSeparator(*(begin - 1))) {
        --begin;
    }
    return path.mid(begin - path.begin());
}

QString comparedText(const QFileInfo& file, FileCompareCondition condition)
{
    switch (condition) {
    case CompareFullPath:
        return QDir::cleanPath(file.filePath());
    case CompareDirAndBaseName:
        return QDir::cleanPath(file.path()) + file.completeBaseName();
    case CompareFileName:
        return file.fileName();
    case CompareBaseName:
        return file.completeBaseName();
    }
    return {};
}

QString nativeCleanPath(const QString& path)
{
    return QDir::toNativeSeparators(QDir::cleanPath(path));
}

bool movedToTrash(const QString& path, QString* place)
{
    if (!QFileInfo::exists(path)) {
        return false;
    }
    if (Platform::moveToRecycleBin(path, place)) {
        return true;
    }
    UTILSDLL_LOG(LogLevel::Error, "TOLVAN_NAMESPACE::moveFileToTrash")
        << "the recycle bin does not take " << path;
    return false;
}

/// \return the result of the entry handled last; false if there was none
bool removeEntries(Platform::FolderContent folder)
{
    bool removed = false;
    for (const Platform::FolderEntry& entry : folder.entries()) {
        removed = entry.isFolder ? removeEntries(folder.folder(entry)) : folder.removeFile(entry);
        if (!removed) {
            break;
        }
    }
    return removed;
}

} // namespace

bool validateFileName(const QString& name, bool isPath)
{
    const QString path = nativeCleanPath(name);
    if (path.isEmpty() || path.size() >= tooLongPath || hasTooLongPart(path)) {
        return false;
    }
    if (std::any_of(path.begin(), path.end(), [isPath](QChar c) { return isForbiddenIn(c, isPath); }) ||
        path.contains(QLatin1String(".."))) {
        return false;
    }
    return !isDeviceName(isPath ? lastPart(path) : QStringView(path));
}

QString normalizedFilePath(const QString& path)
{
    return QDir::toNativeSeparators(path).toLower();
}

bool isEqualFileOrDirNames(const QFileInfo& a, const QFileInfo& b, FileCompareCondition condition)
{
    return QString::compare(comparedText(a, condition), comparedText(b, condition), Qt::CaseInsensitive) == 0;
}

bool renameFile(const QString& from, const QString& to)
{
    return Platform::moveWithoutReplacing(nativeCleanPath(from), nativeCleanPath(to));
}

ErrorCodes moveFileToTrash(const QString& path)
{
    return movedToTrash(path, nullptr) ? FileOperationSucceeded : FileOperationFailed;
}

TrashReceipt trash(const QString& path)
{
    TrashReceipt receipt;
    receipt.originalPath = QFileInfo(path).absoluteFilePath();
    receipt.isTrashed = movedToTrash(QDir::toNativeSeparators(receipt.originalPath), &receipt.trashPath);
    return receipt;
}

bool restore(const TrashReceipt& receipt)
{
    return !receipt.trashPath.isEmpty() &&
           Platform::restoreFromRecycleBin(receipt.trashPath, receipt.originalPath);
}

bool removeDirectoryContent(const QDir& dir)
{
    return removeEntries(Platform::FolderContent(dir));
}

qint64 availableDiskSpace(const QString& path)
{
    return QStorageInfo(path).bytesAvailable();
}

void selectFilesInShell(const QString& folder, const QStringList& files)
{
    const char* const function = "TOLVAN_NAMESPACE::selectFilesInShell";
    if (folder.isEmpty()) {
        return;
    }
    if (!QFileInfo::exists(folder)) {
        Logging::reportAssertion(function, "FileManagement", missingFolderLine);
        return;
    }
    QStringList existing;
    for (const QString& file : files) {
        if (file.isEmpty()) {
            continue;
        }
        if (QFileInfo::exists(file)) {
            existing += file;
        } else {
            qDebug() << "selectFilesInShell: there is no file" << file;
        }
    }
    if (!Platform::selectInFileBrowser(folder, existing)) {
        Logging::reportAssertion(function, "FileManagement", unknownFolderLine);
    }
}

} // namespace TOLVAN_NAMESPACE
