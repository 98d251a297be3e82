#include "LogModel.h"
#include "pages/Pages.h"
#include "Report.h"
#include "Screenshots.h"
#include "ShowcaseWindow.h"

#include <utilsDll/customtolvanappstyle.h>
#include <utilsDll/LanguageManager.h>
#include <utilsDll/Settings.h>
#include <utilsDll/SharedUtils.h>
#include <utilsDll/StorageLocation.h>
#include <utilsDll/TemporarySettings.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTranslator>

#include <algorithm>
#include <memory>

namespace
{

int runConsole()
{
    Report report;
    auto all = pages();
    std::rotate(all.begin(), all.end() - 1,
                all.end()); // the log first, so that it has the lines of the others
    for (const Page& page : all) {
        if (page.walk) {
            report.heading(QString::fromLatin1(page.title));
            page.walk(report);
        }
    }
    return report.finish() ? 0 : 1;
}

/// A host with a log of its own starts it before it hands it in.
void startLog()
{
    using namespace TOLVAN_NAMESPACE;
    if (isLoggerEnabled()) {
        LogModel::instance(); // has the lines from the first one on
        LiveLog& log = LiveLog::instance();
        const QString level = getLogLevel(); // may be stored as an empty text
        log.init(CStorageLocation::loggerFilesPath().toStdString(), "showcase",
                 level.isEmpty() ? '\0' : level.at(0).toLatin1());
        initLoggerForUtilsDll(&log, QString());
        log.log(LogLevel::Information, "showcase: the host's own logger is at work");
    }
}

bool hasNoDisplay()
{
    return QGuiApplication::platformName() == QLatin1String("offscreen");
}

/// Keeps the showcase's own texts in the language of the library. The library carries only its own texts and Qt's,
/// so each host brings a catalogue of its own and follows the language manager.
void followLanguage()
{
    auto* const languages = TOLVAN_NAMESPACE::CLanguageManager::instance();
    auto* const texts = new QTranslator(qApp);
    const auto follow = [=] {
        QCoreApplication::removeTranslator(texts);
        if (texts->load(QStringLiteral(":/showcase/showcase_%1.qm").arg(languages->currentLanguageAbbrv()))) {
            QCoreApplication::installTranslator(texts);
        }
    };
    QObject::connect(languages, &TOLVAN_NAMESPACE::CLanguageManager::languageChanged, texts, follow);
    follow();
}

/// Language and appearance, as every host of the product sets them once at start-up.
void applyAppearance()
{
    using namespace TOLVAN_NAMESPACE;
    if (hasNoDisplay()) { // its letters are larger than those of any desktop
        QFont font = QApplication::font();
        font.setPixelSize(13);
        QApplication::setFont(font);
    }
    CLanguageManager::instance()->loadLanguageForApp();
    followLanguage();
    loadFonts();
    loadAppLogoIcon();
    QApplication::setStyle(new CustomTolvanAppStyle);
    setPredefinedAppStyleSheet(QString(), qApp);
}

int runWindow(const QString& screenshots)
{
    startLog();
    applyAppearance();
    if (!screenshots.isEmpty() || hasNoDisplay()) {
        const QString folder = QDir::temp().filePath(QStringLiteral("trelio-showcase"));
        return writeScreenshots(screenshots.isEmpty() ? folder : screenshots) ? 0 : 1;
    }
    ShowcaseWindow window;
    window.show();
    return QApplication::exec();
}

/// Chooses the screenless platform for pictures and where there is no display, unless the caller chose one.
void choosePlatform(bool forPictures)
{
    const bool windows = QSysInfo::kernelType() == QLatin1String("winnt");
    const bool display =
        windows || !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if ((forPictures || !display) && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

/// The kind of application has to be known before the command line can be parsed in full.
bool hasOption(int argc, char* argv[], const char* option)
{
    return std::any_of(argv, argv + argc,
                       [=](const char* argument) { return QByteArray(argument).startsWith(option); });
}

} // namespace

int main(int argc, char* argv[])
{
    const bool inConsole = hasOption(argc, argv, "--console") || hasOption(argc, argv, "--help");
    choosePlatform(hasOption(argc, argv, "--screenshots"));
    const std::unique_ptr<QCoreApplication> application(inConsole ? new QCoreApplication(argc, argv)
                                                                  : new QApplication(argc, argv));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("A host that uses UtilsDllTrelioFrame as the product does."));
    parser.addHelpOption();
    const QString temporary = QStringLiteral("temporary");
    const QString screenshots = QStringLiteral("screenshots");
    parser.addOptions(
        {{QStringLiteral("console"), QStringLiteral("Walk the subsystems and print a report.")},
         {temporary, QStringLiteral("Keep settings in a temporary file for this run.")},
         {screenshots, QStringLiteral("Write every page as a picture."), QStringLiteral("folder")}});
    parser.process(*application);

    std::unique_ptr<CTemporarySettings> settings;
    if (parser.isSet(temporary)) {
        settings = std::make_unique<CTemporarySettings>(argv[0]);
        TOLVAN_NAMESPACE::CSettings::setTemporarySettings(*settings);
    }
    return inConsole ? runConsole() : runWindow(parser.value(screenshots));
}
