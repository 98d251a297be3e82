#pragma once

#include "qtsoaparray.h"
#include "qtsoapsimpletype.h"
#include "qtsoapstruct.h"
#include "SoapDomCursor.h"

#include <QSet>

namespace TOLVAN_NAMESPACE
{

/// Internal: turns elements into values. Recursion is bounded by the cursor's limit of nesting.
class SoapValueReader
{
public:
    explicit SoapValueReader(SoapXmlCursor& cursor)
        : m_cursor(cursor)
    {
    }

    /// The value of the element on whose start tag the cursor stands; the cursor is on its end tag afterwards.
    ///
    /// \param untyped type of a value that bears none itself
    /// \return null on an error
    QtSmartPtr<QtSoapType> value(QtSoapType::Type untyped = QtSoapType::Other);

    /// Fill a value from the element at the start of the cursor; false on an error.
    bool fill(QtSoapSimpleType& value);
    bool fill(QtSoapStruct& value);
    bool fill(QtSoapArray& value);

    /// Fills \a value from the element \a node; false, with the reason in \a error, on failure.
    template <class Value>
    static bool fill(Value& value, const QDomNode& node, QString* error)
    {
        SoapDomCursor cursor(node);
        const bool filled = SoapValueReader(cursor).fill(value);
        *error = cursor.errorString();
        return filled;
    }

    /// Notes the identity of a start tag, here of one that holds no value.
    void note(const SoapElement& element);

    /// False, with an error, when ids that the document relies on are given twice.
    bool checkIdentities();

    /// Returns whether an element refers to another one of the document.
    bool hasReferences() const { return !m_references.isEmpty(); }

    /// What went wrong; empty when nothing did.
    QString errorString() const { return m_cursor.errorString(); }

private:
    using Values = QList<QtSmartPtr<QtSoapType>>;

    bool start();
    bool contents(QString* text, Values* children);
    bool items(QtSoapArray& value, bool packed);
    bool array(QtSoapArray& value, bool packed);
    bool pack(QtSoapArray& value, int position, const QtSoapType& item);
    void name(QtSoapType& value, const SoapElement& element) const;
    void simple(QtSoapSimpleType& value, const SoapElement& element, QtSoapType::Type type,
                const QString& text) const;

    SoapXmlCursor& m_cursor;
    QSet<QString> m_ids;
    QSet<QString> m_repeatedIds;
    QSet<QString> m_references;
    bool m_encoded = false;
};

/// Internal: the array described by an `arrayType` attribute.
struct SoapArrayType {
    QString itemType;   ///< without prefix; ends with brackets for an array of arrays
    QVector<int> sizes; ///< one per dimension, -1 where none is given
    QString error;      ///< what is wrong with it, empty when nothing is

    static SoapArrayType fromAttribute(const QString& text);

    /// The numbers of "[1,2]"; empty when \a text is not of that form or a number is no position.
    static QVector<int> numbers(const QString& text);
};

} // namespace TOLVAN_NAMESPACE
