#include "AsyncPage.h"

#include "Pages.h"

#include <utilsDll/DelayedCall.h>
#include <utilsDll/ExcludeUserInpuEventLoop.h>
#include <utilsDll/OperationCompletionWaiter.h>

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>

#include <memory>

namespace
{

constexpr int debounceDelay = 150; // milliseconds, as the others
constexpr int tickInterval = 200;
constexpr int waitDuration = 2000;
constexpr int deliveryTime = 50;

} // namespace

QWidget* makeAsyncPage(QWidget* parent)
{
    return new AsyncPage(parent);
}

AsyncPage::AsyncPage(QWidget* parent)
    : PageWidget(parent)
{
    addDelayedCalls();
    addWaits();
    column()->addStretch();
}

QVBoxLayout* AsyncPage::addBox(const char* title)
{
    auto* const box = new QGroupBox;
    translate(title, [box](const QString& text) { box->setTitle(text); });
    column()->addWidget(box);
    auto* const layout = new QVBoxLayout(box);
    layout->setSpacing(10);
    return layout;
}

QLabel* AsyncPage::addNote(QVBoxLayout* box, const char* text)
{
    auto* const label = new QLabel;
    label->setWordWrap(true);
    say(label, [text] { return tr(text); });
    box->addWidget(label);
    return label;
}

void AsyncPage::addDelayedCalls()
{
    QVBoxLayout* const box = addBox(QT_TR_NOOP("Delayed calls"));
    m_slider = new QSlider(Qt::Horizontal);
    translate(QT_TR_NOOP("Requests"), [this](const QString& text) { m_slider->setAccessibleName(text); });
    connect(m_slider, &QSlider::valueChanged, this, [this] {
        ++m_requests;
        CDelayedCall::invoke(debounceDelay, this, "render");
    });
    box->addWidget(m_slider);
    m_burst = addNote(box, QT_TR_NOOP("Move the slider: its many requests become one call."));
    auto* const periodic = makeButton(QT_TR_NOOP("Periodic call"), [] {});
    periodic->setCheckable(true);
    connect(periodic, &QPushButton::toggled, this, &AsyncPage::togglePeriodic);
    auto* const row = new QHBoxLayout;
    row->addWidget(periodic);
    row->addStretch();
    box->addLayout(row);
    m_ticks = addNote(box, QT_TR_NOOP("Not running."));
}

void AsyncPage::addWaits()
{
    QVBoxLayout* const box = addBox(QT_TR_NOOP("Waits"));
    auto* const row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(makeButton(QT_TR_NOOP("Wait, input excluded"), [this] { waitWithoutInput(); }));
    row->addWidget(makeButton(QT_TR_NOOP("Wait for a worker"), [this] { waitForWorker(); }));
    row->addWidget(makeButton(QT_TR_NOOP("Click me meanwhile"), [this] { onClicked(); }));
    row->addStretch();
    box->addLayout(row);
    m_bar = new QProgressBar;
    m_bar->setRange(0, waitDuration);
    m_bar->setTextVisible(false);
    box->addWidget(m_bar);
    m_wait =
        addNote(box, QT_TR_NOOP("While the page waits, clicks are held back and delivered after the wait."));
    m_clicks = addNote(box, QT_TR_NOOP("No clicks yet."));
    auto* const timer = new QTimer(this); // goes on while the page waits
    timer->setInterval(40);
    connect(timer, &QTimer::timeout, this,
            [this, timer] { m_bar->setValue((m_bar->value() + timer->interval()) % waitDuration); });
    timer->start();
}

void AsyncPage::render()
{
    ++m_renders;
    say(m_burst, [this] {
        return tr("%n request(s)", "", m_requests) + QStringLiteral("  →  ") +
               tr("%n call(s)", "", m_renders);
    });
}

void AsyncPage::togglePeriodic(bool on)
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

void AsyncPage::tick()
{
    ++m_tickCount;
    say(m_ticks, [this] { return tr("%n call(s)", "", m_tickCount); });
}

//! [code]
void AsyncPage::waitWithoutInput()
{
    m_clicksBefore = m_clickCount;
    say(m_wait, [] { return tr("Waiting for %1 ms. Clicks are held back.").arg(waitDuration); });
    CExcludeUserInpuEventLoop loop;
    loop.exec(waitDuration);
    CDelayedCall::invoke(deliveryTime, this, "countHeldClicks"); // what was held back arrives first
}

void AsyncPage::countHeldClicks()
{
    const int clicks = m_clickCount - m_clicksBefore;
    say(m_wait, [clicks] {
        return tr("The wait is over. %n click(s) held back and delivered afterwards.", "", clicks);
    });
}
//! [code]

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
    say(m_clicks, [this] { return tr("%n click(s)", "", m_clickCount); });
}

void AsyncPage::prepareForPicture()
{
    for (int value = 1; value <= 40; ++value) {
        m_slider->setValue(value);
    }
    CExcludeUserInpuEventLoop().exec(debounceDelay + deliveryTime);
}
