#include "StylePage.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QDial>
#include <QFontComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLCDNumber>
#include <QLineEdit>
#include <QProgressBar>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>

namespace
{

const QDate sampleDate(2024, 5, 17);

template <class Range>
Range* range(Qt::Orientation orientation, int value)
{
    auto* const widget = new Range(orientation);
    widget->setRange(0, 100);
    widget->setValue(value);
    return widget;
}

QProgressBar* progress(int value, Qt::Orientation orientation = Qt::Horizontal)
{
    auto* const bar = new QProgressBar;
    bar->setValue(value);
    bar->setOrientation(orientation);
    return bar;
}

QWidget* disabled(QWidget* widget)
{
    widget->setEnabled(false);
    return widget;
}

} // namespace

QLayout* StylePage::makeFieldColumn()
{
    auto* const column = new QVBoxLayout;
    column->setSpacing(12);
    column->addWidget(makeTextFields());
    column->addWidget(makeNumberFields());
    column->addWidget(makeRanges());
    column->addStretch();
    return column;
}

QWidget* StylePage::makeTextFields()
{
    auto* const box = withText(new QGroupBox, QT_TR_NOOP("Text"), "title");
    auto* const form = new QFormLayout(box);
    const auto addRow = [&](const char* name, QWidget* field) {
        form->addRow(withText(new QLabel, name), field);
    };
    auto* const line = withText(new QLineEdit, QT_TR_NOOP("Old harbour at dusk"));
    line->setClearButtonEnabled(true);
    addRow(QT_TR_NOOP("Title"), line);
    addRow(QT_TR_NOOP("Place"), withText(new QLineEdit, QT_TR_NOOP("Name of the place"), "placeholderText"));
    auto* const password = new QLineEdit(QStringLiteral("password"));
    password->setEchoMode(QLineEdit::Password);
    addRow(QT_TR_NOOP("Password"), password);
    auto* const readOnly = withText(new QLineEdit, QT_TR_NOOP("Can be read only"));
    readOnly->setReadOnly(true);
    addRow(QT_TR_NOOP("Camera"), readOnly);
    addRow(QT_TR_NOOP("Disabled"), disabled(withText(new QLineEdit, QT_TR_NOOP("Cannot be changed"))));
    addRow(QT_TR_NOOP("Shortcut"), new QKeySequenceEdit(QKeySequence(QStringLiteral("Ctrl+Shift+K"))));
    return box;
}

QWidget* StylePage::makeNumberFields()
{
    auto* const box = withText(new QGroupBox, QT_TR_NOOP("Choices and numbers"), "title");
    auto* const grid = new QGridLayout(box);
    const char* const choice = QT_TR_NOOP("Perspective");
    const auto combo = [&](bool editable) {
        auto* const widget = new QComboBox;
        widget->addItem(QString());
        translate(choice, [widget](const QString& text) { widget->setItemText(0, text); });
        widget->addItem(QStringLiteral("16 : 9"));
        widget->setEditable(editable);
        widget->setMinimumContentsLength(10); // under a style sheet a line edit gets too little by itself
        return widget;
    };
    grid->addWidget(combo(false), 0, 0);
    grid->addWidget(combo(true), 0, 1);
    grid->addWidget(disabled(combo(false)), 0, 2);
    auto* const angle = new QDoubleSpinBox;
    angle->setRange(-45, 45);
    angle->setValue(2.5);
    angle->setSuffix(QStringLiteral("°"));
    auto* const least = new QSpinBox; // at its end: one arrow is off
    least->setSuffix(QStringLiteral(" px"));
    grid->addWidget(angle, 1, 0);
    grid->addWidget(least, 1, 1);
    grid->addWidget(disabled(new QSpinBox), 1, 2);
    auto* const date = new QDateEdit(sampleDate);
    date->setCalendarPopup(true);
    grid->addWidget(date, 2, 0);
    grid->addWidget(new QTimeEdit(QTime(18, 42)), 2, 1);
    auto* const fonts = new QFontComboBox;
    grid->addWidget(disabled(new QTimeEdit(QTime(18, 42))), 2, 2);
    grid->addWidget(fonts, 3, 0, 1, 3);
    for (int column = 0; column < 3; ++column) {
        grid->setColumnStretch(column, 1);
    }
    return box;
}

QWidget* StylePage::makeRanges()
{
    auto* const box = withText(new QGroupBox, QT_TR_NOOP("Ranges and progress"), "title");
    auto* const row = new QHBoxLayout(box);
    auto* const lying = new QVBoxLayout;
    auto* const ticks = range<QSlider>(Qt::Horizontal, 70);
    ticks->setTickPosition(QSlider::TicksBelow);
    ticks->setTickInterval(10);
    auto* const tiltShift = range<QSlider>(Qt::Horizontal, 50);
    tiltShift->setObjectName(QStringLiteral("tiltShiftSlider"));
    auto* const scrollBar = range<QScrollBar>(Qt::Horizontal, 20);
    scrollBar->setPageStep(40);
    for (QWidget* const widget :
         {static_cast<QWidget*>(range<QSlider>(Qt::Horizontal, 35)), static_cast<QWidget*>(ticks),
          static_cast<QWidget*>(tiltShift), disabled(range<QSlider>(Qt::Horizontal, 35)),
          static_cast<QWidget*>(progress(45)), disabled(progress(45)), static_cast<QWidget*>(scrollBar),
          disabled(range<QScrollBar>(Qt::Horizontal, 20))}) {
        lying->addWidget(widget);
    }
    auto* const busy = progress(0);
    busy->setRange(0, 0);
    lying->addWidget(busy);
    row->addLayout(lying, 1);
    row->addWidget(range<QSlider>(Qt::Vertical, 60));
    row->addWidget(range<QScrollBar>(Qt::Vertical, 40));
    row->addWidget(progress(60, Qt::Vertical));
    auto* const round = new QVBoxLayout;
    for (const bool enabled : {true, false}) {
        auto* const dial = new QDial;
        dial->setNotchesVisible(true);
        dial->setValue(30);
        dial->setEnabled(enabled);
        dial->setFixedSize(64, 64);
        round->addWidget(dial);
    }
    auto* const digits = new QLCDNumber(4);
    digits->setSegmentStyle(QLCDNumber::Flat);
    digits->display(24.5);
    round->addWidget(digits);
    row->addLayout(round);
    return box;
}
