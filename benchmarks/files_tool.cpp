// The file functions as a program, so that they can be timed beside the programs that do the same work.

#include "ArchiveCompression.h"
#include "FileManagement.h"

#include <quazip/JlCompress.h>

#include <QDirIterator>

#include <cstdio>

using namespace TOLVAN_NAMESPACE;

namespace
{

QStringList filesBelow(const QString& folder)
{
    QStringList files;
    QDirIterator walk(folder, QDir::Files);
    while (walk.hasNext()) {
        files += walk.next();
    }
    return files;
}

bool run(const QString& work, const QString& first, const QString& second)
{
    if (work == QLatin1String("pack")) {
        return CompressFiles(filesBelow(second), first);
    }
    if (work == QLatin1String("unpack")) {
        DecompressFiles(first, second);
        return true;
    }
    if (work == QLatin1String("jlpack")) {
        return JlCompress::compressFiles(first, filesBelow(second));
    }
    if (work == QLatin1String("jlunpack")) {
        return !JlCompress::extractDir(first, second).isEmpty();
    }
    if (work == QLatin1String("empty")) {
        return removeDirectoryContent(QDir(first));
    }
    if (work == QLatin1String("qtempty")) {
        return QDir(first).removeRecursively();
    }
    if (work == QLatin1String("trash")) {
        for (const QString& file : filesBelow(first)) {
            if (moveFileToTrash(file) != FileOperationSucceeded) {
                return false;
            }
        }
        return true;
    }
    std::fputs("usage: files_tool pack|jlpack ARCHIVE FOLDER | unpack|jlunpack ARCHIVE FOLDER |\n"
               "       empty|qtempty|trash FOLDER\n",
               stderr);
    return false;
}

} // namespace

int main(int argc, char* argv[])
{
    const auto argument = [&](int i) { return i < argc ? QFile::decodeName(argv[i]) : QString(); };
    return run(argument(1), argument(2), argument(3)) ? 0 : 1;
}
