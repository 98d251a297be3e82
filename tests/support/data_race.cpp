// The thread sanitizer has to report the race in this program. That shows that the marks and suppressions of
// the tests do not hide a race in the work of items on a pool.

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
