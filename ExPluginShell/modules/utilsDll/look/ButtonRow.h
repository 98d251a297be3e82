#pragma once

class QGridLayout;
class QWidget;

namespace TOLVAN_NAMESPACE
{

/// Makes room for a row of buttons whose texts are too wide for its cell, as with a large system font: it gets
/// every column of the grid, and then a second row below it. Otherwise nothing changes.
/// \param grid  has the row in its line 2
/// \param row   has a horizontal box layout
/// \param width of the grid in pixels, with its margins
void fitButtonRow(QGridLayout& grid, QWidget& row, int width);

} // namespace TOLVAN_NAMESPACE
