#pragma once

#include "qtsoaparray.h"

#include <QVector>

namespace TOLVAN_NAMESPACE
{

/// \brief Visits the items of an array in ascending absolute position; gaps are passed over.
///
/// `for (QtSoapArrayIterator it(a); !it.atEnd(); ++it)`. The array must outlive the iterator and must not
/// change meanwhile.
class UTILSDLL_EXPORT QtSoapArrayIterator
{
public:
    /// Starts on the first item of \a array.
    QtSoapArrayIterator(QtSoapArray& array);

    /// Stands where \a copy stands.
    QtSoapArrayIterator(const QtSoapArrayIterator& copy);
    ~QtSoapArrayIterator();

    /// Goes where \a j stands.
    QtSoapArrayIterator& operator=(const QtSoapArrayIterator& j);

    /// Absolute position of the item, for an array of any rank; -1 past the end.
    int pos() const;

    /// Fills one coordinate per dimension; null pointers are passed over, those beyond the rank left alone.
    void pos(int* pos0, int* pos1 = nullptr, int* pos2 = nullptr, int* pos3 = nullptr,
             int* pos4 = nullptr) const;

    /// The item; null past the end. It belongs to the array.
    QtSoapType* data();

    /// \copydoc data
    const QtSoapType* current() const;

    /// Goes on to the next item; stays past the end.
    void operator++();

    /// Whether two iterators stand on different items, or in different arrays.
    bool operator!=(const QtSoapArrayIterator& j) const;

    /// Whether two iterators stand on the same item of the same array.
    bool operator==(const QtSoapArrayIterator& j) const;

    /// False while the iterator stands on an item.
    bool atEnd() const;

private:
    QtSoapArray* m_array; ///< not owned
    QVector<int> m_positions;
    int m_index = 0;
};

} // namespace TOLVAN_NAMESPACE
