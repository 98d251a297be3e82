#pragma once

#include <QtWidgets>

/// One class of the toolkit, and how to make an empty widget of it.
struct WidgetClass {
    const char* name;
    QWidget* (*make)();
};

template <class Widget>
WidgetClass widgetClass()
{
    return {Widget::staticMetaObject.className(), [] { return static_cast<QWidget*>(new Widget); }};
}

/// Every class of the toolkit that shows something of its own.
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

/// Makes sure that the application's font is one that the system has. Wine's default is the name of a family without
/// a single font in it, and the toolkit's font dialog crashes over that.
inline void chooseExistingFont()
{
    const QFontDatabase fonts;
    if (fonts.styles(QApplication::font().family()).isEmpty()) {
        QApplication::setFont(QFont(fonts.families().value(0)));
    }
}
