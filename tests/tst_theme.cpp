#include "TestMain.h"
#include "WidgetClasses.h"

#include <utilsDll/customtolvanappstyle.h>
#include <utilsDll/SharedUtils.h>

#include <cmath>
#include <functional>
#include <memory>

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

/// A widget drawn in a state of the caller's choice, on the ground of a window.
struct Drawing {
    std::unique_ptr<QWidget> window;
    QWidget* widget;
    std::function<void(QPainter&, QStyle::State)> draw;

    QImage image(QStyle::State state, bool enabled = true) const
    {
        widget->setEnabled(enabled);
        QImage result(widget->size(), QImage::Format_RGB32);
        result.fill(QColor(0x24, 0x25, 0x28));
        QPainter painter(&result);
        draw(painter, state | (enabled ? QStyle::State_Enabled : QStyle::State_None));
        return result;
    }
};

template <class Button, class Option>
Drawing button(QStyle::ControlElement element, const std::function<void(Button&)>& prepare)
{
    auto window = std::make_unique<QWidget>();
    auto* const widget = new Button(window.get());
    widget->setText(QStringLiteral("Text"));
    prepare(*widget);
    widget->resize(90, 30);
    widget->ensurePolished();
    return {std::move(window), widget, [widget, element](QPainter& painter, QStyle::State state) {
                Option option;
                option.initFrom(widget);
                option.text = widget->text();
                option.state = state;
                if (widget->isCheckable()) {
                    option.state |= widget->isChecked() ? QStyle::State_On : QStyle::State_Off;
                }
                widget->style()->drawControl(element, &option, &painter, widget);
            }};
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
    const bool checked = kind.contains(QLatin1String("checked"));
    const Drawing drawing = [&]() -> Drawing {
        if (kind.endsWith(QLatin1String("check box"))) {
            return button<QCheckBox, QStyleOptionButton>(QStyle::CE_CheckBox, [&](QCheckBox& box) {
                box.setCheckState(kind.startsWith(QLatin1String("partly")) ? Qt::PartiallyChecked
                                  : checked                                ? Qt::Checked
                                                                           : Qt::Unchecked);
            });
        }
        if (kind.endsWith(QLatin1String("radio button"))) {
            return button<QRadioButton, QStyleOptionButton>(
                QStyle::CE_RadioButton, [&](QRadioButton& radio) { radio.setChecked(checked); });
        }
        return button<QPushButton, QStyleOptionButton>(QStyle::CE_PushButton, [&](QPushButton& push) {
            push.setDefault(kind.startsWith(QLatin1String("default")));
            push.setFlat(kind.startsWith(QLatin1String("flat")));
            push.setCheckable(checked);
            push.setChecked(checked);
        });
    }();
    const QImage normal = drawing.image(QStyle::State_None);
    const QHash<QString, QImage> images = {
        {QStringLiteral("normal"), normal},
        {QStringLiteral("hover"), drawing.image(QStyle::State_MouseOver)},
        {QStringLiteral("pressed"), drawing.image(QStyle::State_Sunken)},
        {QStringLiteral("focus"), drawing.image(QStyle::State_HasFocus)},
        {QStringLiteral("disabled"), drawing.image(QStyle::State_None, false)}};
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
