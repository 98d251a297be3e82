#include "qtsoapstruct.h"

#include "SoapCopy.h"
#include "SoapEncoder.h"
#include "SoapText.h"
#include "SoapValueReader.h"

namespace TOLVAN_NAMESPACE
{

namespace
{

QList<QtSmartPtr<QtSoapType>> copied(const QList<QtSmartPtr<QtSoapType>>& children)
{
    QList<QtSmartPtr<QtSoapType>> copies;
    copies.reserve(children.size());
    for (const auto& child : children) {
        copies.append(copySoapValue(child));
    }
    return copies;
}

} // namespace

QtSoapStruct::QtSoapStruct()
    : QtSoapType(QtSoapQName(), Struct)
{
}

QtSoapStruct::QtSoapStruct(const QtSoapQName& name)
    : QtSoapType(name, Struct)
{
}

QtSoapStruct::QtSoapStruct(const QtSoapStruct& copy)
    : QtSoapType(copy)
    , dict(copied(copy.dict))
{
}

QtSoapStruct& QtSoapStruct::operator=(const QtSoapStruct& copy)
{
    const auto children = copied(copy.dict); // first: the source may be one of the children
    QtSoapType::operator=(copy);
    dict = children;
    return *this;
}

QtSoapStruct::~QtSoapStruct() = default;

void QtSoapStruct::clear()
{
    dict.clear();
}

bool QtSoapStruct::parse(QDomNode node)
{
    return SoapValueReader::fill(*this, node, &errorStr);
}

bool QtSoapStruct::isValid() const
{
    return true;
}

int QtSoapStruct::count() const
{
    return dict.size();
}

int QtSoapStruct::indexOf(const QtSoapQName& key) const
{
    int match = -1;
    for (int k = 0; k < dict.size(); ++k) {
        const QtSoapQName name = dict.at(k)->name();
        if (!(name == key)) {
            continue;
        }
        if (name.name() == key.name() && (key.uri().isEmpty() || name.uri() == key.uri())) {
            return k;
        }
        if (match < 0) {
            match = k;
        }
    }
    return match;
}

QtSoapType& QtSoapStruct::at(const QtSoapQName& key)
{
    const int index = indexOf(key);
    return index < 0 ? missing() : *dict.at(index);
}

const QtSoapType& QtSoapStruct::at(const QtSoapQName& key) const
{
    const int index = indexOf(key);
    return index < 0 ? missingConst() : *dict.at(index);
}

QtSoapType& QtSoapStruct::operator[](int index)
{
    return index < 0 || index >= dict.size() ? missing() : *dict.at(index);
}

const QtSoapType& QtSoapStruct::operator[](int index) const
{
    return index < 0 || index >= dict.size() ? missingConst() : *dict.at(index);
}

QtSoapType& QtSoapStruct::operator[](const QtSoapQName& key)
{
    return at(key);
}

const QtSoapType& QtSoapStruct::operator[](const QtSoapQName& key) const
{
    return at(key);
}

QtSoapType& QtSoapStruct::operator[](const QString& key)
{
    return at(QtSoapQName(key));
}

const QtSoapType& QtSoapStruct::operator[](const QString& key) const
{
    return at(QtSoapQName(key));
}

void QtSoapStruct::insert(QtSoapType* item)
{
    append(item);
}

void QtSoapStruct::append(QtSoapType* item)
{
    if (item) {
        dict.append(item);
    } else {
        SoapText::warn(QStringLiteral("A struct cannot take a null item"));
    }
}

void QtSoapStruct::replace(QtSoapType* item)
{
    const int index = indexOf(item->name());
    if (index < 0) {
        append(item);
    } else {
        dict[index] = item;
    }
}

QDomElement QtSoapStruct::toDomElement(QDomDocument doc) const
{
    return SoapEncoder::element(*this, doc);
}

} // namespace TOLVAN_NAMESPACE
