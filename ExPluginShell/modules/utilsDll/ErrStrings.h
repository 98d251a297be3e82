#pragma once

#include "utilsdll_global.h"

#include <QString>

namespace TOLVAN_NAMESPACE
{

/// The few fatal messages that must still be shown when the process is in trouble, translated ahead of time.
///
/// Showing one needs no allocation and no Qt widget: the texts, and what the system needs to show them, are
/// prepared while the process is healthy. Keep one instance, call Retranslate() after each language change,
/// and one of the Show... operations from the emergency handler.
///
/// \code
/// static TOLVAN_NAMESPACE::CErrStrings errStrings;
/// std::set_new_handler([] { errStrings.ShowOutOfMemoryInPhotoshopDialog(); std::abort(); });
/// \endcode
///
/// \par Copies
/// A copy shares the texts and stays valid when the original is destroyed or retranslated.
/// \par Systems
/// On Windows the system's own modal message box appears, owned by the active window if there is one.
/// Elsewhere it is the box of a message program (kdialog, zenity or xmessage) that was found when the texts
/// were prepared; without one, or without a display, title and text are written to standard error.
/// \par Threads
/// Retranslate() and copying belong to the main thread. The Show... operations may be called from any thread
/// and block it until the user has closed the box.
class UTILSDLL_EXPORT CErrStrings
{
public:
    /// Prepares the texts in the current language.
    CErrStrings();
    ~CErrStrings();
    /// Takes over the texts of the other as they are prepared.
    CErrStrings(const CErrStrings&) = default;
    /// Takes over the texts of the other as they are prepared.
    CErrStrings& operator=(const CErrStrings&) = default;

    /// Prepares all texts again, in the language that is installed now. Without a translator the keys of the
    /// texts are shown.
    void Retranslate();

    /// Too little free space on the drive of the temporary folder: the program cannot start. Where paths have
    /// no drive the message names the folder.
    void ShowSmallFreeSpaceDialog() const;
    /// Out of memory in a program of its own, which will be closed.
    void ShowOutOfMemoryDialog() const;
    /// Out of memory inside the photo editor, which may become unstable.
    void ShowOutOfMemoryInPhotoshopDialog() const;
    /// An unhandled exception: the program will be closed.
    void ShowUnhandledExceptionDialog() const;

private:
    void ClearData();
    void show(const ushort* text) const;

    QString m_title;
    QString m_smallFreeSpace;
    QString m_outOfMemory;
    QString m_outOfMemoryInHost;
    QString m_unhandledException;
    // The characters of the texts above, in the same order; null until they are prepared.
    const ushort* m_titleText = nullptr;
    const ushort* m_smallFreeSpaceText = nullptr;
    const ushort* m_outOfMemoryText = nullptr;
    const ushort* m_outOfMemoryInHostText = nullptr;
    const ushort* m_unhandledExceptionText = nullptr;
};

} // namespace TOLVAN_NAMESPACE
