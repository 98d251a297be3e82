#include "platform/Processes.h"

#include <QFileInfo>

namespace TOLVAN_NAMESPACE::Platform
{

QString currentProcessName()
{
    QString path = QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget();
    // The system marks the name of a program that was deleted or replaced while it runs.
    const QLatin1String mark(" (deleted)");
    if (path.endsWith(mark) && !QFileInfo::exists(path)) {
        path.chop(mark.size());
    }
    return QFileInfo(path).fileName();
}

std::optional<FileVersionWords> fileVersionOfProcess(const QString&)
{
    return std::nullopt; // an ELF executable carries no version resource
}

} // namespace TOLVAN_NAMESPACE::Platform
