// Shows Qt's read-write lock to the thread sanitizer, which sees only code that was built with it: the calls of
// the program and of the library pass through here on their way to Qt. Only in builds with that sanitizer.

#include <QReadWriteLock>
#include <QVector>

#include <dlfcn.h>

extern "C" void __tsan_acquire(void* address);
extern "C" void __tsan_release(void* address);

namespace
{

/// The two orders of the lock: a writer comes after all earlier holders, a reader after earlier writers only.
void* writers(QReadWriteLock* lock)
{
    return lock;
}
void* readers(QReadWriteLock* lock)
{
    return reinterpret_cast<char*>(lock) + 1;
}

thread_local QVector<const QReadWriteLock*> heldForWrite;

void callQt(const char* symbol, QReadWriteLock* lock)
{
    using Operation = void (*)(QReadWriteLock*);
    reinterpret_cast<Operation>(dlsym(RTLD_NEXT, symbol))(lock);
}

} // namespace

void QReadWriteLock::lockForRead()
{
    callQt("_ZN14QReadWriteLock11lockForReadEv", this);
    __tsan_acquire(writers(this));
}

void QReadWriteLock::lockForWrite()
{
    callQt("_ZN14QReadWriteLock12lockForWriteEv", this);
    heldForWrite.append(this);
    __tsan_acquire(writers(this));
    __tsan_acquire(readers(this));
}

void QReadWriteLock::unlock()
{
    __tsan_release(heldForWrite.removeOne(this) ? writers(this) : readers(this));
    callQt("_ZN14QReadWriteLock6unlockEv", this);
}
