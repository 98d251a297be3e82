#pragma once

#include "qtsoaptype.h"

namespace TOLVAN_NAMESPACE
{

/// \brief A value without children: a text, a number, a date.
///
/// What value() holds after reading, by type:
///
/// | type | variant |
/// |---|---|
/// | Boolean | `bool`, from "true", "false", "1", "0" |
/// | Int, Short, Byte | `int` |
/// | UnsignedInt, UnsignedShort, UnsignedByte | `uint` |
/// | Long · UnsignedLong | `qlonglong` · `qulonglong` |
/// | Float, Double | `double`, also from "INF", "-INF", "NaN" |
/// | every other one, Decimal, dates and base64 among them | the text, `QString` |
///
/// A text that is not of its type stays a text rather than being lost. A nil value, and one that only refers
/// to another by `href`, is valid and holds an invalid variant.
class UTILSDLL_EXPORT QtSoapSimpleType : public QtSoapType
{
public:
    /// A nil value of type Other.
    QtSoapSimpleType();

    /// A nil value of type Other called \a name.
    QtSoapSimpleType(const QtSoapQName& name);

    /// An Int. A `bool` passed as \a n selects this overload too; a Boolean takes the next one.
    QtSoapSimpleType(const QtSoapQName& name, int n);

    /// A Boolean; \a dummy only selects the overload, pass 0.
    QtSoapSimpleType(const QtSoapQName& name, bool n, int dummy);

    /// A String.
    QtSoapSimpleType(const QtSoapQName& name, const QString& n);

    /// A value of any simple type: `QtSoapSimpleType(name, 30.48, QtSoapType::Double)`.
    ///
    /// Dates and times are written in the ISO form, with their offset from UTC; a `QByteArray` becomes base64, or
    /// hexadecimal digits for HexBinary. With the type Other no `xsi:type` is written, as enumerations and untyped
    /// services want it.
    /// \param content a number, text, `QDate`, `QTime`, `QDateTime`, `QByteArray` or `QVariant`; an invalid variant
    /// makes a nil value. The object holds what reading the written value gives, see above.
    /// \param type one of the types before QtSoapType::Array, or QtSoapType::Other
    template <class Value>
    QtSoapSimpleType(const QtSoapQName& name, const Value& content, QtSoapType::Type type)
        : QtSoapType(name, type)
    {
        hold(QVariant(content));
    }

    /// A copy of name, type and value.
    QtSoapSimpleType(const QtSoapSimpleType& copy);

    /// Takes over name, type and value of \a copy.
    QtSoapSimpleType& operator=(const QtSoapSimpleType& copy);
    ~QtSoapSimpleType() override;

    /// Makes the value nil; name and type stay.
    void clear() override;

    /// Reads the element \a node; false, and errorString() says why, for one that has child elements, or is
    /// an array or a struct by its type. The value is unchanged then.
    bool parse(QDomNode node) override;

    /// Always true.
    bool isValid() const override;

    /// The value as XML Schema writes it: "true", "30.48", "-INF"; a null string for nil.
    QString toString() const override;

    /// The variant as `int`; 0 when it is no number. A Long outside the range of `int` is cut off: use
    /// value().
    int toInt() const override;

    /// The variant as `bool`.
    bool toBool() const override;

    /// The variant; invalid for nil.
    QVariant value() const override;

    /// `<name xsi:type="xsd:TYPE">text</name>`; no type is written for Other, `xsi:nil` for nil.
    QDomElement toDomElement(QDomDocument doc) const override;

protected:
    QVariant v; ///< the value

private:
    void hold(const QVariant& content);

    friend class QtSoapMessage;
    friend class SoapValueReader;
};

} // namespace TOLVAN_NAMESPACE
