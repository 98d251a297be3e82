#include <utilsDll/LogStatement.h>
#include <utilsDll/RunnableItem.h>
#include <utilsDll/Settings.h>
#include <utilsDll/SharedUtils.h>

#include <QCoreApplication>
#include <QThreadPool>

using namespace TOLVAN_NAMESPACE;

/// Counts the photographs that were processed so far, in another thread.
class CounterItem : public CQRunnableItem
{
    bool doRun() override
    {
        CSettings settings;
        const int count = settings.value(QStringLiteral("firstModule/photographs"), 0).toInt() + 1;
        settings.setValue(QStringLiteral("firstModule/photographs"), count);
        TOLVAN_LOG(LogLevel::Information) << "photograph " << count;
        return true;
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    initLoggerForUtilsDll(nullptr, QStringLiteral("FirstModule"));

    auto* const item = new CounterItem;
    QObject::connect(item, SIGNAL(finished(bool, bool)), &application, SLOT(quit()));
    QThreadPool::globalInstance()->start(item); // the pool deletes the item
    return application.exec();
}
