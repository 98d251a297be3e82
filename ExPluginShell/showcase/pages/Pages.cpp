#include "Pages.h"

#include <QtCore/qglobal.h>

QVector<Page> pages()
{
    return {
        {"logging", QT_TRANSLATE_NOOP("Pages", "Logging"),
         QT_TRANSLATE_NOOP("Pages", "Every line goes through one bridge to the logger of the process."),
         &makeLoggingPage},
        {"settings", QT_TRANSLATE_NOOP("Pages", "Settings"),
         QT_TRANSLATE_NOOP("Pages",
                           "Preferences of this product, and the file that the product family shares."),
         &makeSettingsPage},
        {"storage", QT_TRANSLATE_NOOP("Pages", "Storage"),
         QT_TRANSLATE_NOOP("Pages", "Every folder and file that the product knows."), &makeStoragePage},
        {"languages", QT_TRANSLATE_NOOP("Pages", "Languages"),
         QT_TRANSLATE_NOOP("Pages",
                           "One choice for all products; texts, dates and numbers follow it at once."),
         &makeLanguagesPage},
        {"async", QT_TRANSLATE_NOOP("Pages", "Asynchronous"),
         QT_TRANSLATE_NOOP(
             "Pages",
             "Delayed calls, work items and waits: the window answers while something is under way."),
         &makeAsyncPage},
        {"files", QT_TRANSLATE_NOOP("Pages", "Files"),
         QT_TRANSLATE_NOOP("Pages", "Names, sizes, archives, the recycle bin and the file browser."),
         &makeFilesPage},
        {"style", QT_TRANSLATE_NOOP("Pages", "Appearance"),
         QT_TRANSLATE_NOOP("Pages", "Every standard widget under the product's style and style sheets."),
         &makeStylePage},
        {"message-boxes", QT_TRANSLATE_NOOP("Pages", "Message boxes"),
         QT_TRANSLATE_NOOP("Pages",
                           "The product's own boxes: 520 pixels wide, answered by mouse or keyboard."),
         &makeMessageBoxPage},
        {"drawing", QT_TRANSLATE_NOOP("Pages", "Drawing tools"),
         QT_TRANSLATE_NOOP("Pages",
                           "Guide lines and cursors of the correction tools, on a picture painted by code."),
         &makeDrawingPage},
        {"native-dialogs", QT_TRANSLATE_NOOP("Pages", "Native dialogs"),
         QT_TRANSLATE_NOOP("Pages", "The dialogs of the system for files and folders."),
         &makeNativeDialogsPage},
        {"web-service", QT_TRANSLATE_NOOP("Pages", "Web service"),
         QT_TRANSLATE_NOOP("Pages",
                           "A SOAP client and the small service that it asks, both in this process."),
         &makeWebServicePage},
    };
}
