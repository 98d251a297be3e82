#include "TestMain.h"
#include "WidgetClasses.h"

#include <utilsDll/customtolvanappstyle.h>
#include <utilsDll/SharedUtils.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <type_traits>

using namespace TOLVAN_NAMESPACE;

namespace
{

qreal luminance(const QColor& colour)
{
    const auto part = [](qreal c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

/// By the definition of the Web Content Accessibility Guidelines.
qreal contrast(const QColor& one, const QColor& other)
{
    const qreal a = luminance(one) + 0.05;
    const qreal b = luminance(other) + 0.05;
    return qMax(a, b) / qMin(a, b);
}

QColor mostFrequent(const QImage& image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ++counts[image.pixel(x, y)];
        }
    }
    const auto most = std::max_element(counts.cbegin(), counts.cend());
    return QColor(most.key());
}

/// A button that is always drawn in a given state.
template <class Button, class Option>
struct Stated : Button {
    explicit Stated(QStyle::State wanted)
        : state(wanted)
    {
    }
    void paintEvent(QPaintEvent*) override
    {
        Option option;
        this->initStyleOption(&option);
        option.state |= state;
        QStylePainter painter(this);
        if constexpr (std::is_same_v<Button, QToolButton>) {
            painter.drawComplexControl(QStyle::CC_ToolButton, option);
        } else {
            const bool isCheckBox = std::is_same_v<Button, QCheckBox>;
            const bool isRadioButton = std::is_same_v<Button, QRadioButton>;
            painter.drawControl(isCheckBox      ? QStyle::CE_CheckBox
                                : isRadioButton ? QStyle::CE_RadioButton
                                                : QStyle::CE_PushButton,
                                option);
        }
    }
    const QStyle::State state;
};

std::unique_ptr<QAbstractButton> makeButton(const QString& kind, QStyle::State state)
{
    const auto is = [&kind](const char* word) { return kind.contains(QLatin1String(word)); };
    std::unique_ptr<QAbstractButton> button;
    if (is("check box")) {
        button = std::make_unique<Stated<QCheckBox, QStyleOptionButton>>(state);
    } else if (is("radio button")) {
        button = std::make_unique<Stated<QRadioButton, QStyleOptionButton>>(state);
    } else if (is("tool button")) {
        button = std::make_unique<Stated<QToolButton, QStyleOptionToolButton>>(state);
    } else {
        auto push = std::make_unique<Stated<QPushButton, QStyleOptionButton>>(state);
        push->setDefault(is("default"));
        push->setFlat(is("flat"));
        button = std::move(push);
    }
    button->setText(QStringLiteral("Text"));
    button->setCheckable(button->isCheckable() || is("checked"));
    button->setChecked(is("checked"));
    if (is("partly")) {
        static_cast<QCheckBox&>(*button).setCheckState(Qt::PartiallyChecked);
    }
    return button;
}

} // namespace

/// What widgets look like under the product's style and style sheets.
class ThemeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void textStandsOut_data();
    void textStandsOut();
    void contentOfScrollAreasIsDark();
    void toolTipsHaveTheFont();
    void statesCanBeToldApart_data();
    void statesCanBeToldApart();

private:
    std::unique_ptr<QWidget> m_window; // one for all: a real window takes its time
};

void ThemeTest::initTestCase()
{
    QApplication::setStyle(new CustomTolvanAppStyle);
    setPredefinedAppStyleSheet(QString(), qApp);
    chooseExistingFont();
    m_window = std::make_unique<QWidget>();
    m_window->resize(200, 120);
    m_window->show();
}

void ThemeTest::cleanupTestCase()
{
    m_window.reset(); // before the application
}

void ThemeTest::textStandsOut_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("enabled");
    const QSet<QByteArray> withoutText = {"QDial", "QSlider", "QScrollBar", "QFocusFrame", "QColorDialog"};
    int row = 0;
    for (const WidgetClass& entry : widgetClasses) {
        if (!withoutText.contains(entry.name)) {
            QTest::addRow("%s", entry.name) << row << true;
            QTest::addRow("%s, disabled", entry.name) << row << false;
        }
        ++row;
    }
}

