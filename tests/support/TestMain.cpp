#include "TestMain.h"

namespace TestMain
{

void prepare()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
#ifdef Q_OS_WIN
    // The screenless platform looks for fonts beside the toolkit, where there are none.
    if (!qEnvironmentVariableIsSet("QT_QPA_FONTDIR")) {
        const QByteArray given =
            qgetenv("TOLVAN_TEST_FONTS"); // Wine passes no variable of the toolkit's own on
        qputenv("QT_QPA_FONTDIR", given.isEmpty() ? QByteArray("C:/Windows/Fonts") : given);
    }
#endif
}

} // namespace TestMain
