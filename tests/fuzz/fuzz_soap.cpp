#include "soap/qtsoap.h"

#include <cstdint>
#include <cstdlib>

using namespace TOLVAN_NAMESPACE;

namespace
{

/// Something that must hold for every document does not.
[[noreturn]] void broken(const char* what, const QtSoapMessage& message)
{
    qCritical("%s: %s", what, qPrintable(message.errorString()));
    std::abort();
}

/// Touches every value the way a client does.
int visit(const QtSoapType& value)
{
    int seen = value.toString().size() + value.toInt() + int(value.toBool()) + value.name().name().size();
    for (int k = 0; k < value.count(); ++k) {
        seen ^= visit(value[k]);
    }
    return seen;
}

} // namespace

/// Any bytes are either a message that can be written and read again, or a fault with a text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QtSoapMessage message;
    if (!message.setContent(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)))) {
        if (!message.isFault() || message.errorString().isEmpty() || message.errorString().size() > 2000) {
            broken("a refusal without a fault", message);
        }
    }
    visit(message.method());
    visit(message.faultDetail());
    QtSoapMessage again;
    if (!again.setContent(message.toXmlString().toUtf8())) {
        broken("what was written cannot be read", again);
    }
    const QString xml = again.toXmlString();
    if (!message.setContent(xml.toUtf8()) || message.toXmlString() != xml) {
        broken("what was read is written differently", message);
    }
    return 0;
}
