#pragma once

#include "qtsoaparray.h"
#include "qtsoapstruct.h"
#include "SoapXmlCursor.h"

#include <QSet>

namespace TOLVAN_NAMESPACE
{

/// Gives values that refer to another element (`href="#id"`) the contents of that element. Internal, not
/// installed.
///
/// Values share the contents, but a program that walks the tree sees them at each place. The size of the tree with
/// every reference written out is bounded by the limits of the cursor, and a cycle is an error.
class SoapReferences
{
public:
    using Value = QtSmartPtr<QtSoapType>;

    explicit SoapReferences(SoapXmlCursor& cursor)
        : m_cursor(cursor)
    {
    }

    /// Resolves the references in the values of \a lists, to ids in any of them. False on an error of the cursor.
    bool resolve(std::initializer_list<QList<Value>*> lists);

private:
    struct Size {
        qint64 elements = 1;
        qint64 bytes = 0;
        int depth = 1;
    };

    void collect(Value& value);
    Size expand(Value& value, int depth);
    Size expandChildren(QtSoapType& value, int depth);
    Value* target(const QtSoapType& value) const;
    void add(Size& sum, const Size& part);
    static Value contents(const Value& target, const QtSoapType& accessor);

    SoapXmlCursor& m_cursor;
    QHash<QString, Value*> m_targets; ///< by id
    QHash<const QtSoapType*, Size> m_done;
    QSet<const QtSoapType*> m_open; ///< on the way from the root
};

} // namespace TOLVAN_NAMESPACE
