#pragma once

#include "qtsoapuris.h"

#include <QLatin1String>

/// Internal: the namespaces as they are written and recognised.
namespace TOLVAN_NAMESPACE::SoapUris
{

/// A Latin-1 text known to every compiler at compile time.
template <std::size_t Size>
constexpr QLatin1String literal(const char (&text)[Size])
{
    return QLatin1String(text, static_cast<int>(Size) - 1);
}

inline constexpr QLatin1String Envelope = literal(SOAPv11_ENVELOPE);
inline constexpr QLatin1String Encoding = literal(SOAPv11_ENCODING);
inline constexpr QLatin1String Xml = literal(XML_NAMESPACE);
inline constexpr QLatin1String Schema = literal("http://www.w3.org/2001/XMLSchema");
inline constexpr QLatin1String SchemaInstance = literal("http://www.w3.org/2001/XMLSchema-instance");

/// Whether \a uri is one of the namespaces of `xsi:type`: those of 1999, 2000 and 2001.
template <class Text>
bool isSchemaInstance(const Text& uri)
{
    return uri == SchemaInstance || uri == QLatin1String(XML_SCHEMA_INSTANCE) ||
           uri == QLatin1String("http://www.w3.org/2000/10/XMLSchema-instance");
}

} // namespace TOLVAN_NAMESPACE::SoapUris
