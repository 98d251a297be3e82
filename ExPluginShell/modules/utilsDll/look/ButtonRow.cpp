#include "look/ButtonRow.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr int rowLine = 2;
constexpr int gapBetweenRows = 4;

/// Moves the last buttons of the row to a new row, as many as fit.
QWidget* splitRow(QWidget& row, int width)
{
    auto* const second = new QWidget;
    auto* const layout = new QHBoxLayout(second);
    layout->setSpacing(row.layout()->spacing());
    layout->setContentsMargins(0, gapBetweenRows, 0, 0);
    layout->addStretch();
    const auto buttons = row.findChildren<QPushButton*>();
    int free = width;
    for (int i = buttons.size() - 1; i > 0; --i) {
        QPushButton* const button = buttons.at(i);
        free -= button->sizeHint().width();
        if (free < 0 && layout->count() > 1) {
            break;
        }
        free -= layout->spacing();
        row.layout()->removeWidget(button);
        layout->insertWidget(1, button); // after the stretch
    }
    return second;
}

} // namespace

void fitButtonRow(QGridLayout& grid, QWidget& row, int width)
{
    const QMargins margins = grid.contentsMargins();
    const int whole = width - margins.left() - margins.right();
    const int iconColumn = grid.itemAtPosition(0, 0)->sizeHint().width() + grid.horizontalSpacing();
    const auto needed = [&row] { return row.layout()->sizeHint().width(); };
    if (needed() <= whole - iconColumn) {
        return;
    }
    grid.removeWidget(&row);
    grid.addWidget(&row, rowLine, 0, 1, -1);
    if (needed() > whole) {
        grid.setRowMinimumHeight(0, grid.itemAtPosition(0, 0)->sizeHint().height()); // the icon
        grid.addWidget(splitRow(row, whole), rowLine + 1, 0, 1, -1);
    }
}

} // namespace TOLVAN_NAMESPACE
