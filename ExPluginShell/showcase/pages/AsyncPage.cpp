#include "Pages.h"
#include "PageWidget.h"
#include "Report.h"

#include <utilsDll/DelayedCall.h>
#include <utilsDll/ExcludeUserInpuEventLoop.h>
#include <utilsDll/OperationCompletionWaiter.h>

#include <memory>

namespace
{
constexpr int debounceDelay = 150; // milliseconds, as the others
constexpr int tickInterval = 200;
constexpr int waitDuration = 2000;
constexpr int deliveryTime = 50;

} // namespace

/// Delayed calls, waits and the completion waiter, to try out by hand. Work items are at work on the workplace.
class AsyncPage : public PageWidget
{
    Q_OBJECT

public:
    explicit AsyncPage(QWidget* parent)
        : PageWidget(parent)
    {
        addDelayedCalls();
        addWaits();
        column()->addStretch();
    }

    void prepareForPicture() override
    {
        for (int value = 1; value <= 40; ++value) {
            m_slider->setValue(value);
        }
        CExcludeUserInpuEventLoop().exec(debounceDelay + deliveryTime);
    }

private Q_SLOTS: // called by name
    void render()
    {
        ++m_renders;
        say(m_burst, [this] {
            return tr("%n request(s)", "", m_requests) + QStringLiteral("  →  ") +
                   tr("%n call(s)", "", m_renders);
        });
    }

    void tick()
    {
        ++m_tickCount;
        say(m_ticks, [this] { return tr("%n call(s)", "", m_tickCount); });
    }

    void countHeldClicks()
    {
        const int clicks = m_clickCount - m_clicksBefore;
        say(m_wait, [clicks] {
            return tr("The wait is over. %n click(s) held back and delivered afterwards.", "", clicks);
        });
    }

private:
    /// Adds a line that say() changes.
    QLabel* addNote(const char* text)
    {
        auto* const label = new QLabel(this);
        label->setWordWrap(true);
        say(label, [text] { return tr(text); });
        column()->addWidget(label);
        return label;
    }

    void addDelayedCalls()
    {
        addTitle(QT_TR_NOOP("Delayed calls"));
        m_slider = withText(new QSlider(Qt::Horizontal), QT_TR_NOOP("Requests"), "accessibleName");
        connect(m_slider, &QSlider::valueChanged, this, [this] {
            ++m_requests;
            CDelayedCall::invoke(debounceDelay, this, "render");
        });
        column()->addWidget(m_slider);
        m_burst = addNote(QT_TR_NOOP("Move the slider: its many requests become one call."));
        auto* const periodic = makeButton(QT_TR_NOOP("Periodic call"), [] {});
        periodic->setCheckable(true);
        connect(periodic, &QPushButton::toggled, this, &AsyncPage::togglePeriodic);
        addButtons({periodic});
        m_ticks = addNote(QT_TR_NOOP("Not running."));
    }

    void addWaits()
    {
        addTitle(QT_TR_NOOP("Waits"));
        auto* const clicks = new QLabel(this);
        say(clicks, [] { return tr("No clicks yet."); });
        addButtons({makeButton(QT_TR_NOOP("Wait, input excluded"), [this] { waitWithoutInput(); }),
                    makeButton(QT_TR_NOOP("Wait for a worker"), [this] { waitForWorker(); }),
                    makeButton(QT_TR_NOOP("Click me meanwhile"), [=] {
                        ++m_clickCount;
                        say(clicks, [this] { return tr("%n click(s)", "", m_clickCount); });
                    })});
        auto* const bar = new QProgressBar;
        bar->setRange(0, waitDuration);
        bar->setTextVisible(false);
        column()->addWidget(bar);
        m_wait =
            addNote(QT_TR_NOOP("While the page waits, clicks are held back and delivered after the wait."));
        column()->addWidget(clicks);
        auto* const timer = new QTimer(this); // goes on while the page waits
        connect(timer, &QTimer::timeout, bar,
                [bar, timer] { bar->setValue((bar->value() + timer->interval()) % waitDuration); });
        timer->start(40);
    }

