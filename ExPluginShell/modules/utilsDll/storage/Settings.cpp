#include "Settings.h"

#include "frame/Logging.h"
#include "StorageLocation.h"
#include "TemporarySettings.h"

#include <QSet>

namespace TOLVAN_NAMESPACE
{

namespace
{

const QString organisation = QStringLiteral("Tolvan");
const QString application = QStringLiteral("Trelio Frame");
const QString family = QStringLiteral("Ostra Collection");
const QString languageKey = QStringLiteral("currentLanguage");
constexpr int familyEnglish = 2;

/// Path of the temporary file set last. It is kept because the object can't be asked while it is destroyed.
/// Constructed with the library: the host's static objects are destroyed before it.
QString temporaryPath;

} // namespace

QPointer<CTemporarySettings> CSettings::m_tempSettings;

CSettings::CSettings(QObject* parent, bool persistentOnly)
    : QObject(nullptr)
    , m_settings(organisation, application, parent)
    , m_persistentOnly(persistentOnly)
{
    connectSlots();
}

CSettings::~CSettings() = default;

void CSettings::connectSlots()
{
    if (m_tempSettings) {
        connect(m_tempSettings.data(), &QObject::destroyed, this, &CSettings::logWhenTempSettingsDeleted);
    }
}

QVariant CSettings::value(const QString& key, const QVariant& defaultValue) const
{
    return usingTemporarySettings() ? m_tempSettings->m_settings->value(key, defaultValue)
                                    : m_settings.value(localKey(key), defaultValue);
}

void CSettings::setValue(const QString& key, const QVariant& value)
{
    if (usingTemporarySettings()) {
        m_tempSettings->setValue(localKey(key), value);
    } else {
        m_settings.setValue(key, value);
    }
}

bool CSettings::contains(const QString& key) const
{
    return usingTemporarySettings() ? m_tempSettings->contains(localKey(key)) : m_settings.contains(key);
}

void CSettings::remove(const QString& key)
{
    if (usingTemporarySettings()) {
        m_tempSettings->remove(localKey(key));
    } else {
        m_settings.remove(key);
    }
}

void CSettings::beginGroup(const QString& prefix)
{
    if (usingTemporarySettings()) {
        m_group = prefix;
    } else {
        m_settings.beginGroup(prefix);
    }
}

void CSettings::endGroup()
{
    if (usingTemporarySettings()) {
        m_group.clear();
    } else {
        m_settings.endGroup();
    }
}

QString CSettings::group() const
{
    return usingTemporarySettings() ? m_group : m_settings.group();
}

int CSettings::beginReadArray(const QString& prefix)
{
    return usingTemporarySettings() ? m_tempSettings->beginReadArray(prefix)
                                    : m_settings.beginReadArray(prefix);
}

void CSettings::beginWriteArray(const QString& prefix, int size)
{
    if (usingTemporarySettings()) {
        m_tempSettings->beginWriteArray(prefix, size);
    } else {
        m_settings.beginWriteArray(prefix, size);
    }
}

void CSettings::endArray()
{
    if (usingTemporarySettings()) {
        m_tempSettings->endArray();
    } else {
        m_settings.endArray();
    }
}

void CSettings::setArrayIndex(int i)
{
    if (usingTemporarySettings()) {
        m_tempSettings->setArrayIndex(i);
    } else {
        m_settings.setArrayIndex(i);
    }
}

void CSettings::sync()
{
    if (usingTemporarySettings()) {
        m_tempSettings->sync();
    } else {
        m_settings.sync();
    }
}

bool CSettings::usingTemporarySettings() const
{
    return !m_persistentOnly && m_tempSettings;
}

QString CSettings::localKey(const QString& key) const
{
    return m_group.isEmpty() ? key : QStringLiteral("%1/%2").arg(m_group).arg(key);
}

void CSettings::setTemporarySettings(CTemporarySettings& settings)
{
    // The compiler may remove a test of a reference for null; it can't remove one of a volatile pointer.
    CTemporarySettings* const volatile address = &settings;
    switchTemporarySettings(address);
}

void CSettings::resetTemporarySettings()
{
    switchTemporarySettings(nullptr);
}

void CSettings::switchTemporarySettings(CTemporarySettings* settings)
{
    m_tempSettings = settings;
    temporaryPath = settings ? settings->tempSettingsPath() : QString();
    const char* const function = "TOLVAN_NAMESPACE::CSettings::setTemporarySettings";
    if (settings) {
        UTILSDLL_LOG(LogLevel::Debug, function) << "Info: settings are now stored in file: " << temporaryPath;
    } else {
        UTILSDLL_LOG(LogLevel::Debug, function) << "Info: settings are now stored in system";
    }
}

void CSettings::logWhenTempSettingsDeleted()
{
    const char* const function = "TOLVAN_NAMESPACE::CSettings::logWhenTempSettingsDeleted";
    UTILSDLL_LOG(LogLevel::Debug, function) << "Temporary settings file is to be destoyed: " << temporaryPath;
    UTILSDLL_LOG(LogLevel::Debug, function) << "Persistent settings will be used";
}

QString CSettings::getStringFromPreferencesFile(const QString& key, const QString& defaultValue)
{
    const QSettings preferences(CStorageLocation::getCurrentPreferencesFilePath(), QSettings::IniFormat);
    const QString text = preferences.value(key, defaultValue).toString();
    return text.isEmpty() ? defaultValue : text;
}

QVariant CSettings::getLanguageFromOstraConfiguration()
{
    static const QSet<unsigned> supported{0, 2, 5, 12, 13};
    const QSettings settings(organisation, family);
    const QVariant language = settings.value(languageKey, familyEnglish);
    if (supported.contains(language.toUInt())) {
        return language;
    }
    UTILSDLL_LOG(LogLevel::Information, "TOLVAN_NAMESPACE::CSettings::getLanguageFromOstraConfiguration")
        << "OSTRA Collection uses the language with code " << language.toString()
        << " that is not supported by Trelio Frame. English is used instead.";
    return familyEnglish;
}

void CSettings::writeLanguageToOstraConfiguration(int language)
{
    QSettings(organisation, family).setValue(languageKey, language);
}

} // namespace TOLVAN_NAMESPACE
