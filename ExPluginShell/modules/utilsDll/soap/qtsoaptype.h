#pragma once

#include "qtsoapqname.h"
#include "qtsoapsmartptr.h"

#include <memory>
#include <QtXml/QtXml>
#include <QVariant>

namespace TOLVAN_NAMESPACE
{

/// \brief Base class of all SOAP values: the type through which the tree of a message is inspected.
///
/// A lookup that fails returns a reference to an empty value whose isValid() is false, so a chain such as
/// `answer["person"]["children"][0].toString()` is always safe. That empty value belongs to the object asked,
/// is emptied again before each lookup that fails, and what is written into it is lost.
///
/// Values are value types: a copy has children of its own. Only a child of a class derived outside this
/// library cannot be copied by the library and is shared between the copies. Values are not locked: one thread
/// at a time may use a tree; several may read one that none changes, through constant references (a lookup
/// that is not constant and fails writes to the empty value). No call blocks.
class UTILSDLL_EXPORT QtSoapType
{
public:
    /// The built-in types of XML Schema, then the two compound types; the numbers are fixed.
    enum Type {
        Duration,
        DateTime,
        Time,
        Date,
        GYearMonth,
        GYear,
        GMonthDay,
        GDay,
        GMonth,
        Boolean,
        Base64Binary,
        HexBinary,
        Float,
        Double,
        AnyURI,
        QName,
        NOTATION,
        String,
        NormalizedString,
        Token,
        Language,
        Name,
        NMTOKEN,
        NCName,
        ID,
        IDREF,
        ENTITY,
        Decimal,
        Integer,
        NonPositiveInteger,
        NegativeInteger,
        Long,
        Int,
        Short,
        Byte,
        NonNegativeInteger,
        UnsignedLong,
        PositiveInteger,
        UnsignedInt,
        UnsignedShort,
        UnsignedByte,
        Array,
        Struct,
        Other
    };

    /// A value without name and type.
    QtSoapType();

    /// A value called \a name of type \a t.
    QtSoapType(const QtSoapQName& name, Type t = Other);

    /// A copy of name, type and attributes.
    QtSoapType(const QtSoapType& copy);

    /// Takes over name, type and attributes of \a copy.
    QtSoapType& operator=(const QtSoapType& copy);
    virtual ~QtSoapType();

    /// Drops the contents; here it does nothing.
    virtual void clear();

    /// \brief Replaces this value by what \a node holds.
    /// \param node an element of a document that was parsed with namespace processing
    /// \return false, and errorString() says why, when the node is no value of this class; here always false.
    virtual bool parse(QDomNode node);

    /// True for a struct, an array and a simple value, also an empty one; false here: "there is no such
    /// child".
    virtual bool isValid() const;

    /// Number of children; 0 here.
    virtual int count() const;

    /// The held value; an invalid variant here.
    virtual QVariant value() const;

    /// The child number \a pos, counted from 0.
    virtual QtSoapType& operator[](int pos);

    /// The first child that matches \a key as `operator==` of QtSoapQName has it; in a struct, one of the same
    /// case comes first.
    virtual QtSoapType& operator[](const QtSoapQName& key);

    /// The first child with the local name \a key, in any namespace.
    virtual QtSoapType& operator[](const QString& key);

    /// \copydoc operator[](int)
    virtual const QtSoapType& operator[](int pos) const;

    /// \copydoc operator[](const QtSoapQName&)
    virtual const QtSoapType& operator[](const QtSoapQName& key) const;

    /// \copydoc operator[](const QString&)
    virtual const QtSoapType& operator[](const QString& key) const;

    /// \brief Makes an element for this value.
    /// \param document the document that makes the element
    /// \return the element, not inserted anywhere; a null element here.
    virtual QDomElement toDomElement(QDomDocument document) const;

    /// The type of this value.
    virtual Type type() const;

    /// The `id` attribute.
    virtual QString id() const;

    /// The `href` attribute. In a message that was read, a value that refers to an element of the same
    /// document (`href="#id"`) has the contents of that element; the text stays.
    virtual QString href() const;

    /// The text form of type(), see typeToName().
    virtual QString typeName() const;

    /// Name of this value: the element's name in the message.
    virtual QtSoapQName name() const;

    /// The value as text; a null string here.
    virtual QString toString() const;

    /// The value as a number; 0 when it is none, and here.
    virtual int toInt() const;

    /// The value as a truth value; false here.
    virtual bool toBool() const;

    /// Renames the value; a name no element may have is written with its bad characters as `_xHHHH_`.
    void setName(const QtSoapQName& name);

    /// Sets the `id` attribute; nothing is written for an empty one.
    void setId(const QString& id);

    /// Sets the `href` attribute; nothing is written for an empty one.
    void setHref(const QString& href);

    /// What the latest call that failed complained of; empty when none did.
    QString errorString() const;

    /// The name of a type in XML Schema ("int", "dateTime"), "Array", "Struct", and an empty string for
    /// Other.
    static QString typeToName(QtSoapType::Type t);

    /// \brief The type of that name, without prefix; case matters.
    /// \return Other for an unknown name. "base64" of the SOAP encoding and "timeInstant" of the older schema
    /// are known too.
    static Type nameToType(const QString& name);

    /// Sets an attribute of the element that this value is written as, for example
    /// `SOAP-ENV:mustUnderstand` of a header item. A null \a text removes it.
    ///
    /// Attributes are written, not read: those of a value from a message are empty. The attributes that the
    /// classes write themselves (`xsi:type`, `xsi:nil`, `id`, `href` and those of arrays) are not affected.
    /// \param attribute its name, in a namespace or in none
    /// \param text its value
    void setAttribute(const QtSoapQName& attribute, const QString& text);

    /// Returns the text that setAttribute() set for \a attribute; a null string if none was set.
    QString attribute(const QtSoapQName& attribute) const;

private:
    bool m_hasExtra = false;    ///< SoapExtra has more of this value
    bool m_isReference = false; ///< id and href are those of a resolved document, and not written again

protected:
    Type t;           ///< type
    QString errorStr; ///< latest error
    QString i;        ///< id
    QtSoapQName n;    ///< name
    QString u;        ///< URI; kept for classes derived from this one, unused here
    QString h;        ///< href

    /// The empty value that failing lookups in this object return, emptied.
    QtSoapType& missing();

    /// The empty value that failing lookups in constant objects return.
    static const QtSoapType& missingConst();

private:
    friend class QtSoapMessage;
    friend class SoapEncoder;
    friend class SoapReferences;
    friend class SoapValueReader;
};

} // namespace TOLVAN_NAMESPACE
