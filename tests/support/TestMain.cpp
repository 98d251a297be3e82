#include "TestMain.h"

namespace TestMain
{

void prepare()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
#ifdef Q_OS_WIN
    // The offscreen platform looks for fonts beside Qt, where there are none.
    if (!qEnvironmentVariableIsSet("QT_QPA_FONTDIR")) {
        const QByteArray given = qgetenv("TOLVAN_TEST_FONTS"); // Wine does not pass on QT_QPA_FONTDIR
        qputenv("QT_QPA_FONTDIR", given.isEmpty() ? QByteArray("C:/Windows/Fonts") : given);
    }
#endif
}

} // namespace TestMain
