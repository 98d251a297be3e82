#pragma once

#include "ArchiveExtraction.h" // ArchiveProgress

#include <QString>
#include <QVector>

namespace TOLVAN_NAMESPACE
{

/// Packing files into an archive. Internal; compiled into tests and the showcase.

/// A file and its name in the archive.
struct PackedFile {
    QString path;
    QString name;
};

/// Packs files into a new zip archive, with the rules that CompressFiles() documents.
/// \return false on any failure, and when \a progress ended the work: then there is no new archive
bool packFiles(const QVector<PackedFile>& files, const QString& archive,
               const ArchiveProgress& progress = {});

} // namespace TOLVAN_NAMESPACE
