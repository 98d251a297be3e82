#include "platform/ShellSelection.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

constexpr int longestWait = 900; // milliseconds

/// Without an address the bus library would try to start a bus, which takes long.
bool sessionBusIsKnown()
{
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

/// Every reserved byte is encoded, including "#", "%" and "?".
QString uriOf(const QString& file)
{
    const QByteArray path = QFile::encodeName(QFileInfo(file).absoluteFilePath());
    return QStringLiteral("file://") + QString::fromLatin1(path.toPercentEncoding("/"));
}

bool fileManagerShows(const QStringList& uris)
{
    if (!sessionBusIsKnown()) {
        return false;
    }
    const QString name = QStringLiteral("UtilsDllTrelioFrame.selection");
    bool shown = false;
    {
        const QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
        if (bus.isConnected()) {
            QDBusMessage call = QDBusMessage::createMethodCall(
                QStringLiteral("org.freedesktop.FileManager1"),
                QStringLiteral("/org/freedesktop/FileManager1"),
                QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
            call << uris << QString();
            const QDBusMessage reply = bus.call(call, QDBus::Block, longestWait);
            // A file manager that is still starting has received the request.
            shown = reply.type() == QDBusMessage::ReplyMessage ||
                    reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.NoReply") ||
                    reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.Timeout");
        }
    }
    QDBusConnection::disconnectFromBus(name);
    return shown;
}

} // namespace

bool selectInFileBrowser(const QString& folder, const QStringList& files)
{
    QStringList uris;
    for (const QString& file : files) {
        uris += uriOf(file);
    }
    if (!uris.isEmpty() && !fileManagerShows(uris)) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(folder).absoluteFilePath()));
    }
    return true;
}

} // namespace TOLVAN_NAMESPACE::Platform
