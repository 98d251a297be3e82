// Has to be reported by the thread sanitizer: it shows that what the tests tell it about the toolkit, and
// what they suppress, leaves it able to see a race in the work of items on a pool.

#include "HappensBefore.h"

#include <utilsDll/RunnableItem.h>

#include <QCoreApplication>

namespace
{

int unguarded = 0;

class RacingItem : public TakenOver<CQRunnableItem>
{
    bool doRun() override
    {
        for (int i = 0; i < 1000 && !stopRequired(); ++i) {
            ++unguarded;
        }
        return true;
    }
};

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QThreadPool pool;
    pool.setMaxThreadCount(4);
    for (int i = 0; i < 100; ++i) {
        startOn(pool, *new RacingItem);
    }
    return finishOn(pool) ? 0 : 1;
}
