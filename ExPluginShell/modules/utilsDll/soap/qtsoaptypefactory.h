#pragma once

#include "qtsoaptype.h"

#include <QHash>
#include <QMutex>

namespace TOLVAN_NAMESPACE
{

/// Makes values of one class out of elements; the interface of what QtSoapTypeFactory calls.
class UTILSDLL_EXPORT QtSoapTypeConstructorBase
{
public:
    QtSoapTypeConstructorBase();
    virtual ~QtSoapTypeConstructorBase();

    /// A new value for the element \a node, owned by the caller; null, and errorString() says why, when it is
    /// none.
    virtual QtSoapType* createObject(QDomNode node) = 0;

    /// Why the latest createObject() returned null.
    virtual QString errorString() const = 0;
};

/// \brief Makes values of the class \a T, which has a default constructor, `parse()` and `errorString()`.
///
/// Keeps the error of the latest call: one object serves one thread at a time.
template <class T>
class QtSoapTypeConstructor : public QtSoapTypeConstructorBase
{
public:
    QtSoapTypeConstructor() = default;

    /// \copydoc QtSoapTypeConstructorBase::createObject
    QtSoapType* createObject(QDomNode node) override
    {
        auto object = std::make_unique<T>();
        const bool parsed = object->parse(node);
        m_error = parsed ? QString() : object->errorString();
        return parsed ? object.release() : nullptr;
    }

    /// \copydoc QtSoapTypeConstructorBase::errorString
    QString errorString() const override { return m_error; }

private:
    QString m_error;
};

/// \brief Chooses the class of the values that messages are read into.
///
/// By its `xsi:type` an element becomes what the handler of that type name makes of it; the built-in types
/// have handlers of their own. Without a known type it becomes an array when it has an `arrayType`, a struct
/// when it has child elements, and else a simple value of type String.
///
/// One object for the process; handlers may be registered from any thread. A handler is called in the thread
/// that reads, so in several at a time when several read.
class UTILSDLL_EXPORT QtSoapTypeFactory
{
public:
    ~QtSoapTypeFactory();

    /// The factory of this process.
    static QtSoapTypeFactory& instance();

    /// \brief Has \a handler make the values whose type has the local name \a name.
    /// \param handler stays the caller's and must live as long as messages are read
    /// \return false when the name is empty or taken, by a built-in type or another handler, or the handler is
    /// null.
    bool registerHandler(const QString& name, QtSoapTypeConstructorBase* handler);

    /// The value of the element \a node; an empty pointer, and errorString() says why, on failure.
    QtSmartPtr<QtSoapType> soapType(QDomNode node) const;

    /// Why the latest soapType() of any thread failed; empty when it did not.
    QString errorString() const;

private:
    friend class SoapValueReader;
    QtSoapTypeFactory();
    Q_DISABLE_COPY(QtSoapTypeFactory)

    /// The registered handler for a type name, null when there is none.
    QtSoapTypeConstructorBase* handler(const QString& name) const;

    mutable QMutex m_mutex;
    QHash<QString, QtSoapTypeConstructorBase*> m_handlers; ///< owned by those who registered them
    mutable QString m_error;
};

} // namespace TOLVAN_NAMESPACE
