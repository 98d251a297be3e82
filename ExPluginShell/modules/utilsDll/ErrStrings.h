#pragma once

#include "utilsdll_global.h"

#include <QString>

namespace TOLVAN_NAMESPACE
{

/// The fatal messages of the product, translated in advance.
///
/// Showing one allocates no memory and needs no Qt widget: the texts, and what the system needs to show them,
/// are prepared while the process is healthy. Keep one instance, call Retranslate() after each language
/// change, and call one of the Show... operations from the handler of the fatal error.
///
/// \code
/// static TOLVAN_NAMESPACE::CErrStrings errStrings;
/// std::set_new_handler([] { errStrings.ShowOutOfMemoryInPhotoshopDialog(); std::abort(); });
/// \endcode
///
/// \par Copies
/// A copy shares the texts and stays valid when the original is destroyed or retranslated.
/// \par Systems
/// On Windows the system's modal message box appears, owned by the active window if there is one. On Unix the
/// box is shown by a message program (kdialog, zenity or xmessage), which is looked up when the texts are
/// prepared. As the box may fail to appear there, title and text are also written to standard error.
/// \par Threads
/// Retranslate() and copying belong to the main thread. The Show... operations may be called from any thread
/// and block it until the user has closed the box.
class UTILSDLL_EXPORT CErrStrings
{
public:
    /// Prepares the texts in the current language.
    CErrStrings();
    ~CErrStrings();
    /// Shares the prepared texts of the other object.
    CErrStrings(const CErrStrings&) = default;
    /// Shares the prepared texts of the other object.
    CErrStrings& operator=(const CErrStrings&) = default;

    /// Prepares all texts again in the installed language. Without a translator the texts are
    /// their English keys.
    void Retranslate();

    /// Shows that the program cannot start because the drive of the temporary folder has too little free
    /// space. On Unix the message names the folder.
    void ShowSmallFreeSpaceDialog() const;
    /// Shows that the program is out of memory and will be closed.
    void ShowOutOfMemoryDialog() const;
    /// Shows that the plug-in is out of memory and the photo editor may become unstable.
    void ShowOutOfMemoryInPhotoshopDialog() const;
    /// Shows that the program will be closed because of an unhandled exception.
    void ShowUnhandledExceptionDialog() const;

private:
    void ClearData();
    void show(const ushort* text) const;

    QString m_title;
    QString m_smallFreeSpace;
    QString m_outOfMemory;
    QString m_outOfMemoryInHost;
    QString m_unhandledException;
    // The characters of the texts above, in the same order; null until the texts are prepared.
    const ushort* m_titleText = nullptr;
    const ushort* m_smallFreeSpaceText = nullptr;
    const ushort* m_outOfMemoryText = nullptr;
    const ushort* m_outOfMemoryInHostText = nullptr;
    const ushort* m_unhandledExceptionText = nullptr;
};

} // namespace TOLVAN_NAMESPACE
