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
    void styleSheetOfFiles_data();
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

void ApplicationStyleTest::styleSheetOfFiles_data()
{
    write(QStringLiteral("red.qss"), "QLabel { color: red }");
    write(QStringLiteral("bold.qss"), "QLabel { font-weight: bold }");
    write(QStringLiteral("mark"), "\xEF\xBB\xBFQLabel { color: green }");
    write(QStringLiteral("utf8"), "QLabel#\xC3\xA4\xE6\x97\xA5 { margin: 2px }");
    write(QStringLiteral("empty"), "");
    QDir(m_folder.path()).mkdir(QStringLiteral("folder"));

    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("read");
    QTest::addColumn<QString>("sheet");
    const auto row = [](const char* title, const char* names, const char* read, const QString& sheet) {
        QTest::newRow(title) << QString::fromUtf8(names) << QString::fromUtf8(read) << sheet;
    };
    row("only the second is there", "none.qss|red.qss", "red.qss", QStringLiteral("QLabel { color: red }"));
    row("in order", "bold.qss|red.qss", "bold.qss|red.qss",
        QStringLiteral("QLabel { font-weight: bold }QLabel { color: red }"));
    row("byte order mark in the middle", "red.qss|mark", "red.qss|mark",
        QStringLiteral("QLabel { color: red }QLabel { color: green }"));
    row("UTF-8", "utf8", "utf8", QStringLiteral("QLabel#ä日 { margin: 2px }"));
    row("empty path and empty file", "|empty", "empty", QString());
    row("nothing to read", "none.qss|nor this", "", QString());
    row("folders", "folder|:/qt-project.org|:/", "", QString());
}

void ApplicationStyleTest::styleSheetOfFiles()
{
    QFETCH(QString, names);
    QFETCH(QString, read);
    QFETCH(QString, sheet);
    const auto paths = [this](const QString& list) {
        QStringList result;
        for (const QString& name : list.split(QLatin1Char('|'))) {
            const bool given = name.isEmpty() || name.startsWith(QLatin1Char(':'));
            result += given ? name : m_folder.filePath(name);
        }
        return result;
    };
    QCOMPARE(setAppStyleSheet(paths(names), qApp), read.isEmpty() ? QStringList() : paths(read));
    QCOMPARE(qApp->styleSheet(), sheet);
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
    const QFontDatabase database;
    const QStringList families = database.families();
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
