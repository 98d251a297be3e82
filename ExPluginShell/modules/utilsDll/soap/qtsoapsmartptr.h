#pragma once

#include "../utilsdll_global.h"

#include <memory>
#include <QSharedData>
#include <QTypeInfo>

namespace TOLVAN_NAMESPACE
{

/// \brief Shared ownership of one heap object; the last owner deletes it.
///
/// Copies share the object. The count is atomic, the object itself is not guarded. There is no conversion to
/// bool, no comparison and no reset: assign an empty pointer instead.
///
/// \tparam T type of the object; deleted through this type, so a base class needs a virtual destructor.
template <class T>
class QtSmartPtr
{
public:
    /// Takes ownership of \a data, which must come from `new`; null makes an empty pointer.
    QtSmartPtr(T* data = nullptr)
        : d(data ? new Block(data) : nullptr)
    {
    }

    /// The object itself; undefined for an empty pointer.
    T& operator*() const { return *ptr(); }

    /// Access to the members of the object; undefined for an empty pointer.
    T* operator->() const { return ptr(); }

    /// The object, or null for an empty pointer. Ownership stays here.
    T* ptr() const { return d ? d->raw : nullptr; }

    /// The object itself, like `operator*`.
    T& ref() const { return *ptr(); }

    /// \brief Ends the ownership of this pointer and of all its copies.
    /// \return the object, which the caller now deletes; null for an empty pointer. The copies go on pointing
    /// to it and know nothing of its end.
    T* releasedPtr() const { return d ? (static_cast<void>(d->owner.release()), d->raw) : nullptr; }

    /// True when there is no object.
    bool isNull() const { return !ptr(); }

private:
    struct Block : QSharedData {
        explicit Block(T* data)
            : owner(data)
            , raw(data)
        {
        }
        std::unique_ptr<T> owner; ///< empty once released
        T* raw;
    };
    QExplicitlySharedDataPointer<Block> d;
};

class QtSoapType;

} // namespace TOLVAN_NAMESPACE

/// Lets `QList` and `QHash` keep the pointers of values in place: one allocation less for every value of a
/// message.
Q_DECLARE_TYPEINFO(TOLVAN_NAMESPACE::QtSmartPtr<TOLVAN_NAMESPACE::QtSoapType>, Q_MOVABLE_TYPE);