    void togglePeriodic(bool on)
    {
        if (on) {
            m_tickCount = 0;
            CDelayedCall::invoke(tickInterval, this, "tick", false);
            say(m_ticks, [] { return tr("Every %1 ms.").arg(tickInterval); });
        } else {
            CDelayedCall::discard(this, "tick");
            say(m_ticks, [this] { return tr("Stopped after %n call(s).", "", m_tickCount); });
        }
    }

    //! [code]
    void waitWithoutInput()
    {
        m_clicksBefore = m_clickCount;
        say(m_wait, [] { return tr("Waiting for %1 ms. Clicks are held back.").arg(waitDuration); });
        CExcludeUserInpuEventLoop loop;
        loop.exec(waitDuration);
        CDelayedCall::invoke(deliveryTime, this, "countHeldClicks"); // what was held back arrives first
    }
    //! [code]

    void waitForWorker()
    {
        const std::unique_ptr<QThread> worker(QThread::create([] { QThread::msleep(waitDuration); }));
        TOLVAN_NAMESPACE::COperationCompletionWaiter waiter(worker.get(), SIGNAL(finished()));
        say(m_wait, [] { return tr("Waiting for a worker. Clicks are delivered at once."); });
        const QPointer<AsyncPage> self(this); // the user may close the page meanwhile
        worker->start();
        waiter.startWaiting();
        worker->wait();
        if (self) {
            say(m_wait, [] { return tr("The worker has finished."); });
        }
    }

    QSlider* m_slider = nullptr;
    QLabel* m_burst = nullptr;
    QLabel* m_ticks = nullptr;
    QLabel* m_wait = nullptr;
    int m_requests = 0, m_renders = 0;
    int m_tickCount = 0;
    int m_clickCount = 0, m_clicksBefore = 0;
};

QWidget* makeAsyncPage(QWidget* parent)
{
    return new AsyncPage(parent);
}

namespace
{
/// Turns the event loop until \a done, ten seconds at most. Input is excluded, timers and queued calls go on.
template <class Condition>
void turnLoopUntil(Condition done)
{
    for (const QDeadlineTimer limit(10000); !done() && !limit.hasExpired();) {
        CExcludeUserInpuEventLoop().exec(5);
    }
}

void walkDelayedCalls(Report& report)
{
    QTimer target; // its slot start() counts as well as any other
    int calls = 0;
    target.setSingleShot(true);
    QObject::connect(&target, &QTimer::timeout, [&calls] { ++calls; });
    for (int i = 0; i < 10; ++i) {
        CDelayedCall::invoke(20, &target, "start");
        QThread::msleep(2);
    }
    turnLoopUntil([&] { return calls > 0; });
    CExcludeUserInpuEventLoop().exec(40);
    report.check("ten requests within 20 ms", QStringLiteral("calls made: %1").arg(calls), calls == 1);
    calls = 0;
    CDelayedCall::invoke(10, &target, "start", false);
    turnLoopUntil([&] { return calls > 4; });
    CDelayedCall::discard(&target, "start");
    const int before = calls;
    CExcludeUserInpuEventLoop().exec(40);
    report.check("a periodic call, every 10 ms",
                 QStringLiteral("calls made: %1, after discard: %2").arg(before).arg(calls - before),
                 before > 4 && calls - before <= 1);
}

void walkCompletion(Report& report)
{
    QElapsedTimer clock;
    const std::unique_ptr<QThread> worker(QThread::create([] { QThread::msleep(20); }));
    TOLVAN_NAMESPACE::COperationCompletionWaiter waiter(worker.get(), SIGNAL(finished()));
    clock.start();
    worker->start();
    waiter.startWaiting();
    worker->wait();
    report.check("completion of a worker's operation", QStringLiteral("after %1 ms").arg(clock.elapsed()),
                 clock.elapsed() >= 15);
}

} // namespace

void walkAsync(Report& report)
{
    walkDelayedCalls(report);
    walkCompletion(report);
}

#include "AsyncPage.moc"
