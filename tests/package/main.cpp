#include <utilsDll/Settings.h>
#include <utilsDll/SharedUtils.h>
#include <utilsDll/TemporarySettings.h>

#include <QCoreApplication>
#include <QTextStream>

// Uses the installed library as the README shows it.
int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    CTemporarySettings temporary(argv[0]);
    TOLVAN_NAMESPACE::CSettings::setTemporarySettings(temporary);

    TOLVAN_NAMESPACE::setLastLaunchMode(QStringLiteral("Package"));
    const QString mode = TOLVAN_NAMESPACE::getLastLaunchMode();
    QTextStream(stdout) << mode << '\n';
    return mode == QStringLiteral("Package") ? 0 : 1;
}
