#include "ToolPanel.h"

#include "LensSearch.h"

#include <utilsDll/controls/IconViewer.h>
#include <utilsDll/FileManagement.h>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace TOLVAN_NAMESPACE;

namespace
{

const QElapsedTimer& sinceStart()
{
    static const QElapsedTimer timer = [] {
        QElapsedTimer started;
        started.start();
        return started;
    }();
    return timer;
}

QVBoxLayout* columnOf(QWidget* panel)
{
    auto* const layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    return layout;
}

} // namespace

ToolPanel::ToolPanel(QWidget* parent)
    : PageWidget(parent)
    , m_stack(new QStackedWidget(this))
    , m_confirm(makeConfirm())
    , m_lensSearch(new LensSearch(this))
{
    connect(m_lensSearch, &LensSearch::found, this, &ToolPanel::listLenses);
    for (QWidget* const panel :
         {makeHorizon(), makeKeystoning(), makeDistortion(), makeCrop(), makeTiltShift(), makeEmpty()}) {
        m_stack->addWidget(panel);
    }
    m_stack->setCurrentIndex(toolCount);
    column()->addWidget(m_stack, 1);
    column()->addWidget(m_confirm);
    m_confirm->hide();
}

QLabel* ToolPanel::makeText(const char* text, const char* name)
{
    auto* const label = new QLabel;
    label->setWordWrap(true);
    label->setObjectName(QLatin1String(name));
    translate(text, [label](const QString& translated) { label->setText(translated); });
    return label;
}

QSlider* ToolPanel::makeSlider(int least, int most, void (ToolPanel::*changed)(int))
{
    auto* const slider = new QSlider(Qt::Horizontal);
    slider->setRange(least, most);
    connect(slider, &QSlider::valueChanged, this, changed);
    return slider;
}

QWidget* ToolPanel::makeConfirm()
{
    auto* const row = new QWidget(this);
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    QPushButton* const accept = makeButton(QT_TR_NOOP("Accept"), [this] { Q_EMIT accepted(); });
    accept->setIcon(QIcon(QStringLiteral(":/icons/confirm/confirm_apply.svg")));
    QPushButton* const cancel = makeButton(QT_TR_NOOP("Cancel"), [this] { Q_EMIT cancelled(); });
    cancel->setIcon(QIcon(QStringLiteral(":/icons/confirm/confirm_cancel.svg")));
    QPushButton* const reset = makeButton("", [this] { Q_EMIT resetRequested(); });
    reset->setIcon(QIcon(QStringLiteral(":/icons/reset/reset.svg")));
    translate(QT_TR_NOOP("Reset this tool"), [reset](const QString& text) {
        reset->setToolTip(text);
        reset->setAccessibleName(text);
    });
    layout->addWidget(accept);
    layout->addWidget(cancel);
    layout->addWidget(reset);
    return row;
}

QWidget* ToolPanel::makeEmpty()
{
    auto* const panel = new QWidget;
    auto* const layout = columnOf(panel);
    layout->addWidget(makeText(QT_TR_NOOP("No tool"), "pageSubtitle"));
    layout->addWidget(
        makeText(QT_TR_NOOP("Choose a tool at the left. The rules of the product decide what else a "
                            "click switches on, switches off or applies.")));
    layout->addStretch();
    return panel;
}

QWidget* ToolPanel::makeHorizon()
{
    auto* const panel = new QWidget;
    auto* const layout = columnOf(panel);
    layout->addWidget(makeText(QT_TR_NOOP("Horizon"), "pageSubtitle"));
    layout->addWidget(
        makeText(QT_TR_NOOP("Drag a line along what should be level. With Shift it turns in steps of "
                            "15°.")));
    m_angle = new QDoubleSpinBox;
    m_angle->setRange(-45, 45);
    m_angle->setSingleStep(0.1);
    m_angle->setDecimals(2);
    m_angle->setSuffix(QStringLiteral("°"));
    m_angle->setMaximumWidth(110);
    connect(m_angle, qOverload<double>(&QDoubleSpinBox::valueChanged), this, [this](double degrees) {
        if (m_step) {
            m_step->setAngle(degrees);
            Q_EMIT valuesChanged();
        }
    });
    layout->addWidget(makeText(QT_TR_NOOP("Rotation"), ""));
    layout->addWidget(m_angle);
    layout->addStretch();
    return panel;
}

