#include "Pages.h"

#include <QtCore/qglobal.h>

QVector<Page> pages()
{
    return {
        {"workplace", QT_TRANSLATE_NOOP("Pages", "Workplace"), "", &makeWorkplace,
         "plugin_bar/plugin_bar_single_picture.svg", "RulesMachine.cpp", &walkWorkplace, true},
        {"settings", QT_TRANSLATE_NOOP("Pages", "Settings"),
         QT_TRANSLATE_NOOP("Pages",
                           "Preferences of this product, and the file that the product family shares."),
         &makeSettingsPage, "settingsPanel/settings_general.svg", "SettingsPage.cpp", &walkSettings},
        {"languages", QT_TRANSLATE_NOOP("Pages", "Languages"),
         QT_TRANSLATE_NOOP("Pages",
                           "One choice for all products; texts, dates and numbers follow it at once."),
         &makeLanguagesPage, "settingsPanel/settings_language.svg", "LanguagesPage.cpp", &walkLanguages},
        {"storage", QT_TRANSLATE_NOOP("Pages", "Storage"),
         QT_TRANSLATE_NOOP("Pages", "Every folder and file that the product knows."), &makeStoragePage,
         "toolbar/filebrowser/view_list.svg", "StoragePage.cpp", &walkStorage},
        {"state", QT_TRANSLATE_NOOP("Pages", "State and process"),
         QT_TRANSLATE_NOOP("Pages",
                           "What the product remembers about its launches, and the process it runs in."),
         &makeStatePage, "settingsPanel/settings_performance.svg", "StatePage.cpp", &walkState},
        {"files", QT_TRANSLATE_NOOP("Pages", "Files"),
         QT_TRANSLATE_NOOP("Pages", "Names, sizes, archives and the file browser."), &makeFilesPage,
         "toolbar/filebrowser/folder_up.svg", "FilesPage.cpp", &walkFiles},
        {"async", QT_TRANSLATE_NOOP("Pages", "Asynchronous"),
         QT_TRANSLATE_NOOP(
             "Pages",
             "Delayed calls, work items and waits: the window answers while something is under way."),
         &makeAsyncPage, "processing/processing_running.svg", "AsyncPage.cpp", &walkAsync},
        {"resources", QT_TRANSLATE_NOOP("Pages", "Resources"),
         QT_TRANSLATE_NOOP("Pages",
                           "Icons, fonts, countries, rules and style sheets that come with the library."),
         &makeResourcesPage, "toolbar/filebrowser/view_thumbnails.svg", "ResourcesPage.cpp", &walkResources,
         true},
        {"style", QT_TRANSLATE_NOOP("Pages", "Appearance"),
         QT_TRANSLATE_NOOP("Pages", "Standard widgets under the product's style and style sheets, in the "
                                    "states that they can be in."),
         &makeStylePage, "settingsPanel/settings_display.svg", "StylePage.cpp", nullptr, true},
        {"message-boxes", QT_TRANSLATE_NOOP("Pages", "Message boxes"),
         QT_TRANSLATE_NOOP("Pages",
                           "The product's own boxes: 520 pixels wide, answered by mouse or keyboard."),
         &makeMessageBoxPage, "toolbar/help.svg", "MessageBoxPage.cpp"},
        {"fatal", QT_TRANSLATE_NOOP("Pages", "Fatal messages"),
         QT_TRANSLATE_NOOP("Pages", "Texts that can be shown when the process is in trouble, without "
                                    "allocating memory."),
         &makeFatalPage, "crashSender/crash_sender.svg", "FatalPage.cpp"},
        {"web-service", QT_TRANSLATE_NOOP("Pages", "Web service"),
         QT_TRANSLATE_NOOP("Pages",
                           "A SOAP client and the small service that it asks, both in this process."),
         &makeWebServicePage, "aboutDialog_vantora/about_website.svg", "WebServicePage.cpp", &walkWebService,
         true},
        {"logging", QT_TRANSLATE_NOOP("Pages", "Log"),
         QT_TRANSLATE_NOOP("Pages", "Every line goes through one bridge to the logger of the process."),
         &makeLoggingPage, "cafDialog/caf_file.svg", "LoggingPage.cpp", &walkLogging, true},
    };
}
