#pragma once

#include "qtsoapstruct.h"

namespace TOLVAN_NAMESPACE
{

/// \brief Visits the children of a struct in their order.
///
/// `for (QtSoapStructIterator it(s); it.current(); ++it)`. The struct must outlive the iterator and must not
/// change meanwhile.
class UTILSDLL_EXPORT QtSoapStructIterator
{
public:
    /// Starts on the first child of \a s.
    QtSoapStructIterator(QtSoapStruct& s);

    /// Stands where the other one stands.
    QtSoapStructIterator(const QtSoapStructIterator&) = default;

    /// Goes where the other one stands.
    QtSoapStructIterator& operator=(const QtSoapStructIterator&) = default;
    ~QtSoapStructIterator();

    /// Name of the child; empty past the end.
    QtSoapQName key() const;

    /// The child; null past the end. It belongs to the struct.
    QtSoapType* data();

    /// \copydoc data
    const QtSoapType* current() const;

    /// Goes on to the next child; stays past the end.
    void operator++();

    /// Whether two iterators stand on different children, or in different structs.
    bool operator!=(const QtSoapStructIterator& j) const;

    /// Whether two iterators stand on the same child of the same struct.
    bool operator==(const QtSoapStructIterator& j) const;

private:
    QtSoapStruct* m_struct; ///< not owned
    int m_index = 0;
};

} // namespace TOLVAN_NAMESPACE