/// The colour in which the widget writes, against the ground that is really painted.
void ThemeTest::textStandsOut()
{
    QFETCH(int, row);
    QFETCH(bool, enabled);
    const std::unique_ptr<QWidget> widget(widgetClasses[row].make());
    widget->setParent(m_window.get(), Qt::Widget);
    widget->setEnabled(enabled);
    widget->setGeometry(m_window->rect());
    widget->show();
    const QColor text =
        widget->palette().color(enabled ? QPalette::Active : QPalette::Disabled, widget->foregroundRole());
    const QColor ground = mostFrequent(m_window->grab().toImage());
    QVERIFY2(contrast(text, ground) >= (enabled ? 4.5 : 3.0),
             qPrintable(QStringLiteral("%1 on %2").arg(text.name(), ground.name())));
}

void ThemeTest::contentOfScrollAreasIsDark()
{
    struct Panel : QWidget { // fills itself with its palette, as a scroll area makes its content do
        using QWidget::QWidget;
    };
    QScrollArea area;
    area.setWidgetResizable(true);
    area.setWidget(new Panel);
    area.resize(80, 60);
    QCOMPARE(mostFrequent(area.grab().toImage()).name(), QStringLiteral("#242528"));
}

void ThemeTest::toolTipsHaveTheFont()
{
    QToolTip::showText(m_window->geometry().center(), QStringLiteral("Tip"), m_window.get());
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto tip = std::find_if(windows.begin(), windows.end(),
                                  [](const QWidget* window) { return window->inherits("QTipLabel"); });
    QVERIFY(tip != windows.end());
    QCOMPARE((*tip)->font().family(), m_window->font().family());
    QToolTip::hideText();
}

void ThemeTest::statesCanBeToldApart_data()
{
    QTest::addColumn<QString>("kind");
    for (const char* const kind : {"push button", "default button", "checked button", "flat button",
                                   "tool button", "checked tool button", "check box", "checked check box",
                                   "partly checked check box", "radio button", "checked radio button"}) {
        QTest::newRow(kind) << QString::fromLatin1(kind);
    }
}

void ThemeTest::statesCanBeToldApart()
{
    QFETCH(QString, kind);
    const auto drawn = [&](QStyle::State state, bool enabled = true) {
        const auto button = makeButton(kind, state);
        button->setParent(m_window.get());
        button->setEnabled(enabled);
        button->setGeometry(0, 0, 90, 30);
        button->show();
        return m_window->grab(button->geometry()).toImage();
    };
    const QImage normal = drawn(QStyle::State_None);
    const QHash<QString, QImage> images = {{QStringLiteral("normal"), normal},
                                           {QStringLiteral("hover"), drawn(QStyle::State_MouseOver)},
                                           {QStringLiteral("pressed"), drawn(QStyle::State_Sunken)},
                                           {QStringLiteral("focus"), drawn(QStyle::State_HasFocus)},
                                           {QStringLiteral("disabled"), drawn(QStyle::State_None, false)}};
    for (auto one = images.cbegin(); one != images.cend(); ++one) {
        for (auto other = images.cbegin(); other != images.cend(); ++other) {
            QVERIFY2(one == other || *one != *other, qPrintable(one.key() + QLatin1Char(' ') + other.key()));
        }
    }
    qreal focusContrast = 1;
    const QImage focus = images.value(QStringLiteral("focus"));
    for (int y = 0; y < focus.height(); ++y) {
        for (int x = 0; x < focus.width(); ++x) {
            focusContrast = qMax(focusContrast, contrast(focus.pixel(x, y), normal.pixel(x, y)));
        }
    }
    QVERIFY2(focusContrast >= 2, qPrintable(QString::number(focusContrast)));
}

TOLVAN_GUI_TEST_MAIN(ThemeTest)
#include "tst_theme.moc"
