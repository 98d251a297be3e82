#include "platform/Display.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QScreen>

namespace TOLVAN_NAMESPACE::Platform
{

double logicalDotsPerInch(double inRatio)
{
    constexpr double unscaled = 96.0;
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInchX() * inRatio : unscaled;
}

bool usesHighContrast()
{
    if (!qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) {
        return false; // Qt would start a bus
    }
    constexpr int longestWait = 500; // ms
    const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(service)) {
        return false;
    }
    QDBusMessage question = QDBusMessage::createMethodCall(
        service, QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
    question << QStringLiteral("org.freedesktop.appearance") << QStringLiteral("contrast");
    QVariant value = bus.call(question, QDBus::Block, longestWait).arguments().value(0);
    while (value.canConvert<QDBusVariant>()) { // the portal wraps it twice
        value = value.value<QDBusVariant>().variant();
    }
    return value.toUInt() == 1;
}

} // namespace TOLVAN_NAMESPACE::Platform
