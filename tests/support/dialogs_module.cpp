#include <utilsDll/NativeDialogs.h>

/// Another module of the process: which object does it reach?
extern "C" Q_DECL_EXPORT void* nativeDialogsOfModule()
{
    return &Singleton<TOLVAN_NAMESPACE::CNativeDialogs>::instance();
}
