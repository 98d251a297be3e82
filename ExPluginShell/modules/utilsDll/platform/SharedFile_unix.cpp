#include "platform/SharedFile.h"

namespace TOLVAN_NAMESPACE
{
namespace Platform
{

bool openSharedFile(QFile& file, QIODevice::OpenMode mode)
{
    return file.open(mode | QIODevice::ExistingOnly);
}

bool isWorthReplacingAgain(const QString&, int)
{
    return false;
}

} // namespace Platform
} // namespace TOLVAN_NAMESPACE
