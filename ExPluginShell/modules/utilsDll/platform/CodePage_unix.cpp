#include "platform/CodePage.h"

namespace TOLVAN_NAMESPACE::Platform
{

QString fromSystemCodePage(const QByteArray&)
{
    return {};
}

} // namespace TOLVAN_NAMESPACE::Platform
