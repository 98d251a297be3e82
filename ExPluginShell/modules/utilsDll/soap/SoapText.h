#pragma once

#include "qtsoaptype.h"

/// Internal: values as XML Schema writes them, and the characters XML can carry.
namespace TOLVAN_NAMESPACE::SoapText
{

/// The variant that a value of \a type with the text \a text holds; the text itself where it is not of that
/// type.
QVariant toVariant(QtSoapType::Type type, const QString& text);

/// \a value as the text of a value of \a type: dates in the ISO form, bytes in base64 or hexadecimal digits.
QString lexical(QtSoapType::Type type, const QVariant& value);

/// \a value as XML Schema writes it.
QString fromVariant(const QVariant& value);

/// \a name as an XML name without colon, its bad characters as `_xHHHH_`; \a fallback for an empty one.
QString elementName(const QString& name, const QString& fallback);

/// Whether \a name is an XML name without colon.
bool isElementName(const QString& name);

/// Whether clients may give the prefix \a prefix a meaning of their own: it is an XML name, and none of those that
/// messages are written with.
bool isOwnPrefix(const QString& prefix);

/// Appends \a text to \a xml, escaped for the contents of an element and for an attribute in double quotes.
void appendEscaped(QString& xml, const QString& text);

/// \a text with every character that XML cannot carry replaced by U+FFFD.
QString carriable(const QString& text);

/// Writes a warning about a call that was refused.
void warn(const QString& text);

} // namespace TOLVAN_NAMESPACE::SoapText
