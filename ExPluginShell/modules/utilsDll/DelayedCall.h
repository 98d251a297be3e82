#pragma once

#include "Singleton.h"
#include "utilsdll_global.h"

#include <QVariant>

#include <memory>

class QObject;
class CDelayedCall;

// Declared before the class: no module that includes this header builds an instance of its own.
extern template class UTILSDLL_EXPORT Singleton<CDelayedCall>;

/// Calls a method of an object after a delay: the debouncing tool of the product.
///
/// Asking again for the same object and method cancels the pending call and starts the delay afresh, so
/// that a burst of requests becomes one call, made after the last of them. With \a singleShot false the
/// call repeats at every interval until it is discarded.
/// \code
/// void CPreview::onSliderMoved()
/// {
///     CDelayedCall::invoke(100, this, "render");                        // once, 100 ms after the last move
///     CDelayedCall::invokeWithArgs(100, this, "setZoom", QVariant(50)); // a slot setZoom(int)
/// }
/// \endcode
///
/// \par Key of a call
/// The object and the text of the method name (compared with qstrcmp(): equal texts at different addresses
/// are the same method), within the calling thread.
/// \par Threads
/// Every thread has pending calls of its own, without a lock: invoke(), discard() and isActive() see those
/// of the calling thread and no others. A call falls due in the thread that asked for it, so that thread
/// has to run an event loop; without one the call stays pending until the thread ends. If the target lives
/// in another thread, the call is then queued into that thread by Qt. A thread without an event dispatcher,
/// that is one not started by QThread, gets no timer: its requests are dropped with Qt's warning.
/// \par What ends a pending call
/// Its timer (single shot), discard(), a new request for the same key, the end of its thread, and for the
/// main thread the end of the application object. A target that is destroyed is not called; no message is
/// written. The timer of a periodic call goes on idly after its target is gone, until the thread ends.
/// \par Inside the called method
/// It may discard itself, ask for itself again (the new request stands), delete its target or any other.
/// \par Unloading the library
/// Pending calls of the unloading thread are dropped. Other threads that turn their event loop drop theirs
/// at once and are waited for, one second at most; a thread with pending calls that is busy elsewhere at
/// that moment has to end, or to discard its calls, before the library is unloaded.
class UTILSDLL_EXPORT CDelayedCall : public Singleton<CDelayedCall>
{
    friend class Singleton<CDelayedCall>;

public:
    /// Asks for a call of \a method of \a object in \a msec milliseconds.
    ///
    /// Does not block and never calls \a method itself, not even with a delay of 0 (then: on the next pass
    /// of the event loop). The timer is a coarse one: up to 5 percent early or late. The arguments and the
    /// flag of an earlier request of the same key are replaced; that request is cancelled also when no
    /// timer could be started for the new one. A method that does not exist is reported when the call falls
    /// due, by Qt's own warning only.
    /// \param msec       delay in milliseconds; with a negative one the request is dropped, with Qt's
    ///                   warning
    /// \param object     the target, not owned; null: nothing happens
    /// \param method     plain name of a slot or invokable, without brackets and without SLOT(); null:
    ///                   nothing happens. The pointer is kept, not the text: pass a literal, or keep the
    ///                   text until the call is made
    /// \param singleShot true: call once; false: call every \a msec milliseconds until discard()
    static void invoke(int msec, QObject* object, const char* method, bool singleShot = true);

    /// \name Calls with arguments
    /// invoke() for a method with one to nine parameters. The type names of the variants have to be exactly
    /// those of the parameters: `QVariant(5)` calls `setValue(int)`, `QVariant(5.0)` does not. Write
    /// `QVariant(...)` out: a bare number in the last place would be taken for the flag.
    /// @{

    /// Asks for a call with arguments, see invoke().
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
    /// @}

    /// Cancels the calling thread's pending call of \a object and \a method; with a null \a method every
    /// pending call of \a object. Nothing happens when there is none or \a object is null.
    static void discard(QObject* object, const char* method);

    /// Whether a call of \a object and \a method is pending in the calling thread. False for null
    /// arguments, and for an object that has been destroyed, even before its timer fires.
    static bool isActive(QObject* object, const char* method);

private:
    class Store;

    CDelayedCall();
    ~CDelayedCall();

    std::unique_ptr<Store> m_store;
};
