#include "platform/Processes.h"

#include <QFileInfo>

namespace TOLVAN_NAMESPACE
{
namespace Platform
{

QString currentProcessName()
{
    return QFileInfo(QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget()).fileName();
}

std::optional<FileVersionWords> fileVersionOfProcess(const QString&)
{
    return std::nullopt; // an ELF executable carries no version resource
}

} // namespace Platform
} // namespace TOLVAN_NAMESPACE
