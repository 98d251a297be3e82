#pragma once

#include <QtWidgets>

/// One class of Qt, and how to make an empty widget of it.
struct WidgetClass {
    const char* name;
    QWidget* (*make)();
};

template <class Widget>
WidgetClass widgetClass()
{
    return {Widget::staticMetaObject.className(), [] { return static_cast<QWidget*>(new Widget); }};
}

/// Every widget class of Qt that shows something of its own.
inline const WidgetClass widgetClasses[] = {
    widgetClass<QCalendarWidget>(), widgetClass<QCheckBox>(),        widgetClass<QColorDialog>(),
    widgetClass<QColumnView>(),     widgetClass<QComboBox>(),        widgetClass<QCommandLinkButton>(),
    widgetClass<QDateEdit>(),       widgetClass<QDateTimeEdit>(),    widgetClass<QDial>(),
    widgetClass<QDialog>(),         widgetClass<QDialogButtonBox>(), widgetClass<QDockWidget>(),
    widgetClass<QDoubleSpinBox>(),  widgetClass<QErrorMessage>(),    widgetClass<QFileDialog>(),
    widgetClass<QFocusFrame>(),     widgetClass<QFontComboBox>(),    widgetClass<QFontDialog>(),
    widgetClass<QFrame>(),          widgetClass<QGraphicsView>(),    widgetClass<QGroupBox>(),
    widgetClass<QInputDialog>(),    widgetClass<QLCDNumber>(),       widgetClass<QLabel>(),
    widgetClass<QLineEdit>(),       widgetClass<QListView>(),        widgetClass<QListWidget>(),
    widgetClass<QMainWindow>(),     widgetClass<QMdiArea>(),         widgetClass<QMdiSubWindow>(),
    widgetClass<QMenu>(),           widgetClass<QMenuBar>(),         widgetClass<QMessageBox>(),
    widgetClass<QPlainTextEdit>(),  widgetClass<QProgressBar>(),     widgetClass<QProgressDialog>(),
    widgetClass<QPushButton>(),     widgetClass<QRadioButton>(),     widgetClass<QScrollArea>(),
    widgetClass<QScrollBar>(),      widgetClass<QSlider>(),          widgetClass<QSpinBox>(),
    widgetClass<QSplashScreen>(),   widgetClass<QSplitter>(),        widgetClass<QStatusBar>(),
    widgetClass<QTabBar>(),         widgetClass<QTabWidget>(),       widgetClass<QTableView>(),
    widgetClass<QTableWidget>(),    widgetClass<QTextBrowser>(),     widgetClass<QTextEdit>(),
    widgetClass<QTimeEdit>(),       widgetClass<QToolBar>(),         widgetClass<QToolBox>(),
    widgetClass<QToolButton>(),     widgetClass<QTreeView>(),        widgetClass<QTreeWidget>(),
    widgetClass<QUndoView>(),       widgetClass<QWizard>(),
};

/// Makes sure that the application's font exists. The default under Wine is a family without fonts, with which Qt's
/// font dialog crashes.
inline void chooseExistingFont()
{
    const QFontDatabase fonts;
    if (fonts.styles(QApplication::font().family()).isEmpty()) {
        QApplication::setFont(QFont(fonts.families().value(0)));
    }
}
