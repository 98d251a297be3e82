#include "FileTree.h"
#include "TestMain.h"

#include <utilsDll/customtolvanappstyle.h>
#include <utilsDll/SharedUtils.h>

#include <QtWidgets>

using namespace TOLVAN_NAMESPACE;

namespace
{

QString contentOf(const char* sheet)
{
    return QString::fromUtf8(FileTree::read(QStringLiteral(":/qss/%1.qss").arg(QLatin1String(sheet))));
}

QStringList messages;

/// Keeps every message except two remarks of the platform plug-ins.
void keepMessage(QtMsgType, const QMessageLogContext&, const QString& text)
{
    for (const char* const own :
         {"This plugin does not support propagateSizeHints()", "QPixmap::fromWinHICON()"}) {
        if (text.startsWith(QLatin1String(own))) {
            return;
        }
    }
    messages += text;
}

/// Qt reports an unknown property only when a widget is polished.
template <class... Widgets>
void polish()
{
    (Widgets().grab(), ...);
}

} // namespace

/// The product's style sheets, as the library carries them.
class StyleSheetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setStyle(new CustomTolvanAppStyle);
        QVERIFY(!contentOf("custom").isEmpty());
    }

    void init() { setPredefinedAppStyleSheet(QString(), qApp); }

    void cleanupTestCase() { qApp->setStyleSheet(QString()); }

    void parsesAndAppliesWithoutWarning()
    {
        const auto previous = qInstallMessageHandler(&keepMessage);
        messages.clear();
        for (const char* const sheet :
             {"custom", "slider", "settings", "message_box", "win", "mac", "crash_sender"}) {
            qApp->setStyleSheet(contentOf(sheet));
            polish<QCalendarWidget, QCheckBox, QColumnView, QComboBox, QCommandLinkButton, QDateTimeEdit,
                   QDial, QDialog, QDialogButtonBox, QDockWidget, QErrorMessage, QFileDialog, QGraphicsView,
                   QGroupBox, QLCDNumber, QLabel, QLineEdit, QMainWindow, QMdiArea, QMdiSubWindow, QMenu,
                   QMenuBar, QMessageBox, QPlainTextEdit, QProgressBar, QPushButton, QRadioButton,
                   QScrollArea, QScrollBar, QSlider, QSplashScreen, QSplitter, QStatusBar, QTabWidget,
                   QTableView, QTextEdit, QToolBar, QToolBox, QToolButton, QTreeView, QWizard>();
        }
        qInstallMessageHandler(previous);
        QCOMPARE(messages, QStringList());
    }

    void predefinedSheets()
    {
        const QString rest =
            contentOf("slider") + contentOf("settings") + contentOf("message_box") + contentOf("win");
        QCOMPARE(qApp->styleSheet(), contentOf("custom") + rest);
        setPredefinedAppStyleSheet(QStringLiteral(":/qss/mac.qss"), qApp);
        QCOMPARE(qApp->styleSheet(), contentOf("mac") + rest);
    }

    void highContrast()
    {
        const QString normal = qApp->styleSheet();
        setAppStyleSheetWithContrast(QString(), qApp, Contrast::High);
        const QString high = qApp->styleSheet();
        QCOMPARE(high.count(QLatin1Char('\n')),
                 normal.count(QLatin1Char('\n'))); // nothing but colours differs
        QVERIFY(!high.contains(QStringLiteral("#242528")) && !high.contains(QStringLiteral("(69, 184, 204")));
        QVERIFY(high.count(QStringLiteral(": #ffffff")) > normal.count(QStringLiteral(": #ffffff"))); // texts
        setAppStyleSheetWithContrast(QString(), qApp, Contrast::Normal);
        QCOMPARE(qApp->styleSheet(), normal);
    }

    void fontsAndIcon()
    {
        loadFonts();
        for (int id = 0; id < 10; ++id) {
            QCOMPARE(QFontDatabase::applicationFontFamilies(id).isEmpty(), id == 9);
        }
        QVERIFY(
            QFontDatabase::applicationFontFamilies(4).first().startsWith(QStringLiteral("Roboto"))); // Bold
        QVERIFY(loadAppLogoIcon());
        const QList<QSize> sizes = QApplication::windowIcon().availableSizes();
        QCOMPARE(sizes.size(), 8);
        QCOMPARE(sizes.last(), QSize(1024, 1024));
    }
};

TOLVAN_GUI_TEST_MAIN(StyleSheetsTest)
#include "tst_stylesheets.moc"
