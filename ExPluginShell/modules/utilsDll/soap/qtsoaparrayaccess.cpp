#include "qtsoaparray.h"

#include <limits>

namespace TOLVAN_NAMESPACE
{

QtSoapType& QtSoapArray::at(int pos0)
{
    return find(pos0);
}

const QtSoapType& QtSoapArray::at(int pos0) const
{
    return find(pos0);
}

QtSoapType& QtSoapArray::at(int pos0, int pos1)
{
    return find(absolute({pos0, pos1}));
}

const QtSoapType& QtSoapArray::at(int pos0, int pos1) const
{
    return find(absolute({pos0, pos1}));
}

QtSoapType& QtSoapArray::at(int pos0, int pos1, int pos2)
{
    return find(absolute({pos0, pos1, pos2}));
}

const QtSoapType& QtSoapArray::at(int pos0, int pos1, int pos2) const
{
    return find(absolute({pos0, pos1, pos2}));
}

QtSoapType& QtSoapArray::at(int pos0, int pos1, int pos2, int pos3)
{
    return find(absolute({pos0, pos1, pos2, pos3}));
}

const QtSoapType& QtSoapArray::at(int pos0, int pos1, int pos2, int pos3) const
{
    return find(absolute({pos0, pos1, pos2, pos3}));
}

QtSoapType& QtSoapArray::at(int pos0, int pos1, int pos2, int pos3, int pos4)
{
    return find(absolute({pos0, pos1, pos2, pos3, pos4}));
}

const QtSoapType& QtSoapArray::at(int pos0, int pos1, int pos2, int pos3, int pos4) const
{
    return find(absolute({pos0, pos1, pos2, pos3, pos4}));
}

QtSoapType& QtSoapArray::operator[](int index)
{
    return find(index);
}

const QtSoapType& QtSoapArray::operator[](int index) const
{
    return find(index);
}

const QtSoapType* QtSoapArray::named(const QtSoapQName& name) const
{
    const QVector<int> order = positions();
    for (const int position : order) {
        const QtSoapType& item = find(position);
        if (item.name() == name) {
            return &item;
        }
    }
    return nullptr;
}

QtSoapType& QtSoapArray::operator[](const QtSoapQName& name)
{
    const QtSoapType* const item = named(name);
    return item ? const_cast<QtSoapType&>(*item) : missing();
}

const QtSoapType& QtSoapArray::operator[](const QtSoapQName& name) const
{
    const QtSoapType* const item = named(name);
    return item ? *item : missingConst();
}

QtSoapType& QtSoapArray::operator[](const QString& name)
{
    return (*this)[QtSoapQName(name)];
}

const QtSoapType& QtSoapArray::operator[](const QString& name) const
{
    return (*this)[QtSoapQName(name)];
}

void QtSoapArray::append(QtSoapType* item)
{
    place(m_sizes.size() == 1 && lastIndex < std::numeric_limits<int>::max() - 1 ? lastIndex + 1 : -1, item);
}

void QtSoapArray::insert(int pos0, QtSoapType* item)
{
    place(pos0, item);
}

void QtSoapArray::insert(int pos0, int pos1, QtSoapType* item)
{
    place(absolute({pos0, pos1}), item);
}

void QtSoapArray::insert(int pos0, int pos1, int pos2, QtSoapType* item)
{
    place(absolute({pos0, pos1, pos2}), item);
}

void QtSoapArray::insert(int pos0, int pos1, int pos2, int pos3, QtSoapType* item)
{
    place(absolute({pos0, pos1, pos2, pos3}), item);
}

void QtSoapArray::insert(int pos0, int pos1, int pos2, int pos3, int pos4, QtSoapType* item)
{
    place(absolute({pos0, pos1, pos2, pos3, pos4}), item);
}

} // namespace TOLVAN_NAMESPACE
