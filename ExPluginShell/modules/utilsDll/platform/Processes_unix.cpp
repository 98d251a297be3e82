#include "platform/Processes.h"

#include <QFileInfo>

namespace TOLVAN_NAMESPACE::Platform
{

QString currentProcessName()
{
    return QFileInfo(QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget()).fileName();
}

std::optional<FileVersionWords> fileVersionOfProcess(const QString&)
{
    return std::nullopt; // an ELF executable carries no version resource
}

} // namespace TOLVAN_NAMESPACE::Platform
