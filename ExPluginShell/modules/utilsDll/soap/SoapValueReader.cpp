#include "SoapValueReader.h"

#include "qtsoaptypefactory.h"
#include "SoapItemRun.h"
#include "SoapLimits.h"
#include "SoapText.h"
#include "SoapUris.h"

#include <typeinfo>

namespace TOLVAN_NAMESPACE
{

namespace
{

using Token = SoapXmlCursor::Token;

/// A name as errors show it: those of strangers may be long.
QString shown(const QString& name)
{
    return name.left(80);
}

bool isBlank(const QString& text)
{
    for (const QChar c : text) {
        if (!c.isSpace()) {
            return false;
        }
    }
    return true;
}

/// The name of an element's type; elements of the encoding's namespace are named after theirs.
QString typeNameOf(const SoapElement& element)
{
    return element.typeName.isEmpty() && element.uri == SoapUris::Encoding ? element.name : element.typeName;
}

bool isArray(const SoapElement& element)
{
    return !element.arrayType.isEmpty() || QtSoapType::nameToType(typeNameOf(element)) == QtSoapType::Array;
}

} // namespace

void SoapValueReader::note(const SoapElement& element)
{
    m_encoded = m_encoded || element.encoded;
    if (!element.id.isEmpty() || !element.href.isEmpty()) {
        m_cursor.spend(SoapLimits::IdentityBytes + 2 * (element.id.size() + element.href.size()));
    }
    if (!element.id.isEmpty() && m_ids.contains(element.id)) {
        m_repeatedIds.insert(element.id);
    }
    if (!element.id.isEmpty()) {
        m_ids.insert(element.id);
    }
    if (element.href.startsWith(QLatin1Char('#'))) {
        m_references.insert(element.href.mid(1));
    }
}

bool SoapValueReader::checkIdentities()
{
    // in messages that are not encoded "id" is a name like any other, unless something refers to it
    for (const QString& id : qAsConst(m_repeatedIds)) {
        if (m_encoded || m_references.contains(id)) {
            return m_cursor.fail(QStringLiteral("The id \"%1\" is given to several elements").arg(shown(id)));
        }
    }
    return true;
}

void SoapValueReader::name(QtSoapType& value, const SoapElement& element) const
{
    value.n = QtSoapQName(element.name, element.uri);
    value.i = element.id;
    value.h = element.href;
}

void SoapValueReader::simple(QtSoapSimpleType& value, const SoapElement& element, QtSoapType::Type type,
                             const QString& text) const
{
    name(value, element);
    value.t = type < QtSoapType::Array ? type : QtSoapType::String;
    const bool empty = element.nil || (!element.href.isEmpty() && text.isEmpty());
    value.v = empty ? QVariant() : SoapText::toVariant(value.t, text);
}

/// Reads up to the end of the current element.
bool SoapValueReader::contents(QString* text, Values* children)
{
    for (;;) {
        switch (m_cursor.next()) {
        case Token::Text: {
            const QString piece = m_cursor.text();
            *text += piece;
            if (!m_cursor.spend(2 * piece.size() + SoapLimits::TextBytes)) {
                return false;
            }
            break;
        }
        case Token::StartElement:
            children->append(value());
            if (children->last().isNull()) {
                return false;
            }
            break;
        case Token::EndElement:
            return true;
        default:
            return m_cursor.fail(QStringLiteral("The document ends too early"));
        }
    }
}

QtSmartPtr<QtSoapType> SoapValueReader::value(QtSoapType::Type untyped)
{
    const SoapElement element = m_cursor.element();
    note(element);
    if (!m_cursor.spend(SoapLimits::ValueBytes)) {
        return {};
    }
    const QString typeName = typeNameOf(element);
    if (QtSoapTypeConstructorBase* const handler = QtSoapTypeFactory::instance().handler(typeName)) {
        const QDomElement tree = m_cursor.takeElement();
        QtSmartPtr<QtSoapType> made(tree.isNull() ? nullptr : handler->createObject(tree));
        if (made.isNull()) {
            m_cursor.fail(QStringLiteral("\"%1\" cannot be read as %2: %3")
                              .arg(shown(element.name), shown(typeName), handler->errorString()));
        }
        return made;
    }
    if (isArray(element) || (untyped == QtSoapType::Array && typeName.isEmpty())) {
        const QtSmartPtr<QtSoapType> made(new QtSoapArray);
        return array(static_cast<QtSoapArray&>(*made), true) ? made : QtSmartPtr<QtSoapType>();
    }
    QString text;
    Values children;
    if (!contents(&text, &children)) {
        return {};
    }
    const QtSoapType::Type known = QtSoapType::nameToType(typeName);
    const QtSoapType::Type type = known == QtSoapType::Other ? untyped : known;
    if (children.isEmpty() && (type != QtSoapType::Struct || !isBlank(text))) {
        const QtSmartPtr<QtSoapType> made(new QtSoapSimpleType);
        simple(static_cast<QtSoapSimpleType&>(*made), element, type, text);
        return made;
    }
    const QtSmartPtr<QtSoapType> made(new QtSoapStruct);
    name(*made, element);
    static_cast<QtSoapStruct&>(*made).dict = children;
    return made;
}

bool SoapValueReader::items(QtSoapArray& result, bool packed)
{
    qint64 next = 0;
    const qint64 capacity = result.capacity() < 0 ? SoapLimits::ArrayItems : result.capacity();
    if (!m_cursor.element().offset.isEmpty()) {
        next = result.absolute(SoapArrayType::numbers(m_cursor.element().offset));
        if (next < 0 || next >= capacity) {
            return m_cursor.fail(QStringLiteral("The offset %1 is outside the array \"%2\"")
                                     .arg(shown(m_cursor.element().offset), shown(result.n.name())));
        }
    }
    for (;;) {
        const Token token = m_cursor.next();
        if (token == Token::EndElement) {
            return true;
        }
        if (token == Token::Text && isBlank(m_cursor.text())) {
            continue;
        }
        if (token != Token::StartElement) {
            return m_cursor.fail(token == Token::Text
                                     ? QStringLiteral("The array \"%1\" holds a text beside its items")
                                           .arg(shown(result.n.name()))
                                     : QStringLiteral("The document ends too early"));
        }
        const QString position = m_cursor.element().position;
        if (!position.isEmpty()) {
            next = result.absolute(SoapArrayType::numbers(position));
        }
        if (next < 0 || next >= capacity || result.has(static_cast<int>(next))) {
            return m_cursor.fail(QStringLiteral("The array \"%1\" has no place for an item %2")
                                     .arg(shown(result.n.name()),
                                          position.isEmpty() ? QStringLiteral("more")
                                                             : QStringLiteral("at ") + shown(position)));
        }
        const QtSmartPtr<QtSoapType> item = value(result.m_itemType);
        if (item.isNull()) {
            return false;
        }
        const int at = static_cast<int>(next++);
        if (!packed || !pack(result, at, *item)) {
            result.store(at, item);
        }
    }
}

/// Puts a simple \a item into the run of a long array; false if it has to be stored on its own.
bool SoapValueReader::pack(QtSoapArray& result, int position, const QtSoapType& item)
{
    const bool next = position == SoapItemRun::Start + result.runSize() && result.lastIndex == position - 1 &&
                      result.array.size() == SoapItemRun::Start;
    if (!next || typeid(item) != typeid(QtSoapSimpleType) || !item.i.isEmpty() || !item.h.isEmpty()) {
        return false;
    }
    if (!result.m_run) {
        result.m_run = std::make_shared<SoapItemRun>();
    }
    const auto& simple = static_cast<const QtSoapSimpleType&>(item);
    const bool keepsText = simple.v.userType() == QMetaType::QString;
    result.m_run->append(simple);
    result.lastIndex = position;
    m_cursor.spend(SoapLimits::RunItemBytes - SoapLimits::ValueBytes -
                   (keepsText ? 0 : SoapLimits::TextBytes));
    return true;
}

bool SoapValueReader::array(QtSoapArray& result, bool packed)
{
    const SoapElement element = m_cursor.element();
    SoapArrayType type;
    if (element.arrayType.isEmpty()) {
        type.sizes = {-1};
    } else {
        type = SoapArrayType::fromAttribute(element.arrayType);
    }
    if (!type.error.isEmpty()) {
        return m_cursor.fail(type.error);
    }
    name(result, element);
    result.t = QtSoapType::Array;
    result.clear();
    result.m_sizes = type.sizes;
    result.m_itemType =
        type.itemType.endsWith(QLatin1Char(']')) ? QtSoapType::Array : QtSoapType::nameToType(type.itemType);
    result.m_mixed = result.m_itemType == QtSoapType::Other;
    return items(result, packed);
}

bool SoapValueReader::start()
{
    return m_cursor.next() == Token::StartElement ||
           m_cursor.fail(QStringLiteral("There is no element to read"));
}

bool SoapValueReader::fill(QtSoapSimpleType& result)
{
    if (!start()) {
        return false;
    }
    const SoapElement element = m_cursor.element();
    const QtSoapType::Type type = QtSoapType::nameToType(typeNameOf(element));
    QString text;
    Values children;
    if (isArray(element) || type == QtSoapType::Struct) {
        return m_cursor.fail(QStringLiteral("\"%1\" is not a simple value").arg(shown(element.name)));
    }
    if (!contents(&text, &children)) {
        return false;
    }
    if (!children.isEmpty()) {
        return m_cursor.fail(
            QStringLiteral("\"%1\" has child elements and is not a simple value").arg(shown(element.name)));
    }
    simple(result, element, type, text);
    return true;
}

bool SoapValueReader::fill(QtSoapStruct& result)
{
    if (!start()) {
        return false;
    }
    const SoapElement element = m_cursor.element();
    QString text;
    Values children;
    if (!contents(&text, &children)) {
        return false;
    }
    if (children.isEmpty() && !isBlank(text)) {
        return m_cursor.fail(
            QStringLiteral("\"%1\" holds a text and is not a struct").arg(shown(element.name)));
    }
    name(result, element);
    result.dict = children;
    return true;
}

bool SoapValueReader::fill(QtSoapArray& result)
{
    return start() && array(result, false);
}

} // namespace TOLVAN_NAMESPACE
