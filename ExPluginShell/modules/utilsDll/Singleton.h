#pragma once

/// Gives a class one process-wide instance, built on first use.
///
/// \code
/// class CThing : public Singleton<CThing>
/// {
///     friend class Singleton<CThing>;
///     CThing();
/// };
/// Singleton<CThing>::instance().work();
/// \endcode
///
/// A class that a library exports also declares `extern template class Singleton<CThing>` after its
/// definition and instantiates it in one source of that library: every module then sees the same object.
///
/// \par Life
/// The object lives from the first call of instance() until the library that holds it is unloaded.
/// \par Threads
/// instance() may be called from several threads; a second thread waits until the object is constructed.
template <class T>
class Singleton
{
public:
    Singleton(const Singleton&) = delete;
    Singleton& operator=(const Singleton&) = delete;

    /// The one instance. The reference stays valid until the library is unloaded.
    static T& instance();

protected:
    Singleton() = default;
    ~Singleton() = default;
};

template <class T>
T& Singleton<T>::instance()
{
    static T object;
    return object;
}
