#include "platform/UserStore.h"

namespace TOLVAN_NAMESPACE::Platform
{

std::unique_ptr<QSettings> companyStore()
{
    return std::make_unique<QSettings>(QStringLiteral("Tolvan"));
}

} // namespace TOLVAN_NAMESPACE::Platform
