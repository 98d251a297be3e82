#include "StylePage.h"

#include <QFrame>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QTableWidget>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolBox>
#include <QTreeWidget>
#include <QVBoxLayout>

QLayout* StylePage::makeViewColumn()
{
    auto* const column = new QVBoxLayout;
    column->setSpacing(12);
    column->addWidget(makeTabs(), 1);
    auto* const splitter = new QSplitter;
    splitter->addWidget(makeTree());
    splitter->addWidget(makeList());
    splitter->setFixedHeight(150);
    column->addWidget(splitter);
    column->addWidget(makeTextViews());
    return column;
}

QWidget* StylePage::makeTabs()
{
    auto* const tabs = new QTabWidget;
    tabs->setTabsClosable(true);
    const char* const names[] = {QT_TR_NOOP("Lenses"), QT_TR_NOOP("History"), QT_TR_NOOP("Metadata")};
    for (const char* const name : names) {
        const int index = tabs->addTab(tabs->count() == 0 ? makeTable() : new QWidget, QString());
        translate(name, [tabs, index](const QString& text) { tabs->setTabText(index, text); });
    }
    tabs->setTabEnabled(2, false);
    tabs->setMinimumHeight(210);
    return tabs;
}

QWidget* StylePage::makeTable()
{
    auto* const table = new QTableWidget(5, 3);
    const char* const headers[] = {QT_TR_NOOP("Lens"), QT_TR_NOOP("Focal length"), QT_TR_NOOP("Aperture")};
    for (int column = 0; column < 3; ++column) {
        table->setHorizontalHeaderItem(column, new QTableWidgetItem);
        translate(headers[column], [table, column](const QString& text) {
            table->horizontalHeaderItem(column)->setText(text);
        });
    }
    const int lengths[] = {24, 35, 50, 85, 135};
    for (int row = 0; row < 5; ++row) {
        table->setItem(row, 0, new QTableWidgetItem(QStringLiteral("Optara %1").arg(lengths[row])));
        auto* const length = new QTableWidgetItem;
        length->setData(Qt::DisplayRole, lengths[row]);
        length->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        table->setItem(row, 1, length);
        table->setItem(row, 2, new QTableWidgetItem(QStringLiteral("f/%1").arg(1.4 + 0.4 * row)));
    }
    table->setAlternatingRowColors(true);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->selectRow(1);
    table->item(3, 0)->setFlags(Qt::NoItemFlags);
    table->item(3, 1)->setFlags(Qt::NoItemFlags);
    table->item(3, 2)->setFlags(Qt::NoItemFlags);
    table->setSortingEnabled(true);
    table->sortByColumn(1, Qt::AscendingOrder);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    return table;
}

QWidget* StylePage::makeTree()
{
    auto* const tree = new QTreeWidget;
    tree->setHeaderHidden(true);
    const auto add = [&](QTreeWidgetItem* parent, const char* name) {
        auto* const item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(tree);
        translate(name, [item](const QString& text) { item->setText(0, text); });
        return item;
    };
    auto* const shapes = add(nullptr, QT_TR_NOOP("Shape"));
    add(shapes, QT_TR_NOOP("Keystoning"));
    add(shapes, QT_TR_NOOP("Horizon"))->setSelected(true);
    add(shapes, QT_TR_NOOP("Crop"))->setDisabled(true);
    add(add(nullptr, QT_TR_NOOP("Lens")), QT_TR_NOOP("Distortion"));
    shapes->setExpanded(true);
    return tree;
}

QWidget* StylePage::makeList()
{
    auto* const list = new QListWidget;
    const std::pair<const char*, Qt::CheckState> entries[] = {{QT_TR_NOOP("Grid"), Qt::Checked},
                                                              {QT_TR_NOOP("Guides"), Qt::PartiallyChecked},
                                                              {QT_TR_NOOP("Preview"), Qt::Unchecked},
                                                              {QT_TR_NOOP("Loupe"), Qt::Checked}};
    for (const auto& entry : entries) {
        auto* const item = new QListWidgetItem(list);
        item->setCheckState(entry.second);
        translate(entry.first, [item](const QString& text) { item->setText(text); });
    }
    list->item(3)->setFlags(Qt::ItemIsUserCheckable);
    return list;
}

QWidget* StylePage::makeTextViews()
{
    auto* const box = new QWidget;
    auto* const row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    const char* const text =
        QT_TR_NOOP("Straight lines stay straight, and the tower stops leaning backwards.");
    auto* const rich = withText(new QTextEdit, text, "plainText");
    auto* const plain = withText(new QPlainTextEdit, text, "plainText");
    plain->setReadOnly(true);
    for (QWidget* const edit : {static_cast<QWidget*>(rich), static_cast<QWidget*>(plain)}) {
        edit->setFixedHeight(84);
        row->addWidget(edit);
    }
    return box;
}

QWidget* StylePage::makeGroups()
{
    auto* const box = new QWidget;
    auto* const row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    for (const bool checked : {true, false}) {
        auto* const group = withText(new QGroupBox, QT_TR_NOOP("Tilt-shift"), "title");
        group->setCheckable(true);
        group->setChecked(checked);
        auto* const inside = new QVBoxLayout(group);
        inside->addWidget(withText(new QLabel, QT_TR_NOOP("Blurred at both ends")));
        row->addWidget(group);
    }
    return box;
}

QWidget* StylePage::makeToolBox()
{
    auto* const toolBox = new QToolBox;
    const char* const names[] = {QT_TR_NOOP("Lens"), QT_TR_NOOP("Shape"), QT_TR_NOOP("History")};
    for (const char* const name : names) {
        auto* const page = withText(new QLabel, QT_TR_NOOP("Blurred at both ends"));
        page->setWordWrap(true);
        page->setMargin(10);
        page->setAlignment(Qt::AlignTop);
        const int index = toolBox->addItem(page, QString());
        translate(name, [toolBox, index](const QString& text) { toolBox->setItemText(index, text); });
    }
    return toolBox;
}
