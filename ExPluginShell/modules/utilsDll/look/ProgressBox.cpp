#include "ProgressBox.h"

#include "controls/IconViewer.h"
#include "ExcludeUserInpuEventLoop.h"
#include "look/RemainingTime.h"
#include "look/WrappingLabel.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QThreadPool>
#include <QTimer>
#include <QVBoxLayout>

using TOLVAN_NAMESPACE::CBaseDialog;
using TOLVAN_NAMESPACE::CIconViewer;
using TOLVAN_NAMESPACE::RemainingTime;
using TOLVAN_NAMESPACE::WrappingLabel;

namespace
{

constexpr int boxWidth = 520;
constexpr QSize iconSize(34, 34);
constexpr QSize smallestButton(80, 36);
constexpr int usualDelay = 500;      // ms
constexpr int refreshInterval = 100; // ms
constexpr int timeInterval = 1000;   // ms between two texts of the remaining time
constexpr int barSteps = 1000;

/// Describes a widget to assistive technology, which hears of every call, also with the same text.
void describe(QWidget& widget, const QString& text)
{
    if (widget.accessibleDescription() != text) {
        widget.setAccessibleDescription(text);
    }
}

} // namespace

/// The widgets of the box, in their places.
struct Q_DECL_HIDDEN CProgressBox::Form {
    Form(CProgressBox& box, const QString& title);

    QLabel* addLine(const char* name);
    static void showLine(QLabel& label, const QString& text);

    QWidget* background = new QWidget;
    QVBoxLayout* column = new QVBoxLayout;
    CIconViewer* icon = new CIconViewer;
    QLabel* title;
    QLabel* step;
    QProgressBar* bar = new QProgressBar;
    QLabel* time;
    WrappingLabel* error = new WrappingLabel;
    QPushButton* button = new QPushButton;
};

/// What is known of the work.
struct Q_DECL_HIDDEN CProgressBox::State {
    QElapsedTimer clock;
    QTimer refreshing;
    QTimer appearing;
    RemainingTime remaining;
    int delay = usualDelay;
    qint64 done = 0;
    qint64 total = 0;
    qint64 timeShownAt = -timeInterval;
    QString step;
    QString error;
    bool running = false;
    bool stopAsked = false;
    bool failed = false;    // as the work reported it, or by its error text
    bool succeeded = false; // as the work reported it
};

QLabel* CProgressBox::Form::addLine(const char* name)
{
    auto* const label = new QLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // a long text does not widen the box
    label->setText(QString(QChar(QChar::Nbsp)));                    // keeps its line free
    column->addWidget(label);
    return label;
}

CProgressBox::Form::Form(CProgressBox& box, const QString& titleText)
{
    auto* const frame = new QHBoxLayout(&box);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->addWidget(background);
    background->setObjectName(QStringLiteral("wBackgroundWidget"));
    auto* const grid = new QGridLayout(background);
    grid->setContentsMargins(28, 24, 28, 20);
    grid->setHorizontalSpacing(35);
    grid->setVerticalSpacing(14);
    grid->addWidget(icon, 0, 0, Qt::AlignTop);
    grid->addLayout(column, 0, 1);
    grid->addWidget(button, 1, 1, Qt::AlignRight);
    grid->setColumnStretch(1, 1);
    column->setSpacing(8);
    title = addLine("titleLabel");
    title->setText(titleText);
    step = addLine("stepLabel");
    column->addWidget(bar);
    time = addLine("timeLabel");
    column->addWidget(error);
    bar->setObjectName(QStringLiteral("progressBar"));
    bar->setAccessibleName(titleText);
    icon->setObjectName(QStringLiteral("iconWidget"));
    icon->setFixedSize(iconSize);
    icon->setAccessibleName(tr("Error"));
    icon->hide();
    error->setObjectName(QStringLiteral("errorLabel"));
    error->hide();
    button->setObjectName(QStringLiteral("cancelButton"));
    button->setMinimumSize(smallestButton);
    button->setText(tr("Cancel"));
    button->setAutoDefault(false); // Enter, typed as the box appears, must not cancel
}

