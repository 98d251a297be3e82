#include "InstalledLogger.h"
#include "TestMain.h"
#include "Texts.h"

#include "frame/Logging.h"
#include "LogStatement.h"

#include <QLoggingCategory>

#include <limits>
#include <stdexcept>

namespace Log = TOLVAN_NAMESPACE::Logging;

namespace Module
{

template <class T>
struct Loader {
    static QString* load(const QString& path, T (*)(int))
    {
        TOLVAN_LOG(LogLevel::Warning) << "cannot read " << path << ", " << -3 << " " << 0.1 << " " << true;
        return nullptr;
    }
};

} // namespace Module

/// The bridge itself: first without a logger, which a process can't go back to, then with one.
class LoggingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutLoggerNothingIsEvaluated()
    {
        QVERIFY(!Log::logger());
        int evaluated = 0;
        UTILSDLL_LOG(LogLevel::Error, "f") << ++evaluated;
        QCOMPARE(evaluated, 0);
    }

    void assertionTexts()
    {
        const auto report = [] {
            QTest::ignoreMessage(QtDebugMsg, "ASSERT in ExPluginShell\\modules\\utilsDll\\SharedUtils:60");
            Log::reportAssertion("TOLVAN_NAMESPACE::f", "SharedUtils", 60);
            QTest::ignoreMessage(
                QtDebugMsg, "ASSERT_X in ExPluginShell\\modules\\utilsDll\\GuiUtils line 90: bad screen");
            Log::reportAssertionX("f", "GuiUtils", 90, "bad screen");
        };
        report(); // to the debug stream alone
        installedLogger().take();
        report();
        const QString path = text("ExPluginShell\\modules\\utilsDll\\");
        QCOMPARE(installedLogger().take(),
                 QStringList({text("E TOLVAN_NAMESPACE::f: ASSERT in %1SharedUtils:60").arg(path),
                              text("E f: ASSERT_X in %1GuiUtils line 90:bad screen").arg(path)}));
    }

    void lineFormat()
    {
        auto& logger = installedLogger();
        logger.take();
        const QString longText(5000, QLatin1Char('x'));
        UTILSDLL_LOG(LogLevel::Information, "A::f")
            << "n=" << 42 << ", " << -1 << text("ä日") << std::string("%s{}") << QByteArray("!");
        UTILSDLL_LOG(LogLevel::Debug, "g") << longText;
        UTILSDLL_LOG(LogLevel::Warning, "h");
        UTILSDLL_LOG(LogLevel::Error, "k")
            << static_cast<const char*>(nullptr) << true << std::numeric_limits<long long>::min();
        QCOMPARE(logger.take(), QStringList({text("I A::f: n=42, -1ä日%s{}!"), text("D g: ") + longText,
                                             text("W h: "), text("E k: 1-9223372036854775808")}));
    }

    void linesOfModules()
    {
        auto& logger = installedLogger();
        logger.take();
        Module::Loader<QList<int>>::load(text("ä.txt"), nullptr);
        const QString line = logger.take().value(0);
        QVERIFY2(line.startsWith(QLatin1String("W Module::Loader<")), qPrintable(line));
        QVERIFY2(line.endsWith(text(">::load: cannot read ä.txt, -3 0.1 true")), qPrintable(line));
    }

    void messagesOfQt()
    {
        auto& logger = installedLogger();
        TOLVAN_NAMESPACE::installQtMessageLog();
        TOLVAN_NAMESPACE::installQtMessageLog();
        logger.take();
        const QLoggingCategory network("network");
        QTest::ignoreMessage(QtWarningMsg, "plain");
        qWarning("plain");
        QTest::ignoreMessage(QtCriticalMsg, "named");
        qCCritical(network, "named");
        QTest::ignoreMessage(QtDebugMsg, "ASSERT in ExPluginShell\\modules\\utilsDll\\SharedUtils:60");
        Log::reportAssertion("f", "SharedUtils", 60);
        TOLVAN_NAMESPACE::removeQtMessageLog();
        QTest::ignoreMessage(QtWarningMsg, "not logged");
        qWarning("not logged");
        QCOMPARE(logger.take(),
                 QStringList({text("W Qt: plain"), text("E Qt network: named"),
                              text("E f: ASSERT in ExPluginShell\\modules\\utilsDll\\SharedUtils:60")}));
    }

    void throwingLoggerIsContained()
    {
        struct ThrowingLogger : RecordingLogger {
            void log(char, const char*) override { throw std::runtime_error("disk full"); }
        } logger;
        Log::Line(logger, LogLevel::Error, "f") << "text";
        QVERIFY(logger.take().isEmpty()); // still running
    }
};

TOLVAN_CORE_TEST_MAIN(LoggingTest)
#include "tst_logging.moc"
