#pragma once

#include "qtsoaplimits.h"

#include <QDomElement>
#include <QString>

namespace TOLVAN_NAMESPACE
{

/// Internal: a start tag, reduced to what SOAP looks at.
struct SoapElement {
    QString name;
    QString uri;
    QString typeName;  ///< local part of `xsi:type`
    QString arrayType; ///< of the encoding's namespace, as the next two
    QString offset;
    QString position;
    QString id;
    QString href;
    bool nil = false;
    bool encoded = false; ///< carries the SOAP encoding as its `encodingStyle`

    /// Takes over one attribute if SOAP knows it.
    void setAttribute(const QString& uri, const QString& name, const QString& value);
};

/// Internal: walks the elements and texts of a document; behind it is either a byte stream or a tree.
///
/// Refuses document types, too deep nesting and too many elements. Comments and processing instructions are
/// passed over.
class SoapXmlCursor
{
public:
    enum class Token { StartElement, EndElement, Text, End, Error };

    explicit SoapXmlCursor(const QtSoapLimits& limits = QtSoapLimits())
        : m_limits(limits)
    {
    }
    virtual ~SoapXmlCursor() = default;

    /// Goes on by one. Error is final.
    virtual Token next() = 0;

    /// The start tag of the latest StartElement.
    const SoapElement& element() const { return m_element; }

    /// The piece of text of the latest Text.
    virtual QString text() const = 0;

    /// The current element as a tree, with all it holds; the cursor stands on its end then. Null on an error.
    virtual QDomElement takeElement() = 0;

    /// What went wrong, with the place.
    QString errorString() const { return m_error; }

    /// Ends the walk with \a error, unless there is one already. Returns false.
    bool fail(const QString& error);

    /// Counts memory that what was read takes. False, with an error, if it is too much.
    bool spend(qint64 bytes);

    const QtSoapLimits& limits() const { return m_limits; }

protected:
    /// Counts an element and a level; false, with an error, when there are too many.
    bool enter();
    void leave() { --m_depth; }

    SoapElement m_element;
    QString m_error;
    const QtSoapLimits m_limits;
    qint64 m_spent = 0;
    int m_depth = 0;
    int m_elements = 0;
};

/// The part of \a qualifiedName behind the prefix.
QString soapLocalPart(const QString& qualifiedName);

} // namespace TOLVAN_NAMESPACE
