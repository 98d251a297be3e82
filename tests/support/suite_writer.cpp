// Writes suite configuration files over and over until it is killed: every file named on the command line, each
// by a thread of its own. Ends by itself only when a file can't be written.

#include <utilsDll/Settings.h>

#include <QCoreApplication>
#include <QThread>

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace
{

class Writer : public TOLVAN_NAMESPACE::CSettings
{
public:
    using CSettings::writeSettingToConfigFile;
};

void writeForEver(const QString& path)
try {
    const QString padding(40 * 1024, QLatin1Char('x'));
    for (int i = 1;; ++i) {
        Writer::writeSettingToConfigFile(path, QStringLiteral("G"), QStringLiteral("K"),
                                         QStringLiteral("%1 %2").arg(i).arg(padding), QStringLiteral("T"));
    }
} catch (const std::exception& error) {
    std::fprintf(stderr, "suite_writer: %s\n", error.what());
    std::_Exit(3);
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList paths = QCoreApplication::arguments().mid(2);
    for (const QString& path : paths) {
        QThread::create([path] { writeForEver(path); })->start();
    }
    writeForEver(QCoreApplication::arguments().value(1));
}
