#include "InstalledLogger.h"
#include "TestMain.h"

#include <utilsDll/customtolvanappstyle.h>
#include <utilsDll/SharedUtils.h>

#include <QFontDatabase>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>

using namespace TOLVAN_NAMESPACE;

/// The functions that dress an application, in a program without the product's resources.
class ApplicationStyleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase();
    void styleSheetOfFiles();
    void wrongCalls();
    void withoutResourcesFontsAndIconAreLeftAlone();
    void reapplying();
    void transparency();

private:
    QString write(const QString& name, const QByteArray& content);

    QTemporaryDir m_folder;
};

void ApplicationStyleTest::init()
{
    qApp->setStyleSheet(QStringLiteral("QLabel { margin: 1px }"));
    installedLogger().take();
}

void ApplicationStyleTest::cleanupTestCase()
{
    qApp->setStyleSheet(QString());
}

QString ApplicationStyleTest::write(const QString& name, const QByteArray& content)
{
    QFile file(m_folder.filePath(name));
    const bool ok = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    return ok ? file.fileName() : QString();
}

void ApplicationStyleTest::styleSheetOfFiles()
{
    const QString red = write(QStringLiteral("red"), "QLabel { color: red }");
    const QString marked = write(QStringLiteral("mark"), "\xEF\xBB\xBFQLabel#\xC3\xA4 { margin: 2px }");
    const QString empty = write(QStringLiteral("empty"), "");
    const QString none = m_folder.filePath(QStringLiteral("none"));
    const QString folder = m_folder.path();
    QCOMPARE(setAppStyleSheet({none, red, QString(), marked, empty, folder, QStringLiteral(":/")}, qApp),
             QStringList({red, marked, empty}));
    QCOMPARE(qApp->styleSheet(), QStringLiteral("QLabel { color: red }QLabel#ä { margin: 2px }"));
    QCOMPARE(setAppStyleSheet({none}, qApp), QStringList());
    QCOMPARE(qApp->styleSheet(), QString());
    QCOMPARE(installedLogger().take(), QStringList());
}

void ApplicationStyleTest::wrongCalls()
{
    const QString before = qApp->styleSheet();
    const QString path = write(QStringLiteral("a.qss"), "QLabel { color: red }");
    const QString assertion = QStringLiteral("E TOLVAN_NAMESPACE::setAppStyleSheet: ASSERT in "
                                             "ExPluginShell\\modules\\utilsDll\\SharedUtils:60");
    QCOMPARE(setAppStyleSheet({path}, nullptr), QStringList());
    QCOMPARE(setAppStyleSheet({}, qApp), QStringList());
    setPredefinedAppStyleSheet(QString(), nullptr);
    QCOMPARE(installedLogger().take(), QStringList({assertion, assertion, assertion}));
    QCOMPARE(qApp->styleSheet(), before);
}

void ApplicationStyleTest::withoutResourcesFontsAndIconAreLeftAlone()
{
    const QStringList families = QFontDatabase().families();
    loadFonts();
    QCOMPARE(QFontDatabase().families(), families);

    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::red);
    QApplication::setWindowIcon(QIcon(pixmap));
    QVERIFY(!loadAppLogoIcon());
    QCOMPARE(QApplication::windowIcon().availableSizes(), QList<QSize>{QSize(8, 8)});
    QApplication::setWindowIcon(QIcon());
}

void ApplicationStyleTest::reapplying()
{
    qApp->setStyleSheet(
        QStringLiteral("QLabel[warn=\"true\"] { color: #ff0000 } #marked { color: #00ff00 }"));
    QLabel label;
    label.ensurePolished();
    const auto colour = [&label] { return label.palette().color(QPalette::WindowText); };
    label.setProperty("warn", true);
    QVERIFY(colour() != QColor(Qt::red));
    reapplyWidgetQss(label);
    QCOMPARE(colour(), QColor(Qt::red));
    label.setObjectName(QStringLiteral("marked"));
    reapplyWidgetQss(label);
    QCOMPARE(colour(), QColor(Qt::green));
}

void ApplicationStyleTest::transparency()
{
    setWidgetFullTransparency(nullptr); // ignored
    QPushButton button;
    const QPalette before = button.palette();
    setWidgetFullTransparency(&button);
    const QSet<int> cleared = {QPalette::Window,   QPalette::Button, QPalette::Base, QPalette::Light,
                               QPalette::Midlight, QPalette::Dark,   QPalette::Mid,  QPalette::Shadow};
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            const auto r = static_cast<QPalette::ColorRole>(role);
            QCOMPARE(button.palette().color(group, r),
                     cleared.contains(role) ? QColor(Qt::transparent) : before.color(group, r));
        }
    }
}

TOLVAN_GUI_TEST_MAIN(ApplicationStyleTest)
#include "tst_applicationstyle.moc"
