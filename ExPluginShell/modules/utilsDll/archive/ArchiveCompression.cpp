#include "ArchiveCompression.h"

#include "ArchiveExtraction.h"
#include "ArchivePacking.h"

#include <QDir>
#include <QFileInfo>

namespace TOLVAN_NAMESPACE
{

bool CompressFiles(const QStringList& files, const QString& archive)
{
    QVector<PackedFile> entries;
    entries.reserve(files.size());
    for (const QString& file : files) {
        entries += PackedFile{file, QFileInfo(file).fileName()};
    }
    return packFiles(entries, archive);
}

void DecompressFiles(const QString& archive, const QString& folder)
{
    if (!QDir(folder).exists()) {
        QDir().mkpath(folder);
    }
    extractEntries(archive, folder);
}

} // namespace TOLVAN_NAMESPACE