/// Shows one line, shortened in its middle if it is too long.
void CProgressBox::Form::showLine(QLabel& label, const QString& text)
{
    const int width = label.contentsRect().width();
    const QString line = QString(text).replace(QLatin1Char('\n'), QLatin1Char(' '));
    const QString shown = label.fontMetrics().elidedText(line, Qt::ElideMiddle, width);
    label.setText(shown.isEmpty() ? QString(QChar(QChar::Nbsp)) : shown); // an empty line keeps its height
    label.setToolTip(shown == line ? QString() : text);
    if (label.accessibleName() != text) {
        label.setAccessibleName(text);
    }
}

CProgressBox::CProgressBox(const QString& title, QWidget* parent)
    : CBaseDialog(parent)
    , m_ui(new Form(*this, title))
    , m_state(new State)
{
    setObjectName(QStringLiteral("CProgressBox"));
    setWindowTitle(title);
    setAccessibleName(title);
    setModal(true);
    m_state->refreshing.setInterval(refreshInterval);
    m_state->appearing.setSingleShot(true);
    connect(m_ui->button, SIGNAL(clicked()), this, SLOT(reject()));
    connect(&m_state->refreshing, SIGNAL(timeout()), this, SLOT(refresh()));
    connect(&m_state->appearing, SIGNAL(timeout()), this, SLOT(appear()));
}

CProgressBox::~CProgressBox()
{
    if (m_state->running && !m_state->stopAsked) {
        Q_EMIT cancelRequested();
    }
}

void CProgressBox::setAppearanceDelay(int milliseconds)
{
    m_state->delay = milliseconds;
}

QString CProgressBox::title() const
{
    return m_ui->title->text();
}

QString CProgressBox::errorText() const
{
    return m_state->error;
}

CProgressBox::Result CProgressBox::run(CQRunnableItem& item)
{
    if (m_state->running) {
        return Failed;
    }
    const QPointer<CProgressBox> self(this);
    connect(this, SIGNAL(cancelRequested()), &item, SLOT(stop()), Qt::DirectConnection);
    connect(&item, SIGNAL(finished(bool, bool)), this, SLOT(onItemFinished(bool, bool)),
            Qt::QueuedConnection);
    const Result result = run(static_cast<CRunnableItem<QRunnable>&>(item));
    if (self) {
        disconnect(this, SIGNAL(cancelRequested()), &item, SLOT(stop()));
        disconnect(&item, SIGNAL(finished(bool, bool)), this, SLOT(onItemFinished(bool, bool)));
    }
    return result;
}

CProgressBox::Result CProgressBox::run(CRunnableItem<QRunnable>& item)
{
    if (m_state->running) {
        return Failed;
    }
    start();
    const QPointer<CProgressBox> self(this);
    CExcludeUserInpuEventLoop moment;
    QEventLoop loop;
    connect(this, SIGNAL(finished(int)), &moment, SLOT(quit()));
    connect(this, SIGNAL(finished(int)), &loop, SLOT(quit()));
    QObject here; // receives the end of the work in this thread
    bool ended = false;
    const auto onEnd = [&] {
        ended = true;
        if (self) {
            self->finishWork(item.stopRequired()); // ends the loops, or shows the error text
        }
        moment.quit();
        if (!self) {
            loop.quit();
        }
    };
    QThreadPool pool;
    pool.start([&] {
        item.run();
        QMetaObject::invokeMethod(&here, onEnd, Qt::QueuedConnection);
    });
    if (m_state->delay > 0) {
        moment.exec(m_state->delay);
    }
    if (self && (m_state->running || isVisible())) {
        appear();
    }
    if (!ended || (self && isVisible())) {
        loop.exec();
    }
    return self ? resultAfter(pool, item) : Stopped; // the end of the pool waits for the work
}

/// Waits for work that still runs because the application quits.
CProgressBox::Result CProgressBox::resultAfter(QThreadPool& pool, const CRunnableItem<QRunnable>& item)
{
    if (m_state->running) {
        reject();
        pool.waitForDone();
        finishWork(true);
    }
    if (m_state->failed) {
        return Failed;
    }
    return item.stopRequired() && !m_state->succeeded ? Stopped : Succeeded;
}

void CProgressBox::start()
{
    State& state = *m_state;
    state.clock.start();
    state.remaining = RemainingTime();
    state.timeShownAt = -timeInterval;
    state.error = QString();
    state.running = true;
    state.failed = state.succeeded = state.stopAsked = false;
    m_ui->button->setEnabled(receivers(SIGNAL(cancelRequested())) > 0);
    state.refreshing.start();
}

