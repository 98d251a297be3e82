#include "SoapReferences.h"

#include "SoapItemRun.h"
#include "SoapLimits.h"

#include <typeinfo>

namespace TOLVAN_NAMESPACE
{

bool SoapReferences::resolve(std::initializer_list<QList<Value>*> lists)
{
    for (QList<Value>* const list : lists) {
        for (Value& value : *list) {
            collect(value);
        }
    }
    Size all;
    for (QList<Value>* const list : lists) {
        for (Value& value : *list) {
            add(all, expand(value, 1));
        }
    }
    return m_cursor.errorString().isEmpty();
}

void SoapReferences::collect(Value& value)
{
    if (!value->i.isEmpty() && !m_targets.contains(value->i)) {
        m_targets.insert(value->i, &value);
    }
    value->m_isReference = !value->i.isEmpty() || !value->h.isEmpty();
    if (auto* const parent = dynamic_cast<QtSoapStruct*>(value.ptr())) {
        for (Value& child : parent->dict) {
            collect(child);
        }
    } else if (auto* const array = dynamic_cast<QtSoapArray*>(value.ptr())) {
        for (Value& item : array->array) {
            collect(item);
        }
    }
}

/// The place of the value to which \a value refers; null if it refers to none.
SoapReferences::Value* SoapReferences::target(const QtSoapType& value) const
{
    const std::type_info& type = typeid(value);
    const bool own =
        type == typeid(QtSoapSimpleType) || type == typeid(QtSoapStruct) || type == typeid(QtSoapArray);
    const bool refers =
        own && value.h.startsWith(QLatin1Char('#')) && value.count() == 0 && !value.value().isValid();
    return refers ? m_targets.value(value.h.mid(1)) : nullptr;
}

/// A value with the name of \a accessor and the contents of \a target.
SoapReferences::Value SoapReferences::contents(const Value& target, const QtSoapType& accessor)
{
    const QtSoapType& original = *target;
    Value made;
    if (typeid(original) == typeid(QtSoapSimpleType)) {
        made = new QtSoapSimpleType(static_cast<const QtSoapSimpleType&>(original));
    } else if (typeid(original) == typeid(QtSoapStruct)) {
        auto* const copy = new QtSoapStruct;
        copy->dict = static_cast<const QtSoapStruct&>(original).dict;
        made = copy;
    } else if (typeid(original) == typeid(QtSoapArray)) {
        const auto& array = static_cast<const QtSoapArray&>(original);
        auto* const copy = new QtSoapArray;
        copy->array = array.array;
        copy->lastIndex = array.lastIndex;
        copy->m_sizes = array.m_sizes;
        copy->m_itemType = array.m_itemType;
        copy->m_mixed = array.m_mixed;
        copy->m_run = array.m_run;
        copy->m_covered = array.m_covered;
        made = copy;
    } else {
        return target; // of a class of the client
    }
    made->n = accessor.n;
    made->i = accessor.i;
    made->h = accessor.h;
    made->m_isReference = true;
    return made;
}

/// Adds a part to the size of a tree, and checks it.
void SoapReferences::add(Size& sum, const Size& part)
{
    sum.elements += part.elements;
    sum.bytes += part.bytes;
    sum.depth = qMax(sum.depth, part.depth + 1);
    // A quarter: what was read can be written, and that can be read again.
    if (sum.elements > m_cursor.limits().elements || sum.bytes > m_cursor.limits().memoryBytes / 4) {
        m_cursor.fail(QStringLiteral("References make the document too large"));
    }
}

SoapReferences::Size SoapReferences::expandChildren(QtSoapType& value, int depth)
{
    Size size;
    size.bytes = SoapLimits::ValueBytes + 4 * value.n.name().size();
    if (auto* const parent = dynamic_cast<QtSoapStruct*>(&value)) {
        for (Value& child : parent->dict) {
            add(size, expand(child, depth + 1));
        }
    } else if (auto* const array = dynamic_cast<QtSoapArray*>(&value)) {
        size.elements += array->runSize();
        size.bytes += array->runSize() * SoapLimits::ValueBytes;
        for (Value& item : array->array) {
            add(size, expand(item, depth + 1));
        }
    } else {
        size.bytes += 6 * value.toString().size(); // "&quot;" is the longest form of a character
    }
    return size;
}

SoapReferences::Size SoapReferences::expand(Value& value, int depth)
{
    const QtSoapType* const read = value.ptr();
    Size size = m_done.value(read);
    if (depth + size.depth - 1 > SoapLimits::Depth - 2) { // envelope and body are around it
        m_cursor.fail(
            QStringLiteral("References nest elements more than %1 levels deep").arg(SoapLimits::Depth));
    }
    if (m_open.contains(read)) {
        m_cursor.fail(QStringLiteral("The element \"%1\" refers to itself").arg(read->n.name().left(80)));
    }
    if (m_done.contains(read) || !m_cursor.errorString().isEmpty()) {
        return size;
    }
    m_open.insert(read);
    Value* const other = target(*read);
    size = other ? expand(*other, depth) : expandChildren(*value, depth);
    m_open.remove(read);
    if (other && m_cursor.errorString().isEmpty()) {
        value = contents(*other, *read);
    }
    m_done.insert(value.ptr(), size);
    return size;
}

} // namespace TOLVAN_NAMESPACE
