#include "Workplace.h"

#include "Canvas.h"
#include "pages/Pages.h"
#include "ToolPanel.h"

#include <utilsDll/DelayedCall.h>
#include <utilsDll/FileManagement.h>

using namespace TOLVAN_NAMESPACE;

namespace
{

const QString noTool = QStringLiteral("Empty_Correction_ID");
constexpr int panelWidth = 286;
constexpr int replayDelay = 40; // milliseconds

struct ToolLook {
    const char* icon;
    const char* text; // of the context "Workplace"
};

const ToolLook toolLooks[toolCount] = {
    {":/icons/horizon/horizon_line", QT_TRANSLATE_NOOP("Workplace", "Horizon")},
    {":/icons/keystoning/keystoning_vertical", QT_TRANSLATE_NOOP("Workplace", "Keystoning")},
    {":/icons/distortion/distortion_barrel", QT_TRANSLATE_NOOP("Workplace", "Distortion")},
    {":/icons/correctionInfo/crop", QT_TRANSLATE_NOOP("Workplace", "Crop")},
    {":/icons/tiltshift/tiltshift_linear", QT_TRANSLATE_NOOP("Workplace", "Tilt-shift")},
};

QIcon toolIcon(const QString& path)
{
    if (path.endsWith(QLatin1String("/crop"))) { // its pictures are those of the correction list
        QIcon crop(path + QStringLiteral("_not_applied.svg"));
        crop.addFile(path + QStringLiteral("_applied.svg"), QSize(), QIcon::Normal, QIcon::On);
        return crop;
    }
    QIcon icon(path + QStringLiteral(".svg"));
    const auto add = [&](const char* suffix, QIcon::Mode mode, QIcon::State state) {
        const QString variant = path + QLatin1String(suffix);
        if (QFile::exists(variant)) {
            icon.addFile(variant, QSize(), mode, state);
        }
    };
    add("_hover.svg", QIcon::Active, QIcon::Off);
    add("_checked.svg", QIcon::Normal, QIcon::On);
    add("_disabled.svg", QIcon::Disabled, QIcon::Off);
    return icon;
}

bool changesNothing(const Step& step)
{
    const Step start = Step::startOf(step.tool, step.aspect);
    return step.tool != Tool::TiltShift && step.lines == start.lines && step.area == start.area &&
           step.amount == start.amount;
}

} // namespace

QWidget* makeWorkplace(QWidget* parent)
{
    return new Workplace(parent);
}

Workplace::Workplace(QWidget* parent)
    : PageWidget(parent)
    , m_tools(new QButtonGroup(this))
    , m_rule(new QLabel(this))
{
    const QString error = m_rules.load(QStringLiteral(":/other/CorrectionsStateMachine.xml"));
    m_rule->setWordWrap(true);
    m_rule->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_rule->setObjectName(QStringLiteral("pageSummary"));
    auto* const row = new QHBoxLayout; // Tab goes through the parts in the order in which they are made
    row->setSpacing(14);
    row->addWidget(makeToolBar());
    auto* const middle = new QVBoxLayout;
    middle->setSpacing(8);
    middle->addLayout(makeCommands());
    middle->addWidget(m_canvas = new Canvas(this), 1);
    middle->addWidget(m_rule);
    row->addLayout(middle, 1);
    row->addWidget(makeSide());
    column()->addLayout(row, 1);
    connectParts();
    listPresets();
    setPhoto(Photo::painted());
    say(m_rule, [error, count = m_rules.rules().size()] {
        return error.isEmpty() ? tr("%n rule(s) read. The rule behind a click is shown here.", "", count)
                               : tr("The rules cannot be read: %1").arg(error);
    });
}

QToolButton* Workplace::makeTool(const QString& icon, const char* text, int size)
{
    auto* const button = new QToolButton(this);
    button->setIcon(toolIcon(icon));
    button->setIconSize(QSize(size, size));
    return withText(withText(button, text, "toolTip"), text, "accessibleName");
}

QWidget* Workplace::makeToolBar()
{
    auto* const bar = new QWidget(this);
    bar->setObjectName(QStringLiteral("toolBar"));
    auto* const layout = new QVBoxLayout(bar);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(6);
    m_tools->setExclusive(false); // the rules decide
    for (int tool = 0; tool < toolCount; ++tool) {
        QToolButton* const button =
            makeTool(QString::fromLatin1(toolLooks[tool].icon), toolLooks[tool].text, 32);
        button->setCheckable(true);
        m_tools->addButton(button, tool);
        layout->addWidget(button);
    }
    layout->addStretch();
    return bar;
}

