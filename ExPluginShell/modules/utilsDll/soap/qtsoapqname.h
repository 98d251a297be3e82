#pragma once

#include "../utilsdll_global.h"

#include <QString>

/// \file
/// Names in XML, with their namespaces.

namespace TOLVAN_NAMESPACE
{

/// \brief A local name and the URI of its namespace; either may be empty.
///
/// A name without URI takes the default namespace in force where it is written: an argument without URI ends
/// up in the namespace of its method.
class UTILSDLL_EXPORT QtSoapQName
{
public:
    /// The name \a name in the namespace \a uri.
    QtSoapQName(const QString& name = QString(), const QString& uri = QString());

    /// A copy.
    QtSoapQName(const QtSoapQName&) = default;
    ~QtSoapQName();

    /// Takes over name and URI.
    QtSoapQName& operator=(const QtSoapQName&) = default;

    /// Sets the name to \a s and empties the URI.
    QtSoapQName& operator=(const QString& s);

    /// The local name.
    QString name() const { return m_name; }

    /// The namespace's URI.
    QString uri() const { return m_uri; }

private:
    QString m_name;
    QString m_uri;
};

/// \brief Whether \a n1 is what the key \a n2 asks for; case does not matter.
///
/// The comparison is not symmetric: a key without URI matches the name in any namespace, a key with a URI is
/// compared as URI and name joined.
UTILSDLL_EXPORT bool operator==(const QtSoapQName& n1, const QtSoapQName& n2);

/// The order that goes with `operator==`: by name alone when \a n2 has no URI, else by URI and name joined.
UTILSDLL_EXPORT bool operator<(const QtSoapQName& n1, const QtSoapQName& n2);

} // namespace TOLVAN_NAMESPACE
