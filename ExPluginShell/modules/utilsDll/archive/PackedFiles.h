#pragma once

#include <QDateTime>
#include <QFile>
#include <QString>

#include <vector>

namespace TOLVAN_NAMESPACE
{

class ArchiveWork;

/// A file, link or folder that is to be packed, and its name in the archive. Internal.
struct PackedFile {
    QString path;
    QString name; ///< a folder ends with "/"
    qint64 size = 0;
    QDateTime lastModified;
    QFile::Permissions permissions;
    bool isLink = false;
    bool isFolder = false;
};

/// What a task names, with everything below its folders, in an order that depends on the names only. What can't
/// be packed is reported to \a work.
std::vector<PackedFile> filesToPack(ArchiveWork& work);

} // namespace TOLVAN_NAMESPACE
