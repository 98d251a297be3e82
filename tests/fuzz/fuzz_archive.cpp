#include "archive/ArchiveWork.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

namespace
{

constexpr qint64 enough = 1 << 20; // a small archive may expand to a large one

QStringList entriesOf(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace

/// Nothing may be written outside the folder that is unpacked into.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const QTemporaryDir scratch(QStringLiteral("/dev/shm/fuzz_archive-XXXXXX"));
    const QString archive = scratch.filePath(QStringLiteral("archive"));
    const QString box = scratch.filePath(QStringLiteral("box"));
    const QString out = box + QStringLiteral("/out");
    QDir().mkpath(out);
    QFile file(archive);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size)) < 0) {
        qFatal("no room for the archive");
    }
    file.close();

    TOLVAN_NAMESPACE::ArchiveTask task = TOLVAN_NAMESPACE::ArchiveTask::unpack(archive, out);
    task.sizeLimit = enough;
    TOLVAN_NAMESPACE::ArchiveWork work(task, {}, {});
    unpackArchive(work);
    if (entriesOf(box) != QStringList(QStringLiteral("out")) || entriesOf(scratch.path()).size() != 2) {
        qCritical("something was written beside the folder");
        std::abort();
    }
    QDir(out).removeRecursively();
    return 0;
}
