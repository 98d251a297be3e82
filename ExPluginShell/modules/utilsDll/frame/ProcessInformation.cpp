#include "ProcessInformation.h"

#include "platform/Processes.h"

namespace UtilsDll
{

QString currentProcessName()
{
    return TOLVAN_NAMESPACE::Platform::currentProcessName();
}

BinaryVersion binaryFileVersionByProcessName(const QString& processName)
{
    BinaryVersion version;
    if (processName.isEmpty()) {
        return version;
    }
    if (const auto words = TOLVAN_NAMESPACE::Platform::fileVersionOfProcess(processName)) {
        version.major = words->mostSignificant >> 16;
        version.minor = words->mostSignificant & 0xFFFF;
        version.build = words->leastSignificant >> 16;
        version.revision = words->leastSignificant & 0xFFFF;
    }
    return version;
}

} // namespace UtilsDll
