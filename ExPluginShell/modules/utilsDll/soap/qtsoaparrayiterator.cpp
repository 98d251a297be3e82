#include "qtsoaparrayiterator.h"

namespace TOLVAN_NAMESPACE
{

QtSoapArrayIterator::QtSoapArrayIterator(QtSoapArray& array)
    : m_array(&array)
    , m_positions(array.positions())
{
}

QtSoapArrayIterator::QtSoapArrayIterator(const QtSoapArrayIterator& copy) = default;
QtSoapArrayIterator::~QtSoapArrayIterator() = default;
QtSoapArrayIterator& QtSoapArrayIterator::operator=(const QtSoapArrayIterator& j) = default;

int QtSoapArrayIterator::pos() const
{
    return m_positions.value(m_index, -1);
}

void QtSoapArrayIterator::pos(int* pos0, int* pos1, int* pos2, int* pos3, int* pos4) const
{
    if (atEnd()) {
        return;
    }
    int* const targets[] = {pos0, pos1, pos2, pos3, pos4};
    const QVector<int> coordinates = m_array->coordinates(pos());
    for (int k = 0; k < coordinates.size(); ++k) {
        if (targets[k]) {
            *targets[k] = coordinates.at(k);
        }
    }
}

QtSoapType* QtSoapArrayIterator::data()
{
    return atEnd() ? nullptr : &m_array->find(pos());
}

const QtSoapType* QtSoapArrayIterator::current() const
{
    return atEnd() ? nullptr : &m_array->find(pos());
}

void QtSoapArrayIterator::operator++()
{
    if (!atEnd()) {
        ++m_index;
    }
}

bool QtSoapArrayIterator::operator!=(const QtSoapArrayIterator& j) const
{
    return !(*this == j);
}

bool QtSoapArrayIterator::operator==(const QtSoapArrayIterator& j) const
{
    return m_array == j.m_array && pos() == j.pos();
}

bool QtSoapArrayIterator::atEnd() const
{
    return m_index >= m_positions.size();
}

} // namespace TOLVAN_NAMESPACE
