#include "ForcedState.h"
#include "StylePage.h"

#include <QCheckBox>
#include <QCommandLinkButton>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace
{

using PushButton = ForcedState<QPushButton, QStyleOptionButton, QStyle::CE_PushButton>;
using CheckBox = ForcedState<QCheckBox, QStyleOptionButton, QStyle::CE_CheckBox>;
using RadioButton = ForcedState<QRadioButton, QStyleOptionButton, QStyle::CE_RadioButton>;

struct State {
    const char* name;
    QStyle::State state;
    bool enabled;
};

const State states[] = {
    {QT_TRANSLATE_NOOP("StylePage", "Normal"), QStyle::State_None, true},
    {QT_TRANSLATE_NOOP("StylePage", "Hover"), QStyle::State_MouseOver, true},
    {QT_TRANSLATE_NOOP("StylePage", "Pressed"), QStyle::State_Sunken, true},
    {QT_TRANSLATE_NOOP("StylePage", "Focus"), QStyle::State_HasFocus, true},
    {QT_TRANSLATE_NOOP("StylePage", "Disabled"), QStyle::State_None, false},
};

QToolButton* toolButton(const char* icon)
{
    auto* const button = new QToolButton;
    button->setIcon(StylePage::toolIcon(icon));
    button->setIconSize(QSize(24, 24));
    return button;
}

} // namespace

QLayout* StylePage::makeButtonColumn()
{
    auto* const column = new QVBoxLayout;
    column->setSpacing(12);
    column->addWidget(makePushButtons());
    column->addWidget(makeToolButtons());
    column->addWidget(makeChoices());
    column->addWidget(makeGroups());
    column->addWidget(makeToolBox(), 1);
    return column;
}

void StylePage::addStateNames(QGridLayout* grid)
{
    int row = 1;
    for (const State& state : states) {
        grid->addWidget(withText(new QLabel, state.name), row++, 0);
    }
}

QWidget* StylePage::makePushButtons()
{
    auto* const box = withText(new QGroupBox, QT_TR_NOOP("Push buttons"), "title");
    auto* const grid = new QGridLayout(box);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    addStateNames(grid);
    const char* const texts[] = {QT_TR_NOOP("Apply"), QT_TR_NOOP("Default"), QT_TR_NOOP("Checked"),
                                 QT_TR_NOOP("Flat")};
    int row = 1;
    for (const State& state : states) {
        for (int kind = 0; kind < 4; ++kind) {
            auto* const button = withText(new PushButton(state.state), texts[kind]);
            button->setEnabled(state.enabled);
            button->setAutoDefault(false);
            button->setDefault(kind == 1);
            button->setCheckable(kind == 2);
            button->setChecked(kind == 2);
            button->setFlat(kind == 3);
            grid->addWidget(button, row, kind + 1);
        }
        ++row;
    }
    return box;
}

QWidget* StylePage::makeToolButtons()
{
    auto* const box = withText(new QGroupBox, QT_TR_NOOP("Other buttons"), "title");
    auto* const column = new QVBoxLayout(box);
    auto* const tools = new QHBoxLayout;
    for (const char* const icon : {"undo", "redo", "zoom_in"}) {
        tools->addWidget(toolButton(icon));
    }
    tools->itemAt(1)->widget()->setEnabled(false);
    auto* const checked = toolButton("grid_checked");
    checked->setCheckable(true);
    checked->setChecked(true);
    tools->addWidget(checked);
    for (const auto mode : {QToolButton::MenuButtonPopup, QToolButton::InstantPopup}) {
        auto* const button = toolButton("rotate_left");
        button->setMenu(makeMenu(button));
        button->setPopupMode(mode);
        tools->addWidget(button);
    }
    auto* const arrow = new QToolButton;
    arrow->setArrowType(Qt::RightArrow);
    tools->addWidget(arrow);
    auto* const captioned = withText(toolButton("help"), QT_TR_NOOP("Help"));
    captioned->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    withText(captioned, QT_TR_NOOP("A tool tip explains in one sentence."), "toolTip");
    tools->addWidget(captioned);
    tools->addStretch();
    column->addLayout(tools);

    auto* const row = new QHBoxLayout;
    auto* const withMenu = withText(new QPushButton, QT_TR_NOOP("Options"));
    withMenu->setMenu(makeMenu(withMenu));
    row->addWidget(withMenu);
    auto* const link = withText(new QCommandLinkButton, QT_TR_NOOP("Correct automatically"));
    link->setIcon(QIcon(QStringLiteral(":/icons/perspective/perspective_automatic.svg")));
    row->addWidget(link, 1);
    column->addLayout(row);
    return box;
}

QWidget* StylePage::makeChoices()
{
    auto* const box = withText(new QGroupBox, QT_TR_NOOP("Check boxes and radio buttons"), "title");
    auto* const grid = new QGridLayout(box);
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(4);
    grid->setColumnStretch(6, 1); // what is left over stands at the end, not between the choices
    addStateNames(grid);
    const char* const texts[] = {QT_TR_NOOP("Off"), QT_TR_NOOP("On"), QT_TR_NOOP("Partly")};
    int row = 1;
    for (const State& state : states) {
        for (int value = 0; value < 5; ++value) {
            QAbstractButton* button = nullptr;
            if (value < 3) {
                auto* const checkBox = withText(new CheckBox(state.state), texts[value]);
                checkBox->setTristate(value == 2);
                checkBox->setCheckState(value == 0   ? Qt::Unchecked
                                        : value == 1 ? Qt::Checked
                                                     : Qt::PartiallyChecked);
                button = checkBox;
            } else {
                button = withText(new RadioButton(state.state), texts[value - 3]);
                button->setAutoExclusive(false);
                button->setChecked(value == 4);
            }
            button->setEnabled(state.enabled);
            grid->addWidget(button, row, value + 1);
        }
        ++row;
    }
    return box;
}
