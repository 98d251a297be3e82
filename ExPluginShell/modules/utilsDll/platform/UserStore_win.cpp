#include "platform/UserStore.h"

namespace TOLVAN_NAMESPACE::Platform
{

std::unique_ptr<QSettings> companyStore()
{
    return std::make_unique<QSettings>(QStringLiteral("HKEY_CURRENT_USER\\Software\\Tolvan\\"),
                                       QSettings::NativeFormat);
}

} // namespace TOLVAN_NAMESPACE::Platform
