#include "FileTree.h"
#include "InstalledLogger.h"
#include "TestMain.h"

#include <utilsDll/customtolvanappstyle.h>
#include <utilsDll/SharedUtils.h>

#include <QFontDatabase>
#include <QIcon>
#include <QLabel>
#include <QTemporaryDir>

using namespace TOLVAN_NAMESPACE;

/// The functions that dress an application, in a program without the product's resources.
class ApplicationStyleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { qApp->setStyleSheet(QString()); }

    void styleSheetOfFiles()
    {
        const QTemporaryDir folder;
        const QString none = folder.filePath(QStringLiteral("none"));
        const QString red = FileTree::write(folder.path() + QStringLiteral("/red"), "QLabel { color: red }");
        const QString marked = FileTree::write(folder.path() + QStringLiteral("/marked"),
                                               "\xEF\xBB\xBFQLabel#\xC3\xA4 { margin: 2px }");
        const QString empty = FileTree::write(folder.path() + QStringLiteral("/empty"), "");
        QCOMPARE(setAppStyleSheet({none, red, QString(), marked, empty, folder.path(), QStringLiteral(":/")},
                                  qApp),
                 QStringList({red, marked, empty}));
        QCOMPARE(qApp->styleSheet(), QStringLiteral("QLabel { color: red }QLabel#ä { margin: 2px }"));
        QCOMPARE(setAppStyleSheet({none}, qApp), QStringList());
        QCOMPARE(qApp->styleSheet(), QString());
    }

    void wrongCalls()
    {
        const QString before = QStringLiteral("QLabel { margin: 1px }");
        qApp->setStyleSheet(before);
        installedLogger().take();
        QCOMPARE(setAppStyleSheet({QStringLiteral("a.qss")}, nullptr), QStringList());
        QCOMPARE(setAppStyleSheet({}, qApp), QStringList());
        setPredefinedAppStyleSheet(QString(), nullptr);
        const QString assertion = QStringLiteral("E TOLVAN_NAMESPACE::setAppStyleSheet: ASSERT in "
                                                 "ExPluginShell\\modules\\utilsDll\\SharedUtils:60");
        QCOMPARE(installedLogger().take(), QStringList({assertion, assertion, assertion}));
        QCOMPARE(qApp->styleSheet(), before);
    }

    void withoutResourcesFontsAndIconAreLeftAlone()
    {
        const QStringList families = QFontDatabase().families();
        loadFonts();
        QCOMPARE(QFontDatabase().families(), families);
        QApplication::setWindowIcon(QIcon(QPixmap(8, 8)));
        QVERIFY(!loadAppLogoIcon());
        QCOMPARE(QApplication::windowIcon().availableSizes(), QList<QSize>{QSize(8, 8)});
        QApplication::setWindowIcon(QIcon());
    }

    void reapplying()
    {
        qApp->setStyleSheet(QStringLiteral("QLabel[warn=\"true\"] { color: #ff0000 }"));
        QLabel label;
        label.ensurePolished();
        const auto colour = [&label] { return label.palette().color(QPalette::WindowText); };
        label.setProperty("warn", true);
        QVERIFY(colour() != QColor(Qt::red));
        reapplyWidgetQss(label);
        QCOMPARE(colour(), QColor(Qt::red));
    }

    void transparency()
    {
        setWidgetFullTransparency(nullptr); // ignored
        QWidget widget;
        QPalette expected = widget.palette();
        for (const auto role : {QPalette::Window, QPalette::Button, QPalette::Base, QPalette::Light,
                                QPalette::Midlight, QPalette::Dark, QPalette::Mid, QPalette::Shadow}) {
            expected.setColor(role, Qt::transparent); // in every group
        }
        setWidgetFullTransparency(&widget);
        QCOMPARE(widget.palette(), expected);
    }
};

TOLVAN_GUI_TEST_MAIN(ApplicationStyleTest)
#include "tst_applicationstyle.moc"
