#include "InstalledLogger.h"
#include "TestMain.h"

#include <utilsDll/customtolvanappstyle.h>

/// The style in a process that finds no plug-in of Qt but the one for its platform.
class SvgMissingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isLogged()
    {
        installedLogger().take();
        const TOLVAN_NAMESPACE::CustomTolvanAppStyle style;
        QCOMPARE(installedLogger().take(),
                 QStringList(QStringLiteral("W TOLVAN_NAMESPACE::CustomTolvanAppStyle::CustomTolvanAppStyle: "
                                            "SVG images cannot be read, icons stay empty: Qt's plug-in "
                                            "imageformats/qsvg is missing")));
    }
};

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM_PLUGIN_PATH",
            (QCoreApplication::libraryPaths().first() + QStringLiteral("/platforms")).toLocal8Bit());
    QCoreApplication::setLibraryPaths({});
    return TestMain::run<QApplication, SvgMissingTest>(argc, argv);
}

#include "tst_svgmissing.moc"
