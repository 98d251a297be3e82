#include "StylePage.h"

#include <QActionGroup>
#include <QApplication>
#include <QCalendarWidget>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTextCharFormat>
#include <QToolBar>
#include <QVBoxLayout>

QLayout* StylePage::makeWindowRow()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(makeWindow(), 1);
    auto* const open = makeMenu(this);
    open->setWindowFlags(Qt::Widget); // shown in the page, as if it were open
    row->addWidget(open, 0, Qt::AlignTop);
    auto* const last = new QVBoxLayout;
    last->addWidget(makeCalendar());
    last->addWidget(makeDialogEnd());
    last->addStretch();
    row->addLayout(last);
    return row;
}

QWidget* StylePage::makeDialogEnd()
{
    auto* const end = new QWidget;
    auto* const column = new QVBoxLayout(end);
    column->setContentsMargins(0, 0, 0, 0);
    auto* const line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    column->addWidget(line);
    column->addWidget(
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help));
    return end;
}

QMenu* StylePage::makeMenu(QWidget* parent)
{
    auto* const menu = new QMenu(parent);
    const auto add = [&](const char* text, bool checkable = false) {
        auto* const action = withText(menu->addAction(QString()), text);
        action->setCheckable(checkable);
        action->setChecked(checkable);
        return action;
    };
    add(QT_TR_NOOP("Undo"))->setShortcut(QKeySequence(QStringLiteral("Ctrl+Z")));
    menu->actions().constLast()->setIcon(toolIcon("undo"));
    add(QT_TR_NOOP("Redo"))->setEnabled(false);
    menu->addSeparator();
    add(QT_TR_NOOP("Grid"), true);
    add(QT_TR_NOOP("Guides"), true)->setEnabled(false);
    auto* const group = new QActionGroup(menu);
    for (QAction* const action : {add(QT_TR_NOOP("Fit to window")), add(QT_TR_NOOP("Actual size"))}) {
        action->setCheckable(true);
        group->addAction(action);
    }
    group->actions().constFirst()->setChecked(true);
    menu->addSeparator();
    auto* const more = menu->addMenu(QString());
    withText(more, QT_TR_NOOP("Rotate"), "title");
    withText(more->addAction(QString()), QT_TR_NOOP("Rotate left"));
    menu->setActiveAction(menu->actions().constFirst());
    return menu;
}

QMainWindow* StylePage::makeWindow()
{
    auto* const window = new QMainWindow;
    window->setWindowFlags(Qt::Widget);
    const char* const menus[] = {QT_TR_NOOP("File"), QT_TR_NOOP("Edit"), QT_TR_NOOP("View"),
                                 QT_TR_NOOP("Help")};
    for (const char* const name : menus) {
        auto* const menu = makeMenu(window);
        withText(menu, name, "title");
        window->menuBar()->addMenu(menu);
    }
    auto* const bar = window->addToolBar(QString());
    bar->setIconSize(QSize(24, 24));
    for (const char* const name :
         {"undo", "redo", "", "hand_checked", "zoom_in", "zoom_out", "", "grid", "compare"}) {
        if (*name) {
            bar->addAction(toolIcon(name), QString());
        } else {
            bar->addSeparator();
        }
    }
    bar->actions().at(1)->setEnabled(false);
    bar->actions().at(3)->setCheckable(true);
    bar->actions().at(3)->setChecked(true);

    auto* const dock = withText(new QDockWidget, QT_TR_NOOP("History"), "windowTitle");
    auto* const steps = new QListWidget;
    for (const char* const name : {QT_TR_NOOP("Keystoning"), QT_TR_NOOP("Horizon")}) {
        auto* const item = new QListWidgetItem(steps);
        translate(name, [item](const QString& text) { item->setText(text); });
    }
    dock->setWidget(steps);
    window->addDockWidget(Qt::LeftDockWidgetArea, dock);

    auto* const picture = new QLabel;
    picture->setAlignment(Qt::AlignCenter);
    picture->setPixmap(QApplication::windowIcon().pixmap(128));
    window->setCentralWidget(picture);
    window->statusBar()->addWidget(withText(new QLabel, QT_TR_NOOP("Ready")));
    window->statusBar()->addPermanentWidget(new QLabel(QStringLiteral("6000 × 4000")));
    window->setMinimumSize(560, 270);
    window->setMaximumHeight(320);
    return window;
}

QWidget* StylePage::makeCalendar()
{
    auto* const calendar = new QCalendarWidget;
    calendar->setSelectedDate(QDate(2024, 5, 17));
    for (const auto day : {Qt::Saturday, Qt::Sunday}) { // Qt's own red is too dark here
        QTextCharFormat format;
        format.setForeground(QColor(0xF0, 0x70, 0x6A));
        calendar->setWeekdayTextFormat(day, format);
    }
    return calendar;
}