QHBoxLayout* Workplace::makeCommands()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(4);
    row->addWidget(makeButton(QT_TR_NOOP("Open…"), [this] { open(); }));
    row->addSpacing(8);
    const auto add = [&](const char* icon, const char* text, void (Workplace::*clicked)()) {
        QToolButton* const button = makeTool(QStringLiteral(":/icons/") + QLatin1String(icon), text, 24);
        connect(button, &QToolButton::clicked, this, clicked);
        row->addWidget(button);
        return button;
    };
    m_undo = add("toolbar/undo", QT_TR_NOOP("Undo"), &Workplace::undo);
    add("reset/reset", QT_TR_NOOP("Reset all corrections"), &Workplace::resetAll);
    m_grid = add("toolbar/grid", QT_TR_NOOP("Grid"), &Workplace::showPicture);
    m_preview = add("toolbar/preview", QT_TR_NOOP("Preview of the current tool"), &Workplace::showPicture);
    m_compare = add("toolbar/compare", QT_TR_NOOP("Compare before and after"), &Workplace::compare);
    for (QToolButton* const view : {m_grid, m_preview, m_compare}) {
        view->setCheckable(true);
    }
    row->addStretch();
    m_presets = withText(new QComboBox(this), QT_TR_NOOP("Presets"), "accessibleName");
    m_presets->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(m_presets, qOverload<int>(&QComboBox::activated), this, &Workplace::usePreset);
    row->addWidget(m_presets);
    add("toolbar/save_preset", QT_TR_NOOP("Save the corrections as a preset"), &Workplace::savePreset);
    return row;
}

QWidget* Workplace::makeSide()
{
    auto* const side = new QWidget(this);
    side->setFixedWidth(panelWidth);
    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(m_panel = new ToolPanel(this), 1);
    m_history = new QLabel(side);
    m_history->setWordWrap(true);
    layout->addWidget(m_history);
    layout->addWidget(makeAnswer());
    m_apply = makeButton(QT_TR_NOOP("Apply to the full picture"), [this] { apply(); });
    m_apply->setDefault(true);
    m_save = makeButton(QT_TR_NOOP("Save…"), [this] { save(); });
    m_pack = makeButton(QT_TR_NOOP("Pack…"), [this] { pack(); });
    m_trash = makeButton(QT_TR_NOOP("Send to the recycle bin"), [this] { trashOrRestore(); });
    layout->addWidget(m_apply);
    auto* const row = new QHBoxLayout;
    row->setSpacing(6);
    row->addWidget(m_save, 1);
    row->addWidget(m_pack, 1);
    layout->addLayout(row);
    layout->addWidget(m_trash);
    return side;
}

void Workplace::connectParts()
{
    connect(m_tools, &QButtonGroup::idClicked, this, &Workplace::toolClicked);
    connect(m_canvas, &Canvas::stepChanged, this, [this](bool finished) {
        m_panel->readValues();
        if (finished) {
            touch();
        }
        showPicture();
    });
    connect(m_canvas, &Canvas::resized, this, [this] { CDelayedCall::invoke(replayDelay, this, "replay"); });
    connect(m_panel, &ToolPanel::valuesChanged, this, [this] {
        touch();
        if (shownStep()->tool == Tool::Distortion) {
            renewBase();
        }
        showPicture();
    });
    const auto performs = [this](const char* activity) {
        return [this, activity] { performOnCurrent(QString::fromLatin1(activity)); };
    };
    // The buttons will be hidden.
    connect(m_panel, &ToolPanel::accepted, m_canvas, qOverload<>(&QWidget::setFocus));
    connect(m_panel, &ToolPanel::cancelled, m_canvas, qOverload<>(&QWidget::setFocus));
    connect(m_panel, &ToolPanel::resetRequested, this, performs("CorrectionReset"));
    connect(m_panel, &ToolPanel::accepted, this, performs("CorrectionApplyed"));
    connect(m_panel, &ToolPanel::cancelled, this, performs("CorrectionCancel"));
    connect(m_canvas, &Canvas::applyRequested, this, performs("CorrectionApplyed"));
    connect(m_canvas, &Canvas::cancelRequested, this, performs("CorrectionCancel"));
}

void Workplace::performOnCurrent(const QString& activity)
{
    const Step* const step = shownStep();
    if (step) {
        perform(moduleOf(step->tool), activity);
    }
}

void Workplace::toolClicked(int tool)
{
    const QString module = moduleOf(Tool(tool));
    const bool active = m_rules.isActive(module);
    perform(module, active ? QStringLiteral("ModuleDeactivate") : QStringLiteral("ModuleActivate"));
}

/// A value of the current tool was changed: the rules are asked, but the line is not filled with it.
void Workplace::touch()
{
    const Step* const step = shownStep();
    if (step) {
        m_rules.perform(moduleOf(step->tool), QStringLiteral("AdditionalControlTouched"));
        forgetResult();
    }
}