QWidget* ToolPanel::makeKeystoning()
{
    auto* const panel = new QWidget;
    auto* const layout = columnOf(panel);
    layout->addWidget(makeText(QT_TR_NOOP("Keystoning"), "pageSubtitle"));
    layout->addWidget(
        makeText(QT_TR_NOOP("Lay both lines along edges that are upright in reality. They snap to the "
                            "thirds of the picture and to each other; with Ctrl they do not.")));
    layout->addStretch();
    return panel;
}

QWidget* ToolPanel::makeDistortion()
{
    auto* const panel = new QWidget;
    auto* const layout = columnOf(panel);
    layout->addWidget(makeText(QT_TR_NOOP("Distortion"), "pageSubtitle"));
    auto* const row = new QHBoxLayout;
    m_distortion = makeSlider(-100, 100, &ToolPanel::setDistortion);
    translate(QT_TR_NOOP("From pincushion to barrel"), [this](const QString& text) {
        m_distortion->setAccessibleName(text);
        m_distortion->setToolTip(text);
    });
    for (const char* const end : {"pincushion", "barrel"}) {
        auto* const icon = new CIconViewer;
        icon->setFixedSize(22, 22);
        icon->setIcon(
            QIcon(QStringLiteral(":/icons/distortion/distortion_slider_%1.svg").arg(QLatin1String(end))));
        row->addWidget(icon);
    }
    row->insertWidget(1, m_distortion, 1);
    layout->addLayout(row);
    layout->addWidget(makeText(QT_TR_NOOP("Camera and lens"), ""));
    m_search = new QLineEdit;
    m_search->setClearButtonEnabled(true);
    translate(QT_TR_NOOP("Search, for example: canon 24-70"),
              [this](const QString& text) { m_search->setPlaceholderText(text); });
    connect(m_search, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_askedAt = sinceStart().nsecsElapsed();
        m_lensSearch->ask(text);
    });
    layout->addWidget(m_search);
    m_lenses = new QListWidget;
    m_lenses->setTextElideMode(Qt::ElideRight);
    m_lenses->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_lenses->setUniformItemSizes(true);
    translate(QT_TR_NOOP("Lenses found"), [this](const QString& text) { m_lenses->setAccessibleName(text); });
    layout->addWidget(m_lenses, 1);
    m_lensCount = makeText(QT_TR_NOOP("Every word has to occur, in any order."));
    layout->addWidget(m_lensCount);
    return panel;
}

QWidget* ToolPanel::makeCrop()
{
    auto* const panel = new QWidget;
    auto* const layout = columnOf(panel);
    layout->addWidget(makeText(QT_TR_NOOP("Crop"), "pageSubtitle"));
    m_aspect = new QComboBox;
    m_aspect->addItems({QString(), QStringLiteral("1 : 1"), QStringLiteral("3 : 2"), QStringLiteral("4 : 3"),
                        QStringLiteral("16 : 9")});
    translate(QT_TR_NOOP("Free"), [this](const QString& text) { m_aspect->setItemText(0, text); });
    connect(m_aspect, qOverload<int>(&QComboBox::activated), this, &ToolPanel::setAspect);
    m_aspect->setMaximumWidth(140);
    m_cropSize = new QLabel;
    layout->addWidget(makeText(QT_TR_NOOP("Aspect ratio"), ""));
    layout->addWidget(m_aspect);
    layout->addWidget(m_cropSize);
    layout->addStretch();
    return panel;
}

