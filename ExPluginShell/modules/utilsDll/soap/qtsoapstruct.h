#pragma once

#include "qtsoaptype.h"

#include <QList>

namespace TOLVAN_NAMESPACE
{

/// \brief A collection of named values of any type.
///
/// Children are kept in the order in which they were added or read, also several of one name. A lookup by name
/// returns the first one that is spelled exactly so, else the first one that matches regardless of case.
/// Positions and the iterator reach every child.
class UTILSDLL_EXPORT QtSoapStruct : public QtSoapType
{
public:
    /// An empty struct without name.
    QtSoapStruct();

    /// An empty struct called \a name.
    QtSoapStruct(const QtSoapQName& name);

    /// A copy with children of its own.
    QtSoapStruct(const QtSoapStruct& copy);

    /// Becomes a copy of \a copy, with children of its own.
    QtSoapStruct& operator=(const QtSoapStruct& copy);
    ~QtSoapStruct() override;

    /// Removes all children.
    void clear() override;

    /// Reads the element \a node; false, and errorString() says why, for one that holds a text and no child
    /// elements. The struct is unchanged then.
    bool parse(QDomNode node) override;

    /// Always true.
    bool isValid() const override;

    /// Number of children.
    int count() const override;

    /// The child called \a key, see `operator[](const QtSoapQName&)` of the base class.
    QtSoapType& at(const QtSoapQName& key);

    /// \copydoc at(const QtSoapQName&)
    const QtSoapType& at(const QtSoapQName& key) const;
    QtSoapType& operator[](int i) override;
    const QtSoapType& operator[](int i) const override;
    QtSoapType& operator[](const QtSoapQName& key) override;
    const QtSoapType& operator[](const QtSoapQName& key) const override;
    QtSoapType& operator[](const QString& key) override;
    const QtSoapType& operator[](const QString& key) const override;

    /// Appends \a item, which comes from `new`, and takes ownership of it.
    ///
    /// A child of the same name stays: services write lists as repeated children. Null is ignored with a
    /// warning.
    void insert(QtSoapType* item);

    /// The element with the children in order.
    QDomElement toDomElement(QDomDocument doc) const override;

protected:
    QList<QtSmartPtr<QtSoapType>> dict; ///< the children

private:
    friend class QtSoapMessage;
    friend class QtSoapStructIterator;
    friend class SoapEncoder;
    friend class SoapReferences;
    friend class SoapValueReader;

    /// Index of the child for \a key, -1 when there is none.
    int indexOf(const QtSoapQName& key) const;
    void append(QtSoapType* item);
    void replace(QtSoapType* item); ///< takes the place of the child that its name finds, if any
};

} // namespace TOLVAN_NAMESPACE
