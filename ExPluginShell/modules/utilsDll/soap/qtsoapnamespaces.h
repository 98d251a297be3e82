#pragma once

#include "../utilsdll_global.h"

#include <QHash>
#include <QMutex>
#include <QString>

namespace TOLVAN_NAMESPACE
{

/// \brief The prefixes that messages are written with.
///
/// Known from the start are SOAP-ENV, SOAP-ENC, xsi, xsd and xml. A namespace without prefix is written as the
/// default namespace of the element that brings it. One object for the process, usable from any thread.
class UTILSDLL_EXPORT QtSoapNamespaces
{
public:
    /// \brief Writes names of the namespace \a uri with \a prefix from now on.
    ///
    /// The last registration holds: it ends an earlier prefix of that URI and an earlier URI of that prefix.
    /// The five prefixes known from the start keep their meaning, and a prefix that XML does not allow is
    /// refused; both with a warning.
    void registerNamespace(const QString& prefix, const QString& uri);

    /// The prefix for \a uri; an empty string when none was registered.
    QString prefixFor(const QString& uri);

    /// The registry of this process.
    static QtSoapNamespaces& instance();

private:
    QtSoapNamespaces();
    Q_DISABLE_COPY(QtSoapNamespaces)

    QMutex m_mutex;
    QHash<QString, QString> m_prefixes; ///< by URI
};

} // namespace TOLVAN_NAMESPACE