QWidget* ToolPanel::makeTiltShift()
{
    auto* const panel = new QWidget;
    auto* const layout = columnOf(panel);
    layout->addWidget(makeText(QT_TR_NOOP("Tilt-shift"), "pageSubtitle"));
    layout->addWidget(makeText(QT_TR_NOOP("What lies between the outer lines stays sharp.")));
    m_blur = makeSlider(0, 100, &ToolPanel::setBlur);
    m_width = makeSlider(3, 60, &ToolPanel::setWidth);
    layout->addWidget(makeText(QT_TR_NOOP("Blur"), ""));
    layout->addWidget(m_blur);
    layout->addWidget(makeText(QT_TR_NOOP("Width of the sharp area"), ""));
    layout->addWidget(m_width);
    layout->addStretch();
    return panel;
}

void ToolPanel::showStep(Step* step, const QSize& size)
{
    m_step = step;
    m_size = size;
    m_stack->setCurrentIndex(step ? int(step->tool) : toolCount);
    m_confirm->setVisible(step);
    readValues();
}

void ToolPanel::readValues()
{
    if (!m_step) {
        return;
    }
    const QSignalBlocker angle(m_angle), distortion(m_distortion), blur(m_blur), width(m_width);
    m_angle->setValue(m_step->angle());
    if (m_step->tool == Tool::Distortion) {
        m_distortion->setValue(qRound(m_step->amount * 100));
    }
    m_blur->setValue(qRound(m_step->amount * 100));
    m_width->setValue(qRound(m_step->width * 100));
    say(m_cropSize, [this] {
        return m_step ? sizeToString(QSize(qRound(m_size.width() * m_step->area.width()),
                                           qRound(m_size.height() * m_step->area.height())))
                      : QString();
    });
}

void ToolPanel::setDistortion(int value)
{
    if (m_step) {
        m_step->amount = value / 100.0;
        Q_EMIT valuesChanged();
    }
}

void ToolPanel::setBlur(int value)
{
    setDistortion(value); // the same member
}

void ToolPanel::setWidth(int value)
{
    if (m_step) {
        m_step->width = value / 100.0;
        Q_EMIT valuesChanged();
    }
}

void ToolPanel::setAspect(int index)
{
    constexpr double ratios[] = {0, 1.0, 3.0 / 2, 4.0 / 3, 16.0 / 9};
    if (!m_step || index <= 0) {
        return;
    }
    const QSizeF largest = QSizeF(ratios[index], 1).scaled(m_size, Qt::KeepAspectRatio);
    const QSizeF part(largest.width() / m_size.width(), largest.height() / m_size.height());
    m_step->area = QRectF(QPointF((1 - part.width()) / 2, (1 - part.height()) / 2), part);
    readValues();
    Q_EMIT valuesChanged();
}

void ToolPanel::searchLens(const QString& text)
{
    m_search->setText(text);
}

//! [code]
void ToolPanel::listLenses(const QVector<Lens>& lenses, int total)
{
    m_lenses->clear();
    for (const Lens& lens : lenses) {
        auto* const item =
            new QListWidgetItem(QIcon(QStringLiteral(":/icons/cafDialog/caf_lens.svg")), lens.name, m_lenses);
        item->setToolTip(QStringLiteral("%1\n%2 – %3 mm, f/%4, %5")
                             .arg(lens.name, QLocale().toString(lens.shortest),
                                  QLocale().toString(lens.longest), QLocale().toString(lens.widest),
                                  lens.id));
    }
    const qint64 milliseconds = (sinceStart().nsecsElapsed() - m_askedAt) / 1000000;
    say(m_lensCount, [=] {
        return total < 0 ? tr("The calibration database cannot be read.")
                         : tr("%n lens(es) found", "", total) + QStringLiteral(" · ") +
                               tr("%n millisecond(s)", "", int(milliseconds));
    });
    Q_EMIT lensesListed(total, milliseconds);
}
//! [code]
