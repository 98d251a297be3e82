#include "TestMain.h"
#include "Texts.h"

#include "platform/Modules.h"

#include <QLibrary>

using TOLVAN_NAMESPACE::Platform::loadedModulePath;

// Loads the library as a host does that was not linked with it. The names are those of the compilers' common
// C++ ABI.
class TestLibraryLoad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadsWorksAndLeavesAHundredTimes()
    {
        const QString fileName = text(UTILSDLL_FILE_NAME);
        const QDir folder(QCoreApplication::applicationDirPath());
        for (int round = 0; round < 100; ++round) {
            QVERIFY2(loadedModulePath(fileName).isEmpty(), "the library is in memory before it is loaded");
            QLibrary library(folder.filePath(fileName));
            QVERIFY2(library.load(), qPrintable(library.errorString()));
            QCOMPARE(QFileInfo(loadedModulePath(fileName)), QFileInfo(folder.filePath(fileName)));

            const auto appDataLocation = reinterpret_cast<QString (*)(const QString&)>(
                library.resolve("_ZN16TOLVAN_NAMESPACE16CStorageLocation15appDataLocationERK7QString"));
            QVERIFY2(appDataLocation, qPrintable(library.errorString()));
            const QString location = appDataLocation(text("Trelio Frame"));
            QVERIFY2(location.endsWith(QDir::toNativeSeparators(text("/Tolvan/Trelio Frame/"))),
                     qPrintable(location));
            QVERIFY2(library.unload(), qPrintable(library.errorString()));
        }
        QVERIFY2(loadedModulePath(fileName).isEmpty(), "the library stays in memory");
    }

    // In a library loaded afresh, which has not yet given the answer that it keeps.
    void knowsTheFolderOfTheConnector()
    {
        const QDir folder(QCoreApplication::applicationDirPath());
        const QTemporaryDir product;
        const QString path = product.filePath(text("PhotoshopPlugin-connectorTrelioFrame.dll"));
        QVERIFY(QFile::copy(folder.filePath(text("fake_logger.dll")), path));
        QLibrary library(folder.filePath(text(UTILSDLL_FILE_NAME)));
        const auto getQtPluginsDir =
            reinterpret_cast<QString (*)(bool)>(library.resolve("_ZN16TOLVAN_NAMESPACE15getQtPluginsDirEb"));
        QVERIFY2(getQtPluginsDir, qPrintable(library.errorString()));
        QCOMPARE(getQtPluginsDir(true), QString());
        QLibrary connector(path);
        QVERIFY2(connector.load(), qPrintable(connector.errorString()));
        const QString found =
            QDir::toNativeSeparators(QDir(product.path()).canonicalPath() + QLatin1Char('/'));
        QCOMPARE(getQtPluginsDir(true), found);
        QCOMPARE(getQtPluginsDir(false), found); // the first answer is kept
        QVERIFY(connector.unload() && library.unload());
    }
};

TOLVAN_CORE_TEST_MAIN(TestLibraryLoad)

#include "tst_libraryload.moc"