//! [code]
void Workplace::perform(const QString& module, const QString& activity)
{
    // The free tools have no rule for these: they are switched off, or their values reset.
    const bool free = module == moduleOf(Tool::Distortion);
    const QString asked = free && (activity == QLatin1String("CorrectionApplyed") ||
                                   activity == QLatin1String("CorrectionCancel"))
                              ? QStringLiteral("ModuleDeactivate")
                              : activity;
    if (free && activity == QLatin1String("CorrectionApplyed")) {
        m_applied = steps(); // with that of the lens
    }
    forgetResult();
    const RulesMachine::Rule* const rule = m_rules.perform(module, asked);
    if (!rule) {
        say(m_rule, [=] { return tr("No rule of %1 holds for %2.").arg(module, asked); });
    } else {
        say(m_rule, [text = RulesMachine::inWords(*rule)] { return tr("Rule: %1").arg(text); });
        carryOut(*rule);
        if (activity == QLatin1String("CorrectionReset") && shownStep()) {
            resetStep(shownStep()->tool);
        }
    }
    showTools();
    replay();
}
//! [code]

/// Applies what the rule applies; what it switches is shown by showTools().
void Workplace::carryOut(const RulesMachine::Rule& rule)
{
    for (const RulesMachine::Term& change : rule.changes) {
        for (int tool = 0; tool < toolCount; ++tool) {
            if (change.name != moduleOf(Tool(tool)) || change.kind == RulesMachine::Term::CurrentCorrection) {
                continue;
            }
            if (change.kind == RulesMachine::Term::ModuleApply && !changesNothing(m_steps[tool])) {
                m_applied += m_steps[tool];
            }
            if (!change.on) {
                resetStep(Tool(tool));
            }
        }
    }
}

void Workplace::resetStep(Tool tool)
{
    const double aspect = m_base.isNull() ? 1.5 : double(m_base.width()) / m_base.height();
    m_steps[int(tool)] = Step::startOf(tool, aspect);
}

Step* Workplace::shownStep()
{
    for (int tool = 0; tool < toolCount; ++tool) {
        if (m_rules.current() == moduleOf(Tool(tool))) {
            return &m_steps[tool];
        }
    }
    return m_rules.isActive(moduleOf(Tool::Distortion)) ? &m_steps[int(Tool::Distortion)] : nullptr;
}

void Workplace::showTools()
{
    for (int tool = 0; tool < toolCount; ++tool) {
        m_tools->button(tool)->setChecked(m_rules.isActive(moduleOf(Tool(tool))));
    }
    m_undo->setEnabled(!m_applied.isEmpty());
    m_apply->setEnabled(!steps().isEmpty() || shownStep());
    m_save->setEnabled(!m_result.isNull());
    m_pack->setEnabled(!m_saved.isEmpty());
    m_trash->setEnabled(!m_saved.isEmpty() || m_trashed.isTrashed);
    m_trash->setText(m_trashed.isTrashed ? tr("Bring back from the recycle bin")
                                         : tr("Send to the recycle bin"));
    say(m_history, [this] {
        QStringList names;
        for (const Step& step : steps()) {
            names += tr(toolLooks[int(step.tool)].text);
        }
        return names.isEmpty() ? tr("No corrections yet") : names.join(QStringLiteral("  ›  "));
    });
}

void Workplace::setPhoto(const Photo& photo)
{
    m_photo = photo;
    resetAll();
    answer([photo] { return photo.name + QStringLiteral("\n") + sizeToString(photo.size); });
}

/// The full picture and the name of a preset belong to other corrections now.
void Workplace::forgetResult()
{
    m_result = {};
    m_presets->setCurrentIndex(0);
    m_save->setEnabled(false);
}

void Workplace::undo()
{
    if (!m_applied.isEmpty()) {
        m_applied.removeLast();
        forgetResult();
        showTools();
        replay();
    }
}

void Workplace::resetAll()
{
    m_applied.clear();
    m_base = {};
    for (int tool = 0; tool < toolCount; ++tool) {
        resetStep(Tool(tool));
    }
    perform(noTool, QStringLiteral("resetAndCloseAllTools"));
}

/// The corrections in the order in which they are carried out: that of the lens first.
QVector<Step> Workplace::steps() const
{
    QVector<Step> all = m_applied;
    const Step& lens = m_steps[int(Tool::Distortion)];
    if (m_rules.isActive(moduleOf(Tool::Distortion)) && lens.amount != 0.0) {
        all.prepend(lens);
    }
    return all;
}

void Workplace::languageChanged()
{
    listPresets();
    showTools();
}

void Workplace::prepareForPicture()
{
    resetAll();
    const auto lay = [this](Tool tool, const std::function<void(Step&)>& change) {
        perform(moduleOf(tool), QStringLiteral("ModuleActivate"));
        change(m_steps[int(tool)]);
    };
    lay(Tool::Horizon, [](Step& step) { step.setAngle(2.4); });
    lay(Tool::Keystoning, [](Step& step) {
        step.lines = {QLineF(0.115, 0.9, 0.19, 0.1), QLineF(0.87, 0.9, 0.80, 0.1)};
    });
    showPicture();
}
