#include "Pages.h"
#include "PageWidget.h"

namespace
{

//! [code]
/// A button that is drawn in a state of the caller's choice, such as QStyle::State_MouseOver, independent of
/// mouse and keyboard.
template <class Button, QStyle::ControlElement element>
class ForcedState : public Button
{
public:
    explicit ForcedState(QStyle::State state)
        : m_state(state)
    {
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QStylePainter painter(this);
        QStyleOptionButton option;
        this->initStyleOption(&option);
        option.state |= m_state;
        option.state.setFlag(QStyle::State_Raised, !(m_state & QStyle::State_Sunken));
        painter.drawControl(element, option);
    }

private:
    const QStyle::State m_state;
};
//! [code]

using PushButton = ForcedState<QPushButton, QStyle::CE_PushButton>;
using CheckBox = ForcedState<QCheckBox, QStyle::CE_CheckBox>;
using RadioButton = ForcedState<QRadioButton, QStyle::CE_RadioButton>;

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

} // namespace

/// Standard widgets under the product's look, in the states that they can be in.
class StylePage : public PageWidget
{
    Q_OBJECT

public:
    explicit StylePage(QWidget* parent)
        : PageWidget(parent)
    {
        auto* const grid = new QGridLayout;
        grid->setSpacing(14);
        grid->addWidget(makeButtons(), 0, 0);
        grid->addWidget(makeFields(), 0, 1);
        grid->addWidget(makeChoices(), 1, 0);
        grid->addWidget(makeRanges(), 1, 1);
        grid->setColumnStretch(1, 1);
        column()->addLayout(grid);
        column()->addLayout(makeRow({makeTable(), makeMenu()}, 0));
        column()->addStretch();
    }

private:
    using Make = std::function<QAbstractButton*(QStyle::State state, int column)>;

    QGroupBox* makeBox(const char* title) { return withText(new QGroupBox, title, "title"); }

    /// A line of buttons for each state.
    QWidget* makeStates(const char* title, int columns, const Make& make)
    {
        auto* const box = makeBox(title);
        auto* const grid = new QGridLayout(box);
        grid->setHorizontalSpacing(10);
        grid->setVerticalSpacing(4);
        for (int row = 0; row < 5; ++row) {
            grid->addWidget(withText(new QLabel, states[row].name), row, 0);
            for (int column = 0; column < columns; ++column) {
                QAbstractButton* const button = make(states[row].state, column);
                button->setEnabled(states[row].enabled);
                if (row > 0) { // the state that is drawn would hide the focus
                    button->setFocusPolicy(Qt::NoFocus);
                }
                grid->addWidget(button, row, column + 1);
            }
        }
        return box;
    }

    QWidget* makeButtons()
    {
        return makeStates(QT_TR_NOOP("Push buttons"), 4, [this](QStyle::State state, int column) {
            const char* const texts[] = {QT_TR_NOOP("Apply"), QT_TR_NOOP("Default"), QT_TR_NOOP("Checked"),
                                         QT_TR_NOOP("Flat")};
            auto* const button = withText(new PushButton(state), texts[column]);
            button->setAutoDefault(false);
            button->setDefault(column == 1);
            button->setCheckable(column == 2);
            button->setChecked(column == 2);
            button->setFlat(column == 3);
            return button;
        });
    }

    QWidget* makeChoices()
    {
        return makeStates(
            QT_TR_NOOP("Check boxes and radio buttons"), 4,
            [this](QStyle::State state, int column) -> QAbstractButton* {
                const char* const texts[] = {QT_TR_NOOP("Off"), QT_TR_NOOP("Partly"), QT_TR_NOOP("On")};
                if (column == 3) {
                    auto* const radio = withText(new RadioButton(state), texts[2]);
                    radio->setAutoExclusive(false);
                    radio->setChecked(true);
                    return radio;
                }
                auto* const box = withText(new CheckBox(state), texts[column]);
                box->setTristate(column == 1);
                box->setCheckState(Qt::CheckState(column));
                return box;
            });
    }

