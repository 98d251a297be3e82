#include "TemporarySettings.h"

#include "frame/Logging.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

namespace
{

const QString seedFileName = QStringLiteral("DefaultTemporarySettings.ini");
const QString productName = QStringLiteral("TrelioFrame");
const QString unwritablePath = QStringLiteral(":/TrelioFrame.ini"); // no system writes to its resources

/// File of the object constructed last; stays after that object is gone.
/// Constructed with the library: the host's static objects are destroyed before it.
QString lastSettingsPath;

} // namespace

CTemporarySettings::CTemporarySettings(const char* programPath)
    : QObject(nullptr)
{
    m_tempDir = std::make_unique<QTemporaryDir>(QDir::tempPath() + QDir::separator() +
                                                QUuid::createUuid().toString());
    m_tempDir->setAutoRemove(true);
    if (!m_tempDir->isValid()) {
        TOLVAN_NAMESPACE::Logging::reportAssertionX("CTemporarySettings::CTemporarySettings",
                                                    "TemporarySettings", 25,
                                                    "Temporary folder is not valid!");
    }
    const QString fileName = QStringLiteral("%1.ini").arg(productName);
    lastSettingsPath = QDir::toNativeSeparators(m_tempDir->path() + QDir::separator() + fileName);
    if (!m_tempDir->isValid()) {
        // The path reported above leads to the top of the file system, where a privileged program may write.
        m_settings = std::make_unique<QSettings>(unwritablePath, QSettings::IniFormat);
        return;
    }
    const QString path = lastSettingsPath;
    if (programPath) {
        const QDir programFolder = QFileInfo(QFile::decodeName(programPath)).absoluteDir();
        QFile::copy(programFolder.absoluteFilePath(seedFileName), path);
        // A seed installed read-only must not make the settings read-only.
        QFile::setPermissions(path, QFile::permissions(path) | QFile::ReadOwner | QFile::WriteOwner);
    }
    m_settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
}

CTemporarySettings::~CTemporarySettings()
{
    // What is still pending has to be written before the folder goes: the settings object would write it when
    // it dies, and make the folder again for it.
    m_settings->sync();
    const QString folder = m_tempDir->path();
    const bool ownsFolder = m_tempDir->isValid();
    m_tempDir.reset();
    m_settings.reset();
    if (ownsFolder) {
        QDir(folder).removeRecursively();
    }
}

const QString& CTemporarySettings::tempSettingsPath() const
{
    return m_sharedSettingsPath.isEmpty() ? lastSettingsPath : m_sharedSettingsPath;
}

void CTemporarySettings::setSharedSettingsPath(const QString& path)
{
    m_sharedSettingsPath = path;
}

QVariant CTemporarySettings::value(const QString& key, const QVariant& defaultValue) const
{
    return m_settings->value(key, defaultValue);
}

bool CTemporarySettings::contains(const QString& key) const
{
    return m_settings->contains(key);
}

int CTemporarySettings::beginReadArray(const QString& prefix)
{
    return m_settings->beginReadArray(prefix);
}

void CTemporarySettings::beginWriteArray(const QString& prefix, int size)
{
    m_settings->beginWriteArray(prefix, size);
}

void CTemporarySettings::endArray()
{
    m_settings->endArray();
}

void CTemporarySettings::setArrayIndex(int i)
{
    m_settings->setArrayIndex(i);
}

void CTemporarySettings::sync()
{
    m_settings->sync();
}

void CTemporarySettings::setValue(const QString& key, const QVariant& value)
{
    m_settings->setValue(key, value);
    m_settings->sync();
}

void CTemporarySettings::remove(const QString& key)
{
    m_settings->remove(key);
    m_settings->sync();
}

void CTemporarySettings::clear()
{
    m_settings->clear();
    m_settings->sync();
}
