#include "AsyncPage.h"

#include "Pages.h"

#include <utilsDll/DelayedCall.h>
#include <utilsDll/ExcludeUserInpuEventLoop.h>
#include <utilsDll/OperationCompletionWaiter.h>
#include <utilsDll/RunnableItem.h>

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QThread>
#include <QVBoxLayout>

namespace
{

constexpr int itemCount = 8;
constexpr int stepsPerItem = 40;
constexpr int debounceDelay = 150; // milliseconds, as the others
constexpr int tickInterval = 200;
constexpr int waitDuration = 2000;

/// Works in small steps and announces each.
class StepItem : public CQRunnableItem
{
    Q_OBJECT

Q_SIGNALS:
    void step();

private:
    bool doRun() override
    {
        for (int i = 0; i < stepsPerItem; ++i) {
            if (stopRequired()) {
                return false;
            }
            QThread::msleep(25);
            Q_EMIT step();
        }
        return true;
    }
};

} // namespace

QWidget* makeAsyncPage(QWidget* parent)
{
    return new AsyncPage(parent);
}

AsyncPage::AsyncPage(QWidget* parent)
    : PageWidget(parent)
    , m_slider(new QSlider(Qt::Horizontal))
    , m_burst(makeNote(QT_TR_NOOP("Move the slider: its many requests become one call.")))
    , m_ticks(makeNote(QT_TR_NOOP("Not running.")))
    , m_progress(new QProgressBar)
    , m_start(new QPushButton)
    , m_stop(new QPushButton)
    , m_items(new QLabel)
    , m_wait(makeNote(QT_TR_NOOP("While the page waits, clicks are held back and delivered after the wait.")))
    , m_clicks(makeNote(QT_TR_NOOP("Clicks: 0")))
{
    m_pool.setMaxThreadCount(2);
    m_items->setWordWrap(true);
    const char* const items = QT_TR_NOOP("%1 items on a pool of two threads.");
    translate(items, [this](const QString& text) { m_items->setText(text.arg(itemCount)); });
    setText(m_start, QT_TR_NOOP("Start"));
    setText(m_stop, QT_TR_NOOP("Stop"));
    column()->addWidget(makeDelayedCalls());
    column()->addWidget(makeItems());
    column()->addWidget(makeWaits());
    column()->addStretch();
}

AsyncPage::~AsyncPage()
{
    stopItems();
    m_pool.waitForDone();
}

QGroupBox* AsyncPage::makeBox(const char* title)
{
    auto* const box = new QGroupBox;
    translate(title, [box](const QString& text) { box->setTitle(text); });
    return box;
}

QLabel* AsyncPage::makeNote(const char* text)
{
    auto* const label = new QLabel;
    label->setWordWrap(true);
    translate(text, [label](const QString& translated) { label->setText(translated); });
    return label;
}

void AsyncPage::setText(QPushButton* button, const char* text)
{
    translate(text, [button](const QString& translated) { button->setText(translated); });
}

QWidget* AsyncPage::makeDelayedCalls()
{
    auto* const box = makeBox(QT_TR_NOOP("Delayed calls"));
    auto* const periodic = new QPushButton;
    setText(periodic, QT_TR_NOOP("Periodic call"));
    periodic->setCheckable(true);
    connect(m_slider, &QSlider::valueChanged, this, &AsyncPage::onSliderMoved);
    connect(periodic, &QPushButton::toggled, this, &AsyncPage::togglePeriodic);
    auto* const row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(periodic);
    row->addWidget(m_ticks, 1);
    auto* const layout = new QVBoxLayout(box);
    layout->setSpacing(10);
    layout->addWidget(m_slider);
    layout->addWidget(m_burst);
    layout->addLayout(row);
    return box;
}

QWidget* AsyncPage::makeItems()
{
    auto* const box = makeBox(QT_TR_NOOP("Work items"));
    m_progress->setRange(0, itemCount * stepsPerItem);
    m_progress->setValue(0);
    m_stop->setEnabled(false);
    connect(m_start, &QPushButton::clicked, this, &AsyncPage::startItems);
    connect(m_stop, &QPushButton::clicked, this, &AsyncPage::stopItems);
    auto* const row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(m_start);
    row->addWidget(m_stop);
    row->addWidget(m_items, 1);
    auto* const layout = new QVBoxLayout(box);
    layout->setSpacing(10);
    layout->addWidget(m_progress);
    layout->addLayout(row);
    return box;
}

