#include "qtsoapstructiterator.h"

namespace TOLVAN_NAMESPACE
{

QtSoapStructIterator::QtSoapStructIterator(QtSoapStruct& s)
    : m_struct(&s)
{
}

QtSoapStructIterator::~QtSoapStructIterator() = default;

QtSoapQName QtSoapStructIterator::key() const
{
    return current() ? current()->name() : QtSoapQName();
}

QtSoapType* QtSoapStructIterator::data()
{
    return m_index < m_struct->dict.size() ? m_struct->dict.at(m_index).ptr() : nullptr;
}

const QtSoapType* QtSoapStructIterator::current() const
{
    return m_index < m_struct->dict.size() ? m_struct->dict.at(m_index).ptr() : nullptr;
}

void QtSoapStructIterator::operator++()
{
    if (m_index < m_struct->dict.size()) {
        ++m_index;
    }
}

bool QtSoapStructIterator::operator!=(const QtSoapStructIterator& j) const
{
    return !(*this == j);
}

bool QtSoapStructIterator::operator==(const QtSoapStructIterator& j) const
{
    return m_struct == j.m_struct && m_index == j.m_index;
}

} // namespace TOLVAN_NAMESPACE