    QWidget* makeFields()
    {
        auto* const box = makeBox(QT_TR_NOOP("Text"));
        auto* const form = new QFormLayout(box);
        const auto add = [&](const char* name, auto* field) {
            form->addRow(withText(new QLabel, name), field);
            return field;
        };
        add(QT_TR_NOOP("Title"), withText(new QLineEdit, QT_TR_NOOP("Old harbour at dusk")))
            ->setClearButtonEnabled(true);
        add(QT_TR_NOOP("Place"), withText(new QLineEdit, QT_TR_NOOP("Name of the place"), "placeholderText"));
        add(QT_TR_NOOP("Password"), new QLineEdit(QStringLiteral("password")))
            ->setEchoMode(QLineEdit::Password);
        add(QT_TR_NOOP("Disabled"), withText(new QLineEdit, QT_TR_NOOP("Cannot be changed")))
            ->setEnabled(false);
        auto* const ratio = new QComboBox;
        ratio->addItems({QStringLiteral("16 : 9"), QStringLiteral("3 : 2")});
        auto* const angle = new QDoubleSpinBox;
        angle->setSuffix(QStringLiteral("°"));
        auto* const date = new QDateEdit(QDate(2024, 5, 17));
        date->setCalendarPopup(true);
        add(QT_TR_NOOP("Choices and numbers"), makeRow({ratio, angle, date}, 0));
        return box;
    }

    QWidget* makeRanges()
    {
        auto* const box = makeBox(QT_TR_NOOP("Ranges and progress"));
        auto* const column = new QVBoxLayout(box);
        for (const bool enabled : {true, false}) {
            auto* const slider = new QSlider(Qt::Horizontal);
            slider->setValue(35);
            auto* const progress = new QProgressBar;
            progress->setValue(45);
            auto* const bar = new QScrollBar(Qt::Horizontal);
            bar->setPageStep(40);
            for (QWidget* const widget : std::initializer_list<QWidget*>{slider, progress, bar}) {
                widget->setEnabled(enabled);
                column->addWidget(widget);
            }
        }
        return box;
    }

    QWidget* makeTable()
    {
        auto* const table = new QTableWidget(5, 3);
        const char* const headers[] = {QT_TR_NOOP("Lens"), QT_TR_NOOP("Focal length"),
                                       QT_TR_NOOP("Aperture")};
        for (int column = 0; column < 3; ++column) {
            auto* const header = new QTableWidgetItem;
            table->setHorizontalHeaderItem(column, header);
            translate(headers[column], [header](const QString& text) { header->setText(text); });
        }
        const int lengths[] = {24, 35, 50, 85, 135};
        for (int row = 0; row < 5; ++row) {
            table->setItem(row, 0, new QTableWidgetItem(QStringLiteral("Optara %1").arg(lengths[row])));
            table->setItem(row, 1, new QTableWidgetItem(QStringLiteral("%1 mm").arg(lengths[row])));
            table->setItem(row, 2, new QTableWidgetItem(QStringLiteral("f/%1").arg(1.4 + 0.4 * row)));
        }
        prepareTable(table);
        table->setAlternatingRowColors(true);
        table->selectRow(1);
        table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
        return table;
    }

    /// A menu that is shown in the page, as if it were open.
    QMenu* makeMenu()
    {
        auto* const menu = new QMenu(this);
        menu->setWindowFlags(Qt::Widget);
        const auto add = [&](const char* text) { return withText(menu->addAction(QString()), text); };
        QAction* const undo = add(QT_TR_NOOP("Undo"));
        undo->setShortcut(QKeySequence(QStringLiteral("Ctrl+Z")));
        undo->setIcon(QIcon(QStringLiteral(":/icons/toolbar/undo.svg")));
        add(QT_TR_NOOP("Redo"))->setEnabled(false);
        menu->addSeparator();
        QAction* const grid = add(QT_TR_NOOP("Grid"));
        grid->setCheckable(true);
        grid->setChecked(true);
        auto* const more = withText(menu->addMenu(QString()), QT_TR_NOOP("Rotate"), "title");
        withText(more->addAction(QString()), QT_TR_NOOP("Rotate left"));
        menu->setActiveAction(undo);
        return menu;
    }
};

QWidget* makeStylePage(QWidget* parent)
{
    return new StylePage(parent);
}

#include "StylePage.moc"
