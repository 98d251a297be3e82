#include "ToolPanel.h"

#include <utilsDll/controls/IconViewer.h>
#include <utilsDll/FileManagement.h>

using namespace TOLVAN_NAMESPACE;

ToolPanel::ToolPanel(QWidget* parent)
    : PageWidget(parent)
    , m_stack(new QStackedWidget(this))
    , m_lensSearch(new LensSearch(this))
    , m_confirm(makeConfirm())
{
    connect(m_lensSearch, &LensSearch::found, this, &ToolPanel::listLenses);
    addHorizon(addPanel(QT_TR_NOOP("Horizon"),
                        QT_TR_NOOP("Drag a line along what should be level. With Shift it turns in steps of "
                                   "15°.")));
    addPanel(QT_TR_NOOP("Keystoning"),
             QT_TR_NOOP("Lay both lines along edges that are upright in reality. They snap to the "
                        "thirds of the picture and to each other; with Ctrl they do not."))
        ->addStretch();
    addDistortion(addPanel(QT_TR_NOOP("Distortion"), ""));
    addCrop(addPanel(QT_TR_NOOP("Crop"), ""));
    addTiltShift(
        addPanel(QT_TR_NOOP("Tilt-shift"), QT_TR_NOOP("What lies between the outer lines stays sharp.")));
    addPanel(QT_TR_NOOP("No tool"),
             QT_TR_NOOP("Choose a tool at the left. The rules of the product decide what else a "
                        "click switches on, switches off or applies."))
        ->addStretch();
    column()->addWidget(m_stack, 1);
    column()->addWidget(m_confirm);
    showStep(nullptr, {});
}

/// Adds a panel to the stack. \return where its fields go
QVBoxLayout* ToolPanel::addPanel(const char* title, const char* hint)
{
    auto* const panel = new QWidget;
    m_stack->addWidget(panel);
    auto* const layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(makeText(title, "pageSubtitle"));
    if (*hint) {
        layout->addWidget(makeText(hint));
    }
    return layout;
}

void ToolPanel::addField(QVBoxLayout* panel, const char* name, QWidget* field)
{
    panel->addWidget(makeText(name, ""));
    panel->addWidget(field);
}

QLabel* ToolPanel::makeText(const char* text, const char* name)
{
    auto* const label = withText(new QLabel, text);
    label->setWordWrap(true);
    label->setObjectName(QLatin1String(name));
    return label;
}

/// A slider for a value of the step, in hundredths.
QSlider* ToolPanel::makeSlider(int least, int most, double Step::*value)
{
    auto* const slider = new QSlider(Qt::Horizontal);
    slider->setRange(least, most);
    connect(slider, &QSlider::valueChanged, this, [this, value](int hundredths) {
        if (m_step) {
            m_step->*value = hundredths / 100.0;
            Q_EMIT valuesChanged();
        }
    });
    return slider;
}

QWidget* ToolPanel::makeConfirm()
{
    auto* const bar = new QWidget(this);
    auto* const row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    const auto add = [&](const char* text, const char* icon, void (ToolPanel::*pressed)()) {
        QPushButton* const button = makeButton(text, [=] { Q_EMIT(this->*pressed)(); });
        button->setIcon(QIcon(QStringLiteral(":/icons/") + QLatin1String(icon)));
        row->addWidget(button);
        return button;
    };
    add(QT_TR_NOOP("Accept"), "confirm/confirm_apply.svg", &ToolPanel::accepted);
    add(QT_TR_NOOP("Cancel"), "confirm/confirm_cancel.svg", &ToolPanel::cancelled);
    QPushButton* const reset = add("", "reset/reset.svg", &ToolPanel::resetRequested);
    reset->setFixedWidth(40); // leaves the others room for their longest texts
    const char* const name = QT_TR_NOOP("Reset this tool");
    withText(withText(reset, name, "toolTip"), name, "accessibleName");
    return bar;
}

