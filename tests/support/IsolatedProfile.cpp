#include "IsolatedProfile.h"

#include <QDir>
#include <QFile>
#include <QSettings>

IsolatedProfile::IsolatedProfile()
{
#ifndef Q_OS_WIN
    const QDir root(m_root.path());
    // A test that becomes an ordinary user still needs this folder.
    QFile::setPermissions(m_root.path(),
                          QFile::permissions(m_root.path()) | QFile::ExeGroup | QFile::ExeOther);
    const QByteArray rest = ":" + qgetenv("XDG_DATA_DIRS") + ":/usr/local/share:/usr/share";
    const auto redirect = [&](const char* variable, const char* name,
                              const QByteArray& suffix = QByteArray()) {
        root.mkpath(QString::fromLatin1(name));
        qputenv(variable, root.filePath(QString::fromLatin1(name)).toLocal8Bit() + suffix);
    };
    if (qEnvironmentVariableIsEmpty("LC_ALL") && qEnvironmentVariableIsEmpty("LANG")) {
        qputenv("LC_ALL", "C.UTF-8"); // file names are UTF-8 also without a locale
    }
    redirect("HOME", "home");
    redirect("XDG_DATA_HOME", "data");
    redirect("XDG_CONFIG_HOME", "config");
    redirect("XDG_CACHE_HOME", "cache");
    redirect("XDG_CONFIG_DIRS", "machine-config");
    redirect("XDG_DATA_DIRS", "machine-data", rest);
    redirect("TMPDIR", "tmp");
    redirect("XDG_RUNTIME_DIR", "run");
    QFile::setPermissions(root.filePath(QStringLiteral("run")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
#endif
    clearStores();
}

IsolatedProfile::~IsolatedProfile()
{
    clearStores();
}

void IsolatedProfile::clearStores()
{
    QSettings(QStringLiteral("Tolvan"), QStringLiteral("Trelio Frame")).clear();
    QSettings(QStringLiteral("Tolvan"), QStringLiteral("Ostra Collection")).clear();
    QSettings(QStringLiteral("Tolvan")).clear();
#ifdef Q_OS_WIN
    QSettings(QStringLiteral("HKEY_CURRENT_USER\\Software\\Tolvan\\"), QSettings::NativeFormat)
        .remove(QStringLiteral("UserID"));
#endif
}