QWidget* AsyncPage::makeWaits()
{
    auto* const box = makeBox(QT_TR_NOOP("Waits"));
    auto* const wait = new QPushButton;
    setText(wait, QT_TR_NOOP("Wait, input excluded"));
    auto* const complete = new QPushButton;
    setText(complete, QT_TR_NOOP("Wait for a worker"));
    auto* const click = new QPushButton;
    setText(click, QT_TR_NOOP("Click me meanwhile"));
    connect(wait, &QPushButton::clicked, this, &AsyncPage::waitWithoutInput);
    connect(complete, &QPushButton::clicked, this, &AsyncPage::waitForWorker);
    connect(click, &QPushButton::clicked, this, &AsyncPage::onClicked);
    auto* const row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(wait);
    row->addWidget(complete);
    row->addWidget(click);
    row->addStretch();
    auto* const layout = new QVBoxLayout(box);
    layout->setSpacing(10);
    layout->addLayout(row);
    layout->addWidget(m_clicks);
    layout->addWidget(m_wait);
    return box;
}

void AsyncPage::onSliderMoved()
{
    ++m_requests;
    CDelayedCall::invoke(debounceDelay, this, "render");
}

void AsyncPage::render()
{
    ++m_renders;
    say(m_burst, [this] { return tr("Requests: %1, calls: %2").arg(m_requests).arg(m_renders); });
}

void AsyncPage::togglePeriodic(bool on)
{
    if (on) {
        CDelayedCall::invoke(tickInterval, this, "tick", false);
        say(m_ticks, [] { return tr("Every %1 ms.").arg(tickInterval); });
    } else {
        CDelayedCall::discard(this, "tick");
        say(m_ticks, [this] { return tr("Stopped. Calls: %1").arg(m_tickCount); });
    }
}

void AsyncPage::tick()
{
    ++m_tickCount;
    say(m_ticks, [this] { return tr("Calls: %1").arg(m_tickCount); });
}

void AsyncPage::startItems()
{
    m_finished = m_stopped = 0;
    m_progress->setValue(0);
    m_stop->setEnabled(true); // first: the focus moves on to it
    m_start->setEnabled(false);
    for (int i = 0; i < itemCount; ++i) {
        auto item = std::make_unique<StepItem>();
        item->setAutoDelete(false); // the page stops it
        connect(item.get(), &StepItem::step, this, &AsyncPage::onStep);
        connect(item.get(), &StepItem::finished, this, &AsyncPage::onItemFinished);
        m_running.push_back(std::move(item));
    }
    for (const auto& item : m_running) {
        m_pool.start(item.get());
    }
}

void AsyncPage::stopItems()
{
    for (const auto& item : m_running) {
        item->stop();
    }
    m_pool.waitForDone(); // one step at most
    m_running.clear();
    m_start->setEnabled(true);
    m_stop->setEnabled(false);
}

void AsyncPage::onStep()
{
    m_progress->setValue(m_progress->value() + 1);
}

void AsyncPage::onItemFinished(bool, bool stopped)
{
    ++m_finished;
    m_stopped += stopped;
    say(m_items, [this] {
        return tr("%1 of %2 items finished, %3 of them stopped.")
            .arg(m_finished)
            .arg(itemCount)
            .arg(m_stopped);
    });
    if (m_finished == itemCount) {
        stopItems();
    }
}

void AsyncPage::waitWithoutInput()
{
    CExcludeUserInpuEventLoop loop;
    const int before = m_clickCount;
    say(m_wait, [] { return tr("Waiting for %1 ms. Clicks are held back.").arg(waitDuration); });
    loop.exec(waitDuration);
    const int clicks = m_clickCount - before;
    say(m_wait,
        [clicks] { return tr("The wait is over. Clicks held back and delivered now: %1").arg(clicks); });
}

void AsyncPage::waitForWorker()
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

void AsyncPage::onClicked()
{
    ++m_clickCount;
    say(m_clicks, [this] { return tr("Clicks: %1").arg(m_clickCount); });
}

#include "AsyncPage.moc"
