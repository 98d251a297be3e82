#include "TestMain.h"
#include "WidgetClasses.h"

#include <utilsDll/AboutDlg.h>
#include <utilsDll/customtolvanappstyle.h>
#include <utilsDll/SharedUtils.h>

#include <QApplication>
#include <QCalendarWidget>
#include <QDialog>
#include <QFile>
#include <QFontDatabase>
#include <QIcon>
#include <QLabel>
#include <QMdiSubWindow>
#include <QRegularExpression>
#include <QSet>
#include <QSlider>
#include <QStyleOptionTitleBar>
#include <QToolButton>

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
    void parsesAndAppliesWithoutWarning_data();
    void parsesAndAppliesWithoutWarning();
    void everyImageIsThere();
    void everyClassHasARule();
    void predefinedSheets();
    void iconsFollowTheState();
    void innerWindowsHaveTheirButtons();
    void fontFamilies();
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

void StyleSheetsTest::parsesAndAppliesWithoutWarning_data()
{
    QTest::addColumn<QString>("sheet");
    for (const QString& name : sheets) {
        QTest::newRow(qPrintable(name)) << contentOf(name);
    }
    QTest::newRow("all together") << QString();
}

void StyleSheetsTest::parsesAndAppliesWithoutWarning()
{
    QFETCH(QString, sheet);
    messages.clear();
    const auto previous = qInstallMessageHandler(&keepMessage);
    if (sheet.isEmpty()) {
        setPredefinedAppStyleSheet(QString(), qApp);
    } else {
        qApp->setStyleSheet(sheet);
    }
    // Qt reports an unknown property only when a widget is polished.
    for (const WidgetClass& entry : widgetClasses) {
        const std::unique_ptr<QWidget> widget(entry.make());
        widget->ensurePolished();
        widget->grab();
    }
    qInstallMessageHandler(previous);
    QCOMPARE(messages, QStringList());
}

void StyleSheetsTest::everyImageIsThere()
{
    const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
    QSet<QString> paths;
    for (const QString& sheet : sheets) {
        for (auto match = url.globalMatch(contentOf(sheet)); match.hasNext();) {
            paths += match.next().captured(1);
        }
    }
    QVERIFY(paths.size() > 70);
    for (const QString& path : qAsConst(paths)) {
        QVERIFY2(path.startsWith(QLatin1String(":/icons/")), qPrintable(path));
        QVERIFY2(!QIcon(path).pixmap(32).isNull(), qPrintable(path));
    }
}

/// A rule of its own, or of a class between it and QWidget.
void StyleSheetsTest::everyClassHasARule()
{
    for (const WidgetClass& entry : widgetClasses) {
        const std::unique_ptr<QWidget> widget(entry.make());
        QStringList names;
        for (auto* meta = widget->metaObject(); meta != &QWidget::staticMetaObject;
             meta = meta->superClass()) {
            names += QString::fromLatin1(meta->className());
        }
        const QRegularExpression rule(
            QStringLiteral("(^|, )(%1)\\b[^{}]*[,{]").arg(names.join(QLatin1Char('|'))),
            QRegularExpression::MultilineOption);
        QVERIFY2(rule.match(qApp->styleSheet()).hasMatch(), entry.name);
    }
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

void StyleSheetsTest::iconsFollowTheState()
{
    const auto shows = [](QToolButton& button, QIcon::Mode mode, QIcon::State state, const QString& picture) {
        button.ensurePolished();
        const QSize size = button.iconSize();
        return button.icon().pixmap(size, mode, state).toImage() ==
               QIcon(QStringLiteral(":/icons/") + picture).pixmap(size).toImage();
    };
    QWidget column;
    column.setObjectName(QStringLiteral("settingsCategories"));
    for (const char* const name : {"general", "display", "performance", "language", "privacy"}) {
        QToolButton button(&column);
        button.setObjectName(QLatin1String(name) + QStringLiteral("Button"));
        const QString picture = QStringLiteral("settingsPanel/settings_%1").arg(QLatin1String(name));
        QVERIFY2(shows(button, QIcon::Normal, QIcon::Off, picture + QStringLiteral(".svg")), name);
        QVERIFY2(shows(button, QIcon::Normal, QIcon::On, picture + QStringLiteral("_checked.svg")), name);
    }
    QCalendarWidget calendar;
    auto* const next = calendar.findChild<QToolButton*>(QStringLiteral("qt_calendar_nextmonth"));
    QVERIFY(next && shows(*next, QIcon::Active, QIcon::Off, QStringLiteral("calendar_next_hover.svg")));
    auto* const previous = calendar.findChild<QToolButton*>(QStringLiteral("qt_calendar_prevmonth"));
    QVERIFY(previous &&
            shows(*previous, QIcon::Active, QIcon::Off, QStringLiteral("calendar_previous_hover.svg")));
}

void StyleSheetsTest::innerWindowsHaveTheirButtons()
{
    QMdiSubWindow window;
    QStyleOptionTitleBar bar;
    bar.initFrom(&window);
    bar.titleBarFlags = Qt::WindowMinMaxButtonsHint | Qt::WindowSystemMenuHint | Qt::WindowTitleHint;
    bar.rect = QRect(0, 0, 300, 28);
    QRegion taken;
    for (const auto& [control, icon, name] :
         {std::tuple{QStyle::SC_TitleBarMinButton, QStyle::SP_TitleBarMinButton, "minimize"},
          std::tuple{QStyle::SC_TitleBarMaxButton, QStyle::SP_TitleBarMaxButton, "maximize"},
          std::tuple{QStyle::SC_TitleBarCloseButton, QStyle::SP_TitleBarCloseButton, "close"}}) {
        const QRect place = window.style()->subControlRect(QStyle::CC_TitleBar, &bar, control, &window);
        QVERIFY2(place.width() >= 18 && place.height() >= 18 && bar.rect.contains(place), name);
        QVERIFY2(!taken.intersects(place), name);
        taken += place;
        const QIcon picture(QStringLiteral(":/icons/winTitleBar/titlebar_%1.svg").arg(QLatin1String(name)));
        QVERIFY2(window.style()->standardIcon(icon, nullptr, &window).pixmap(24).toImage() ==
                     picture.pixmap(24).toImage(),
                 name);
    }
}

void StyleSheetsTest::fontFamilies()
{
    const auto families = [](QWidget& widget) {
        widget.ensurePolished();
        return widget.font().families();
    };
    QSlider slider;
    QCOMPARE(families(slider).constFirst(), QStringLiteral("Lucida Sans Unicode"));
    QDialog other;
    CAboutDlg about;
    QLabel ofOther(&other);
    ofOther.setObjectName(QStringLiteral("label_1"));
    auto* const label = about.findChild<QLabel*>(QStringLiteral("label_1"));
    QVERIFY(label);
    QCOMPARE(families(*label).constFirst(), QStringLiteral("OpenSansLight"));
    QCOMPARE(families(ofOther).constFirst(), QStringLiteral("Lucida Sans Unicode"));
    QVERIFY(families(*label).size() > 5);
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
