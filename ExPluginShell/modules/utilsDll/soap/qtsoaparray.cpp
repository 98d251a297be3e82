#include "qtsoaparray.h"

#include "SoapCopy.h"
#include "SoapEncoder.h"
#include "SoapItemRun.h"
#include "SoapText.h"
#include "SoapValueReader.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace TOLVAN_NAMESPACE
{

namespace
{

QHash<int, QtSmartPtr<QtSoapType>> copied(const QHash<int, QtSmartPtr<QtSoapType>>& items)
{
    QHash<int, QtSmartPtr<QtSoapType>> copies;
    copies.reserve(items.size());
    for (auto item = items.cbegin(); item != items.cend(); ++item) {
        copies.insert(item.key(), copySoapValue(item.value()));
    }
    return copies;
}

} // namespace

QtSoapArray::QtSoapArray()
    : QtSoapType(QtSoapQName(), Array)
    , lastIndex(-1)
{
}

QtSoapArray::QtSoapArray(const QtSoapQName& name, QtSoapType::Type type, int size0, int size1, int size2,
                         int size3, int size4)
    : QtSoapType(name, Array)
    , lastIndex(-1)
    , m_itemType(type)
{
    QVector<int> sizes;
    for (const int size : {size0, size1, size2, size3, size4}) {
        if (size < 0) {
            break;
        }
        sizes.append(size);
    }
    if (!sizes.isEmpty()) {
        m_sizes = sizes;
    }
}

QtSoapArray::QtSoapArray(const QtSoapArray& copy)
    : QtSoapType(copy)
    , array(copied(copy.array))
    , lastIndex(copy.lastIndex)
    , m_sizes(copy.m_sizes)
    , m_itemType(copy.m_itemType)
    , m_mixed(copy.m_mixed)
{
    for (int k = 0; k < copy.runSize(); ++k) { // each on its own: a derived class looks for them in "array"
        const int position = SoapItemRun::Start + k;
        if (!array.contains(position)) {
            array.insert(position, new QtSoapSimpleType(copy.m_run->at(position)));
        }
    }
}

QtSoapArray& QtSoapArray::operator=(const QtSoapArray& copy)
{
    const QtSoapArray other(copy); // first: the source may be one of the items
    QtSoapType::operator=(other);
    array = other.array;
    lastIndex = other.lastIndex;
    m_sizes = other.m_sizes;
    m_itemType = other.m_itemType;
    m_mixed = other.m_mixed;
    m_run.reset();
    m_covered = 0;
    return *this;
}

QtSoapArray::~QtSoapArray() = default;

void QtSoapArray::clear()
{
    array.clear();
    m_run.reset();
    m_covered = 0;
    lastIndex = -1;
    m_sizes = {-1};
}

bool QtSoapArray::parse(QDomNode node)
{
    return SoapValueReader::fill(*this, node, &errorStr);
}

bool QtSoapArray::isValid() const
{
    return true;
}

int QtSoapArray::count() const
{
    return array.size() + runSize() - m_covered;
}

int QtSoapArray::runSize() const
{
    return m_run ? m_run->size() : 0;
}

bool QtSoapArray::has(int position) const
{
    return array.contains(position) || (m_run && m_run->has(position));
}

qint64 QtSoapArray::capacity() const
{
    if (m_sizes.first() < 0) {
        return m_sizes.contains(0) ? 0 : -1;
    }
    qint64 product = 1;
    for (const int size : m_sizes) {
        product = std::min<qint64>(product * size, std::numeric_limits<int>::max());
    }
    return product;
}

int QtSoapArray::absolute(const QVector<int>& coordinates) const
{
    if (coordinates.size() != m_sizes.size()) {
        return -1;
    }
    qint64 position = 0;
    for (int k = 0; k < coordinates.size(); ++k) {
        const int size = m_sizes.at(k);
        if (coordinates.at(k) < 0 || (size >= 0 && coordinates.at(k) >= size)) {
            return -1;
        }
        position = (size < 0 ? 0 : position * size) + coordinates.at(k);
        if (position >= std::numeric_limits<int>::max()) {
            return -1;
        }
    }
    return static_cast<int>(position);
}

QVector<int> QtSoapArray::coordinates(int position) const
{
    QVector<int> result(m_sizes.size());
    for (int k = m_sizes.size() - 1; k > 0; --k) {
        result[k] = position % m_sizes.at(k);
        position /= m_sizes.at(k);
    }
    result[0] = position;
    return result;
}

QtSoapType& QtSoapArray::find(int position)
{
    return has(position) ? const_cast<QtSoapType&>(std::as_const(*this).find(position)) : missing();
}

const QtSoapType& QtSoapArray::find(int position) const
{
    const auto item = array.constFind(position);
    if (item != array.constEnd()) {
        return item.value().ref();
    }
    return m_run && m_run->has(position) ? m_run->at(position) : missingConst();
}

QVector<int> QtSoapArray::positions() const
{
    QVector<int> keys(count());
    if (lastIndex == keys.size() - 1) { // no gaps, as usual
        std::iota(keys.begin(), keys.end(), 0);
        return keys;
    }
    auto end = std::copy(array.keyBegin(), array.keyEnd(), keys.begin());
    for (int k = SoapItemRun::Start; k < SoapItemRun::Start + runSize(); ++k) {
        if (!array.contains(k)) {
            *end++ = k;
        }
    }
    std::sort(keys.begin(), keys.end());
    return keys;
}

bool QtSoapArray::hasGaps() const
{
    return capacity() < 0 ? lastIndex != count() - 1 : count() != capacity();
}

void QtSoapArray::place(int position, QtSoapType* item)
{
    const QtSmartPtr<QtSoapType> owned(item);
    const qint64 size = capacity();
    errorStr.clear();
    if (!item) {
        errorStr = QStringLiteral("An array cannot take a null item");
    } else if (position < 0 || (size >= 0 && position >= size)) {
        errorStr = QStringLiteral("The array \"%1\" has no such position").arg(n.name());
    }
    if (!errorStr.isEmpty()) {
        SoapText::warn(errorStr);
        return;
    }
    adopt(*item);
    store(position, owned);
}

/// Fits the item type to another item; a nil item fits every type.
void QtSoapArray::adopt(const QtSoapType& item)
{
    const bool nil =
        item.isValid() && item.type() != Array && item.type() != Struct && !item.value().isValid();
    if (nil || m_mixed) {
        return;
    }
    if (m_itemType == Other) {
        m_itemType = item.type();
    }
    m_mixed = m_itemType == Other || item.type() != m_itemType;
}

void QtSoapArray::store(int position, const QtSmartPtr<QtSoapType>& item)
{
    if (m_run && m_run->has(position) && !array.contains(position)) {
        ++m_covered;
    }
    array.insert(position, item);
    lastIndex = std::max(lastIndex, position);
}

QString QtSoapArray::arraySizeString() const
{
    QStringList sizes;
    for (const int size : m_sizes) {
        sizes.append(QString::number(size < 0 ? static_cast<qint64>(lastIndex) + 1 : size));
    }
    if (m_sizes.size() > 1 && m_sizes.first() < 0) {
        sizes[0] = QString::number(lastIndex < 0 ? 0 : coordinates(lastIndex).first() + 1);
    }
    return QLatin1Char('[') + sizes.join(QLatin1Char(',')) + QLatin1Char(']');
}

QString QtSoapArray::arrayTypeString() const
{
    return QLatin1String("xsd:") +
           (!m_mixed && m_itemType < Array ? typeToName(m_itemType) : QStringLiteral("anyType"));
}

QDomElement QtSoapArray::toDomElement(QDomDocument doc) const
{
    return SoapEncoder::element(*this, doc);
}

} // namespace TOLVAN_NAMESPACE
