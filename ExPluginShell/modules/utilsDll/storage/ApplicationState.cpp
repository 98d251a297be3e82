#include "ApplicationState.h"

#include "platform/Modules.h"
#include "platform/UserStore.h"
#include "Settings.h"
#include "StorageLocation.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QMutex>
#include <QProcess>
#include <QSettings>
#include <QUuid>

namespace TOLVAN_NAMESPACE
{

namespace
{

const QString launchedKey = QStringLiteral("app_launched");
const QString launchModeKey = QStringLiteral("app_launchMode");
const QString crashCounterPrefix = QStringLiteral("crashCounter_");
const QString userIdKey = QStringLiteral("UserID");
const QString resellerIdKey = QStringLiteral("resellerId");
const QString loggerLevelKey = QStringLiteral("loggerLevel");
const QString loggerEnabledKey = QStringLiteral("loggerEnabled");
const QString actionSaveKey = QStringLiteral("UseActionSave");
const QString crashReportKey = QStringLiteral("TolvanSentCrashReport");
const QString connectorModule = QStringLiteral("PhotoshopPlugin-connectorTrelioFrame.dll");

constexpr int lockTimeout = 5000; // milliseconds

const QString yes = QStringLiteral("1");
const QString no = QStringLiteral("0");

/// \return false only if the stored text is exactly "0"
bool readSwitch(const QString& key, const QVariant& defaultValue)
{
    return CSettings().value(key, defaultValue).toString() != no;
}

void setSwitch(const QString& key, bool on)
{
    CSettings().setValue(key, on ? yes : no);
}

/// The identifier that another process has stored meanwhile, or else a new one, which is stored.
QString newUserID(QSettings& store)
{
    static QMutex mutex;
    static QString unsaved; // so that all calls agree if the store can't be written
    const QMutexLocker locker(&mutex);
    const QString folder = CStorageLocation::appDataLocation(QString());
    QDir().mkpath(folder);
    QLockFile lock(folder + QStringLiteral("UserID.lock"));
    lock.tryLock(lockTimeout); // without it the identifier is stored, too
    store.sync();
    QString id = store.value(userIdKey).toString();
    if (!id.isEmpty()) {
        return id;
    }
    id = unsaved.isEmpty() ? QUuid::createUuid().toString(QUuid::WithoutBraces) : unsaved;
    store.setValue(userIdKey, id);
    store.sync();
    unsaved = store.status() == QSettings::NoError ? QString() : id;
    return id;
}

} // namespace

bool isFirstLaunch()
{
    return !CSettings().value(launchedKey, QVariant()).isValid();
}

void setNotFirstLaunch()
{
    CSettings().setValue(launchedKey, 1);
}

QString getLastLaunchMode()
{
    return CSettings().value(launchModeKey, QString()).toString();
}

void setLastLaunchMode(const QString& mode)
{
    CSettings().setValue(launchModeKey, mode);
}

void incrementCrashCounter()
{
    const QString key = crashCounterPrefix + getLastLaunchMode();
    CSettings settings;
    settings.setValue(key, settings.value(key, 0).toInt() + 1);
}

int crashCounterForPlugin(const QString& mode)
{
    return CSettings().value(crashCounterPrefix + mode, 0).toInt();
}

void crashCounterReset(const QString& mode)
{
    CSettings settings;
    settings.setValue(crashCounterPrefix + mode, 0);
    settings.remove(crashCounterPrefix + mode);
}

QString getUserID()
{
    const auto store = Platform::companyStore();
    const QString id = store->value(userIdKey).toString();
    return id.isEmpty() ? newUserID(*store) : id;
}

QString getResellerID()
{
    return QStringLiteral("Tolvan");
}

void setResellerID(const QString& id)
{
    CSettings().setValue(resellerIdKey, id);
}

QString getLogLevel()
{
    return CSettings().value(loggerLevelKey, QStringLiteral("D")).toString();
}

void setLogLevel(const QString& level)
{
    CSettings().setValue(loggerLevelKey, level);
}

bool isLoggerEnabled()
{
    return readSwitch(loggerEnabledKey, yes);
}

void setLoggerEnabled(bool enabled)
{
    setSwitch(loggerEnabledKey, enabled);
}

bool useActionSave()
{
    // The boolean default reads as the text "false", which is not "0": a missing value means yes.
    return readSwitch(actionSaveKey, false);
}

bool isStatisticSent()
{
    return true;
}

void setStatisticSent(bool allowed)
{
    CSettings::writeSettingToOstraGlobalConfigFile(QStringLiteral("Instrumentation"),
                                                   QStringLiteral("AllowSending"), allowed ? yes : no,
                                                   QStringLiteral("bool"));
}

bool crashReportSendingAllowed()
{
    return readSwitch(crashReportKey, yes);
}

void allowCrashReportSending(bool allowed)
{
    setSwitch(crashReportKey, allowed);
}

void startCrashSender()
{
    QProcess::execute(QStringLiteral("CrashSender"), QStringList());
}

QString getQtPluginsDir(bool fromConnector)
{
    static QString folder;
    if (!folder.isEmpty()) {
        return folder;
    }
    if (!fromConnector) {
        folder = QCoreApplication::applicationDirPath();
        return folder;
    }
    const QString connector = Platform::loadedModulePath(connectorModule);
    if (!connector.isEmpty()) {
        const QString path = QDir::cleanPath(QFileInfo(connector).canonicalPath());
        folder = QDir::toNativeSeparators(path) + QDir::separator();
    }
    return folder;
}

} // namespace TOLVAN_NAMESPACE
