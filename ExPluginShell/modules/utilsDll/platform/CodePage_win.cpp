#include "platform/CodePage.h"

#include <windows.h>

namespace TOLVAN_NAMESPACE::Platform
{

QString fromSystemCodePage(const QByteArray& bytes)
{
    QString text(bytes.size(), QChar()); // no character has more UTF-16 units than bytes
    const int length = MultiByteToWideChar(CP_OEMCP, MB_ERR_INVALID_CHARS, bytes.constData(), bytes.size(),
                                           reinterpret_cast<wchar_t*>(text.data()), text.size());
    return length > 0 ? text.left(length) : QString();
}

} // namespace TOLVAN_NAMESPACE::Platform
