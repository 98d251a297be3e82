#pragma once

#include "ExportedTemplate.h"
#include "Singleton.h"

#include <QVariant>

#include <memory>
#include <tuple>
#include <type_traits>

class QObject;
class CDelayedCall;

// Declared before the class, so that a module that includes this header does not build a second instance.
extern template class UTILSDLL_TEMPLATE_DECLARED Singleton<CDelayedCall>;

/// Calls a method of an object after a delay. The product uses it for debouncing.
///
/// A second request for the same object and method cancels the pending call and starts the delay again. A
/// burst of requests therefore results in one call, made after the last request. With \a singleShot false the
/// call is repeated at every interval until it is discarded.
/// \code
/// void CPreview::onSliderMoved()
/// {
///     CDelayedCall::invoke(100, this, "render");                        // once, 100 ms after the last move
///     CDelayedCall::invokeWithArgs(100, this, "setZoom", QVariant(50)); // a slot setZoom(int)
/// }
/// \endcode
///
/// \par Key of a call
/// A call is identified by the calling thread, the object and the text of the method name. Texts are compared
/// with qstrcmp(): equal texts at different addresses name the same method.
/// \par Threads
/// Every thread has its own pending calls: invoke(), discard() and isActive() see only those of the calling
/// thread and need no lock. A call falls due in the thread that requested it. That thread has to run an event
/// loop; without one the call stays pending until the thread ends. If the target lives in another thread, Qt
/// queues the due call into that thread. A thread that was not started by QThread has no event dispatcher and
/// gets no timer: its requests are dropped with Qt's warning.
/// \par End of a pending call
/// A pending call ends when its timer fires (single shot), when it is discarded or replaced by a new request,
/// when its thread ends, and in the main thread when the application object is destroyed. A destroyed target
/// is not called; no message is written. The timer of a periodic call keeps running after its target has been
/// destroyed, until the thread ends.
/// \par Inside the called method
/// The method may discard its own call, request it again (the new request is kept), and delete any target.
/// \par Unloading the library, and the end of the program
/// Pending calls of the unloading thread are dropped. Other threads with pending calls that process events
/// drop theirs at once; the unloading thread waits for them, one second at most. A thread that has pending
/// calls and processes no events at that moment has to end, or to discard its calls, before the library is
/// unloaded. Static objects of the program that are destroyed after the singleton may still call these
/// functions, without effect.
class UTILSDLL_EXPORT CDelayedCall : public Singleton<CDelayedCall>
{
    friend class Singleton<CDelayedCall>;

    /// Whether the last of the types is no bool, but the language converts it to one.
    template <class... Types>
    static constexpr bool endsWithFalseFlag()
    {
        if constexpr (sizeof...(Types) > 0) {
            using Last = std::decay_t<std::tuple_element_t<sizeof...(Types) - 1, std::tuple<Types...>>>;
            return !std::is_same_v<Last, bool> && !std::is_class_v<Last> && std::is_convertible_v<Last, bool>;
        } else {
            return false;
        }
    }

public:
    /// Requests a call of \a method of \a object in \a msec milliseconds.
    ///
    /// Does not block and never calls \a method itself; with a delay of 0 the call is made on the next pass
    /// of the event loop. The timer is coarse: up to 5 percent early or late. An earlier request of the same
    /// key is cancelled, even if no timer can be started for the new one. A method that does not exist is
    /// reported by Qt's warning when the call falls due.
    /// \param msec       delay in milliseconds; a request with a negative delay is dropped with Qt's warning
    /// \param object     the target, not owned; null does nothing
    /// \param method     plain name of a slot or invokable, without brackets and without SLOT(); null does
    ///                   nothing. The pointer is kept, not the text: pass a literal, or keep the text until
    ///                   the call is made
    /// \param singleShot true calls once, false calls every \a msec milliseconds until discard()
    static void invoke(int msec, QObject* object, const char* method, bool singleShot = true);

    /// \name Calls with arguments
    /// invoke() for a method with one to nine parameters. The type names of the variants have to be exactly
    /// those of the parameters: `QVariant(5)` calls `setValue(int)`, `QVariant(5.0)` does not. Write
    /// `QVariant(...)` for each argument: a plain number, enumerator or pointer in the last place could be
    /// taken for the flag and does not compile.
    /// @{

    /// Requests a call with arguments, see invoke().
    using Arg = const QVariant&;
    static void invokeWithArgs(int msec, QObject* object, const char* method, Arg a1, bool singleShot = true);
    static void invokeWithArgs(int msec, QObject* object, const char* method, Arg a1, Arg a2,
                               bool singleShot = true);
    static void invokeWithArgs(int msec, QObject* object, const char* method, Arg a1, Arg a2, Arg a3,
                               bool singleShot = true);
    static void invokeWithArgs(int msec, QObject* object, const char* method, Arg a1, Arg a2, Arg a3, Arg a4,
                               bool singleShot = true);
    static void invokeWithArgs(int msec, QObject* object, const char* method, Arg a1, Arg a2, Arg a3, Arg a4,
                               Arg a5, bool singleShot = true);
    static void invokeWithArgs(int msec, QObject* object, const char* method, Arg a1, Arg a2, Arg a3, Arg a4,
                               Arg a5, Arg a6, bool singleShot = true);
    static void invokeWithArgs(int msec, QObject* object, const char* method, Arg a1, Arg a2, Arg a3, Arg a4,
                               Arg a5, Arg a6, Arg a7, bool singleShot = true);
    static void invokeWithArgs(int msec, QObject* object, const char* method, Arg a1, Arg a2, Arg a3, Arg a4,
                               Arg a5, Arg a6, Arg a7, Arg a8, bool singleShot = true);
    static void invokeWithArgs(int msec, QObject* object, const char* method, Arg a1, Arg a2, Arg a3, Arg a4,
                               Arg a5, Arg a6, Arg a7, Arg a8, Arg a9, bool singleShot = true);
    template <class First, class... More, std::enable_if_t<endsWithFalseFlag<More...>(), int> = 0>
    static void invokeWithArgs(int msec, QObject* object, const char* method, const First& a1,
                               const More&... more) = delete;
    /// @}

    /// Cancels the calling thread's pending call of \a object and \a method. Does nothing if there is
    /// no such call.
    /// \param object the target of the call; null does nothing
    /// \param method name of the method; null cancels every pending call of \a object
    static void discard(QObject* object, const char* method);

    /// Whether a call of \a object and \a method is pending in the calling thread. False for null arguments
    /// and for a destroyed object, also before the timer fires.
    static bool isActive(QObject* object, const char* method);

private:
    class Store;

    CDelayedCall();
    ~CDelayedCall();

    std::unique_ptr<Store> m_store;
};
