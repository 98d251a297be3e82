#include "TestMain.h"
#include "WidgetClasses.h"

#include <utilsDll/customtolvanappstyle.h>
#include <utilsDll/SharedUtils.h>

#include <QApplication>
#include <QFile>
#include <QFontDatabase>

using namespace TOLVAN_NAMESPACE;

namespace
{

const QStringList sheets = {QStringLiteral("custom"),      QStringLiteral("slider"),
                            QStringLiteral("settings"),    QStringLiteral("message_box"),
                            QStringLiteral("win"),         QStringLiteral("mac"),
                            QStringLiteral("crash_sender")};

QString contentOf(const QString& sheet)
{
    QFile file(QStringLiteral(":/qss/%1.qss").arg(sheet));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
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

} // namespace

/// The product's style sheets, as the library carries them.
class StyleSheetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void parsesAndAppliesWithoutWarning();
    void predefinedSheets();
    void highContrast();
    void fontsAndIcon();
};

void StyleSheetsTest::initTestCase()
{
    QApplication::setStyle(new CustomTolvanAppStyle);
    chooseExistingFont();
    QVERIFY(!contentOf(QStringLiteral("custom")).isEmpty());
}

void StyleSheetsTest::init()
{
    setPredefinedAppStyleSheet(QString(), qApp);
}

void StyleSheetsTest::cleanupTestCase()
{
    qApp->setStyleSheet(QString());
}

void StyleSheetsTest::parsesAndAppliesWithoutWarning()
{
    const auto previous = qInstallMessageHandler(&keepMessage);
    messages.clear();
    for (const QString& sheet : sheets) {
        qApp->setStyleSheet(contentOf(sheet));
        // Qt reports an unknown property only when a widget is polished.
        for (const WidgetClass& entry : widgetClasses) {
            const std::unique_ptr<QWidget> widget(entry.make());
            widget->ensurePolished();
            widget->grab();
        }
    }
    qInstallMessageHandler(previous);
    QCOMPARE(messages, QStringList());
}

void StyleSheetsTest::predefinedSheets()
{
    const QStringList parts = {contentOf(QStringLiteral("custom")), contentOf(QStringLiteral("slider")),
                               contentOf(QStringLiteral("settings")),
                               contentOf(QStringLiteral("message_box")), contentOf(QStringLiteral("win"))};
    QCOMPARE(qApp->styleSheet(), parts.join(QString()));
    setPredefinedAppStyleSheet(QStringLiteral(":/qss/mac.qss"), qApp);
    QCOMPARE(qApp->styleSheet(), contentOf(QStringLiteral("mac")) + parts.mid(1).join(QString()));
}

void StyleSheetsTest::highContrast()
{
    const QString normal = qApp->styleSheet();
    setAppStyleSheetWithContrast(QString(), qApp, Contrast::High);
    const QString high = qApp->styleSheet();
    QCOMPARE(high.count(QLatin1Char('\n')), normal.count(QLatin1Char('\n'))); // nothing but colours differs
    QVERIFY(!high.contains(QStringLiteral("#242528")) && !high.contains(QStringLiteral("(69, 184, 204")));
    setAppStyleSheetWithContrast(QString(), qApp, Contrast::Normal);
    QCOMPARE(qApp->styleSheet(), normal);
}

void StyleSheetsTest::fontsAndIcon()
{
    loadFonts();
    QStringList families;
    for (int id = 0; id < 9; ++id) {
        const QStringList registered = QFontDatabase::applicationFontFamilies(id);
        QVERIFY2(!registered.isEmpty(), qPrintable(QString::number(id)));
        families += registered.first();
    }
    QVERIFY(QFontDatabase::applicationFontFamilies(9).isEmpty());
    QVERIFY(families.at(4).startsWith(QStringLiteral("Roboto"))); // Bold, the fifth
    for (const char* family : {"Open Sans", "Quicksand", "Cantarell"}) {
        QVERIFY2(!families.filter(QLatin1String(family)).isEmpty(), family);
    }

    QVERIFY(loadAppLogoIcon());
    QList<QSize> sizes;
    for (const int side : {16, 32, 48, 96, 128, 256, 512, 1024}) {
        sizes += QSize(side, side);
    }
    QCOMPARE(QApplication::windowIcon().availableSizes(), sizes);
}

TOLVAN_GUI_TEST_MAIN(StyleSheetsTest)
#include "tst_stylesheets.moc"
