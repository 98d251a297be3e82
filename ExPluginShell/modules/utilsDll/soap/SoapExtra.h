#pragma once

#include "qtsoaptype.h"

#include <QPair>

namespace TOLVAN_NAMESPACE
{

/// What only few values have. It lies in a table beside the values, as an answer can hold millions of them.
/// Internal, not installed. Usable from any thread.
struct SoapExtra {
    using Attribute = QPair<QtSoapQName, QString>;

    std::unique_ptr<QtSoapType> missing; ///< returned by lookups that fail
    QList<Attribute> attributes;         ///< in the order in which they were set

    void set(const QtSoapQName& name, const QString& text);
    QString get(const QtSoapQName& name) const;

    /// Returns the entry of \a value, which is made if there is none.
    static std::shared_ptr<SoapExtra> of(const QtSoapType* value);

    /// Gives \a target the attributes of \a source. Returns whether \a target has an entry then.
    static bool copyAttributes(const QtSoapType* source, const QtSoapType* target);

    /// Removes the entry of a value that is being destroyed.
    static void remove(const QtSoapType* value);
};

} // namespace TOLVAN_NAMESPACE
