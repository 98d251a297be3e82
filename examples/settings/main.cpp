#include <utilsDll/Settings.h>
#include <utilsDll/TemporarySettings.h>

#include <QCoreApplication>

#include <memory>

using namespace TOLVAN_NAMESPACE;

namespace
{

bool showsGrid()
{
    return CSettings().value(QStringLiteral("showGrid"), false).toBool();
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    CSettings settings;
    settings.setValue(QStringLiteral("showGrid"), true);

    // A test run must not change what the user has set: all settings of the process go to a temporary file.
    auto temporary = std::make_unique<CTemporarySettings>(argv[0]);
    CSettings::setTemporarySettings(*temporary);
    const bool ofTheTestRun = showsGrid();
    settings.setValue(QStringLiteral("showGrid"), false);

    temporary.reset(); // deletes the file; the user's settings are in force again
    return !ofTheTestRun && showsGrid() ? 0 : 1;
}