void CProgressBox::begin()
{
    if (!m_state->running) {
        start();
        m_state->appearing.start(m_state->delay);
    }
}

void CProgressBox::end()
{
    finishWork(m_state->stopAsked);
}

void CProgressBox::onItemFinished(bool ok, bool stopped)
{
    m_state->succeeded = ok;
    m_state->failed = !ok && !stopped;
}

void CProgressBox::finishWork(bool stopped)
{
    State& state = *m_state;
    if (!state.running) {
        return;
    }
    state.running = false;
    state.refreshing.stop();
    state.appearing.stop();
    const bool isStopped = stopped && !state.succeeded;
    state.failed = !isStopped && (state.failed || !state.error.isNull());
    if (state.failed) {
        showError();
    } else {
        done(isStopped ? Rejected : Accepted);
    }
}

void CProgressBox::setProgress(qint64 done, qint64 total)
{
    m_state->done = done;
    m_state->total = total;
}

void CProgressBox::setProgress(qint64 done, qint64 total, const QString& step)
{
    setProgress(done, total);
    setStep(step);
}

void CProgressBox::setStep(const QString& step)
{
    m_state->step = step;
}

void CProgressBox::setError(const QString& text)
{
    m_state->error = text.isNull() ? QString(QLatin1String("")) : text; // empty, but not null
}

void CProgressBox::reject()
{
    State& state = *m_state;
    if (!state.running) {
        CBaseDialog::reject();
    } else if (!state.stopAsked && m_ui->button->isEnabled()) {
        state.stopAsked = true;
        m_ui->button->setEnabled(false);
        refresh();
        Q_EMIT cancelRequested();
    }
}

/// Shows what the slots above recorded: work may report more often than anyone can read.
void CProgressBox::refresh()
{
    State& state = *m_state;
    const qint64 now = state.clock.elapsed();
    state.remaining.add(now, state.done, state.total);
    m_ui->bar->setRange(0, state.total > 0 ? barSteps : 0);
    m_ui->bar->setValue(state.total > 0 ? int(double(state.done) / double(state.total) * barSteps) : 0);
    m_ui->showLine(*m_ui->step, state.step);
    describe(*this, state.step);
    if (state.stopAsked) {
        m_ui->showLine(*m_ui->time, tr("Stopping…"));
    } else if (now - state.timeShownAt >= timeInterval) {
        state.timeShownAt = now;
        m_ui->showLine(*m_ui->time, state.remaining.text());
    }
}

void CProgressBox::appear()
{
    fitHeight();
    show();
    refresh(); // the lines have their width now
}

void CProgressBox::showError()
{
    const State& state = *m_state;
    m_ui->step->hide();
    m_ui->bar->hide();
    m_ui->time->hide();
    m_ui->error->setText(state.error.isEmpty() ? tr("The work could not be completed.") : state.error);
    m_ui->error->show();
    m_ui->icon->setIcon(QIcon(QString::fromLatin1(":/icons/messagebox/error_dark_icon.svg")));
    m_ui->icon->show();
    m_ui->button->setText(tr("Close"));
    m_ui->button->setEnabled(true);
    m_ui->button->setDefault(true);
    describe(*this, m_ui->error->plainText());
    const bool wasOpen = isVisible();
    fitHeight();
    show();
    // A screen reader reads a box as it opens. Later it reads what gets the focus.
    QWidget* const next = wasOpen ? static_cast<QWidget*>(m_ui->error) : m_ui->button;
    next->setFocus();
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

/// Gives the box the height of its content, up to a share of the screen; a longer error text scrolls.
void CProgressBox::fitHeight()
{
    constexpr double largestShare = 0.8;
    for (QWidget* const widget : findChildren<QWidget*>()) {
        widget->ensurePolished(); // the style sheet decides on the fonts
    }
    const int highest = int(screen()->availableGeometry().height() * largestShare);
    const bool wraps = layout()->hasHeightForWidth();
    const int wanted = wraps ? layout()->totalHeightForWidth(boxWidth) : layout()->totalSizeHint().height();
    setFixedSize(boxWidth, qMin(wanted, highest));
    if (wanted > highest) {
        m_ui->error->makeScrollable(*m_ui->column);
    }
}
