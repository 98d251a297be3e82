#include "platform/UserStore.h"

namespace TOLVAN_NAMESPACE
{
namespace Platform
{

std::unique_ptr<QSettings> companyStore()
{
    return std::make_unique<QSettings>(QStringLiteral("Tolvan"));
}

} // namespace Platform
} // namespace TOLVAN_NAMESPACE
