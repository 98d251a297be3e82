// Writes a suite configuration file over and over until it is killed.

#include <utilsDll/Settings.h>

#include <QCoreApplication>

#include <cstdio>

namespace
{

class Writer : public TOLVAN_NAMESPACE::CSettings
{
public:
    using CSettings::writeSettingToConfigFile;
};

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QString path = QCoreApplication::arguments().value(1);
    const QString group = QStringLiteral("G");
    const QString longValue(200000, QLatin1Char('x'));
    for (int i = 0;; ++i) {
        Writer::writeSettingToConfigFile(path, group, QStringLiteral("K"), longValue + QString::number(i),
                                         QStringLiteral("T"));
        if (i == 0) {
            std::puts("writing");
            std::fflush(stdout);
        }
    }
}
