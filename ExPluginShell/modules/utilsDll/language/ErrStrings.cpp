#include "ErrStrings.h"

#include "platform/FatalMessage.h"

#include <QApplication>
#include <QObject>
#include <QStandardPaths>
#include <QWidget>

namespace TOLVAN_NAMESPACE
{

namespace
{

/// The drive that \a path is on, such as "C:\"; the path itself if it names no drive.
QString driveOf(const QString& path)
{
    const int colon = path.indexOf(QLatin1Char(':'));
    return colon < 0 ? path : path.left(colon) + QStringLiteral(":\\");
}

quintptr activeWindowHandle()
{
    const QWidget* const window = qApp ? QApplication::activeWindow() : nullptr;
    return window ? window->winId() : 0;
}

} // namespace

CErrStrings::CErrStrings()
{
    Retranslate();
}

CErrStrings::~CErrStrings() = default;

void CErrStrings::Retranslate()
{
    const QString product = QStringLiteral("Trelio Frame");
    const QString drive = driveOf(QStandardPaths::writableLocation(QStandardPaths::TempLocation));
    m_title = QObject::tr("Error");
    m_smallFreeSpace = QObject::tr("Windows small space message on drive %1").arg(drive);
    m_outOfMemory = QObject::tr("Out of memory. Program will be closed.");
    m_outOfMemoryInHost =
        QObject::tr("%1 has run out of memory. The application may now become unstable. Please close %2 and "
                    "Photoshop, quit all other programs running, and try again.")
            .arg(product)
            .arg(product);
    m_unhandledException = QObject::tr("Unhandled exception. Program will be closed.");

    m_titleText = m_title.utf16();
    m_smallFreeSpaceText = m_smallFreeSpace.utf16();
    m_outOfMemoryText = m_outOfMemory.utf16();
    m_outOfMemoryInHostText = m_outOfMemoryInHost.utf16();
    m_unhandledExceptionText = m_unhandledException.utf16();
    Platform::prepareFatalMessages();
}

void CErrStrings::show(const ushort* text) const
{
    if (m_titleText && text) {
        Platform::showFatalMessage(text, m_titleText, activeWindowHandle());
    }
}

void CErrStrings::ShowSmallFreeSpaceDialog() const
{
    show(m_smallFreeSpaceText);
}

void CErrStrings::ShowOutOfMemoryDialog() const
{
    show(m_outOfMemoryText);
}

void CErrStrings::ShowOutOfMemoryInPhotoshopDialog() const
{
    show(m_outOfMemoryInHostText);
}

void CErrStrings::ShowUnhandledExceptionDialog() const
{
    show(m_unhandledExceptionText);
}

void CErrStrings::ClearData() {}

} // namespace TOLVAN_NAMESPACE
