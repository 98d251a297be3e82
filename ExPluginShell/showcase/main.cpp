#include "Report.h"
#include "sections/Sections.h"

#include <utilsDll/Settings.h>
#include <utilsDll/TemporarySettings.h>

#include <QCommandLineParser>
#include <QCoreApplication>

#include <memory>

namespace
{

int runConsole()
{
    Report report;
    for (const Section& section : sections()) {
        report.heading(QString::fromLatin1(section.title));
        section.run(report);
    }
    return report.finish() ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("A host that uses UtilsDllTrelioFrame as the product does."));
    parser.addHelpOption();
    const QCommandLineOption console(QStringLiteral("console"),
                                     QStringLiteral("Walk the subsystems and print a report."));
    const QCommandLineOption temporary(QStringLiteral("temporary"),
                                       QStringLiteral("Keep settings in a temporary file for this run."));
    parser.addOptions({console, temporary});
    parser.process(application);

    std::unique_ptr<CTemporarySettings> settings;
    if (parser.isSet(temporary)) {
        settings = std::make_unique<CTemporarySettings>(argv[0]);
        TOLVAN_NAMESPACE::CSettings::setTemporarySettings(*settings);
    }
    return runConsole();
}
