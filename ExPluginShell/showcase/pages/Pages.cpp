#include "Pages.h"

#include <QtCore/qglobal.h>

QVector<Page> pages()
{
    return {
        {"logging", QT_TRANSLATE_NOOP("Pages", "Logging"),
         QT_TRANSLATE_NOOP("Pages", "Every line goes through one bridge to the logger of the process."),
         &makeLoggingPage},
        {"style", QT_TRANSLATE_NOOP("Pages", "Look"),
         QT_TRANSLATE_NOOP("Pages", "Every standard widget under the product's style and style sheets."),
         &makeStylePage},
        {"web-service", QT_TRANSLATE_NOOP("Pages", "Web service"),
         QT_TRANSLATE_NOOP("Pages", "A SOAP client and the small service that it asks, both in this process."),
         &makeWebServicePage},
        {"files", QT_TRANSLATE_NOOP("Pages", "Files"),
         QT_TRANSLATE_NOOP("Pages", "Names, sizes, archives, the recycle bin and the file browser."),
         &makeFilesPage},
    };
}