void ToolPanel::addHorizon(QVBoxLayout* panel)
{
    m_angle = new QDoubleSpinBox;
    m_angle->setRange(-45, 45);
    m_angle->setSingleStep(0.1);
    m_angle->setSuffix(QStringLiteral("°"));
    m_angle->setMaximumWidth(110);
    connect(m_angle, qOverload<double>(&QDoubleSpinBox::valueChanged), this, [this](double degrees) {
        if (m_step) {
            m_step->setAngle(degrees);
            Q_EMIT valuesChanged();
        }
    });
    addField(panel, QT_TR_NOOP("Rotation"), m_angle);
    panel->addStretch();
}

void ToolPanel::addDistortion(QVBoxLayout* panel)
{
    const char* const ends = QT_TR_NOOP("From pincushion to barrel");
    m_distortion = withText(makeSlider(-100, 100, &Step::amount), ends, "toolTip");
    withText(m_distortion, ends, "accessibleName");
    auto* const row = new QHBoxLayout;
    for (const char* const end : {"pincushion", "barrel"}) {
        auto* const icon = new CIconViewer;
        icon->setFixedSize(22, 22);
        icon->setIcon(
            QIcon(QStringLiteral(":/icons/distortion/distortion_slider_%1.svg").arg(QLatin1String(end))));
        row->addWidget(icon);
    }
    row->insertWidget(1, m_distortion, 1);
    panel->addLayout(row);
    auto* const search =
        withText(new QLineEdit, QT_TR_NOOP("Search, for example: canon 24-70"), "placeholderText");
    search->setClearButtonEnabled(true);
    connect(search, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_sinceQuestion.start();
        m_lensSearch->ask(text);
    });
    addField(panel, QT_TR_NOOP("Camera and lens"), search);
    m_lenses = withText(new QListWidget, QT_TR_NOOP("Lenses found"), "accessibleName");
    m_lenses->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_lenses->setUniformItemSizes(true);
    panel->addWidget(m_lenses, 1);
    m_lensCount = makeText(QT_TR_NOOP("Every word has to occur, in any order."));
    panel->addWidget(m_lensCount);
}

void ToolPanel::addCrop(QVBoxLayout* panel)
{
    auto* const aspect = new QComboBox;
    aspect->addItems({QString(), QStringLiteral("1 : 1"), QStringLiteral("3 : 2"), QStringLiteral("4 : 3"),
                      QStringLiteral("16 : 9")});
    translate(QT_TR_NOOP("Free"), [aspect](const QString& text) { aspect->setItemText(0, text); });
    connect(aspect, qOverload<int>(&QComboBox::activated), this, &ToolPanel::setAspect);
    aspect->setMaximumWidth(140);
    m_cropSize = new QLabel;
    addField(panel, QT_TR_NOOP("Aspect ratio"), aspect);
    panel->addWidget(m_cropSize);
    panel->addStretch();
}

void ToolPanel::addTiltShift(QVBoxLayout* panel)
{
    m_blur = makeSlider(0, 100, &Step::amount);
    m_width = makeSlider(3, 60, &Step::width);
    addField(panel, QT_TR_NOOP("Blur"), m_blur);
    addField(panel, QT_TR_NOOP("Width of the sharp area"), m_width);
    panel->addStretch();
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
    m_distortion->setValue(qRound(m_step->amount * 100));
    m_blur->setValue(qRound(m_step->amount * 100));
    m_width->setValue(qRound(m_step->width * 100));
    say(m_cropSize, [this, area = m_step->area] {
        return sizeToString(
            QSize(qRound(m_size.width() * area.width()), qRound(m_size.height() * area.height())));
    });
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

//! [code]
void ToolPanel::listLenses(const QVector<Lens>& lenses, int total)
{
    const QIcon icon(QStringLiteral(":/icons/cafDialog/caf_lens.svg"));
    m_lenses->clear();
    for (const Lens& lens : lenses) {
        auto* const item = new QListWidgetItem(icon, lens.name, m_lenses);
        item->setToolTip(lens.name + QLatin1Char('\n') + lens.id);
    }
    say(m_lensCount, [total, milliseconds = int(m_sinceQuestion.elapsed())] {
        return total < 0 ? tr("The calibration database cannot be read.")
                         : tr("%n lens(es) found", "", total) + QStringLiteral(" · ") +
                               tr("%n millisecond(s)", "", milliseconds);
    });
}
//! [code]
