#include "InstalledLogger.h"
#include "TestMain.h"

#include <utilsDll/customtolvanappstyle.h>

#include <QPushButton>
#include <QStyleFactory>

#include <memory>

using TOLVAN_NAMESPACE::CustomTolvanAppStyle;

namespace
{

const char* const unit = "ASSERT in ExPluginShell\\modules\\utilsDll\\customtolvanappstyle:";
const char* const prefix = "TOLVAN_NAMESPACE::CustomTolvanAppStyle::";

/// Counts the connections of a button.
struct Button : QPushButton {
    explicit Button(const char* name) { setObjectName(QString::fromLatin1(name)); }
    int connections() const
    {
        return receivers(SIGNAL(destroyed(QObject*))) + receivers(SIGNAL(objectNameChanged(QString)));
    }
};

} // namespace

/// The buttons whose label stays where it is while they are pressed.
class ButtonShiftTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void optingOutOfTheShift();
    void renaming();
    void destroying();
    void wrongCalls();

private:
    bool isShifted(const QWidget& widget) const;
    void expectAssertion(const char* function, int line);

    std::unique_ptr<CustomTolvanAppStyle> m_style;
    std::unique_ptr<QStyle> m_stock{QStyleFactory::create(QStringLiteral("windows"))};
};

void ButtonShiftTest::init()
{
    m_style = std::make_unique<CustomTolvanAppStyle>();
    installedLogger().take();
}

bool ButtonShiftTest::isShifted(const QWidget& widget) const
{
    const int x = m_style->pixelMetric(QStyle::PM_ButtonShiftHorizontal, nullptr, &widget);
    const int y = m_style->pixelMetric(QStyle::PM_ButtonShiftVertical, nullptr, &widget);
    return x == m_stock->pixelMetric(QStyle::PM_ButtonShiftHorizontal) && x > 0 && y > 0;
}

void ButtonShiftTest::expectAssertion(const char* function, int line)
{
    const QByteArray text = QByteArray(unit) + QByteArray::number(line);
    QCOMPARE(installedLogger().take(),
             QStringList(QString::fromLatin1(QByteArray("E ") + prefix + function + ": " + text)));
}

void ButtonShiftTest::optingOutOfTheShift()
{
    QCOMPARE(CustomTolvanAppStyle::disableButtonShiftPropertyName(), "disableButtonShiftProperty");
    Button button("button");
    QVERIFY(isShifted(button));
    button.setProperty(CustomTolvanAppStyle::disableButtonShiftPropertyName(), false);
    QVERIFY(!isShifted(button)); // presence alone counts
    button.setObjectName(QString());
    QVERIFY(isShifted(button));

    Button registered("registered");
    Button namesake("registered");
    for (Button* const one : {&registered, &registered, &namesake}) {
        m_style->disableButtonShift(one, true);
        QVERIFY(!isShifted(*one)); // known by name
    }
    QCOMPARE(registered.connections(), 2);
    QCOMPARE(namesake.connections(), 0);
    for (int i = 0; i < 2; ++i) { // once more: nothing to undo
        m_style->disableButtonShift(&registered, false);
        QVERIFY(isShifted(registered));
        QCOMPARE(registered.connections(), 0);
    }
    m_style->disableButtonShift(nullptr, true);
    QCOMPARE(installedLogger().take(), QStringList());
}

void ButtonShiftTest::renaming()
{
    Button button("before");
    Button taken("taken");
    m_style->disableButtonShift(&button, true);
    m_style->disableButtonShift(&taken, true);
    button.setObjectName(QStringLiteral("after"));
    QVERIFY(!isShifted(button));
    QVERIFY(isShifted(Button("before")));
    QCOMPARE(button.connections(), 2);

    button.setObjectName(QStringLiteral("taken")); // the entry of another button stays
    QCOMPARE(button.connections(), 0);
    m_style->disableButtonShift(&taken, false);
    QVERIFY(isShifted(button));

    m_style->disableButtonShift(&button, true);
    button.setObjectName(QString()); // unregistered
    QVERIFY(isShifted(Button("taken")));
    QCOMPARE(button.connections(), 0);
    QCOMPARE(installedLogger().take(), QStringList());
}

void ButtonShiftTest::destroying()
{
    auto button = std::make_unique<Button>("short-lived");
    m_style->disableButtonShift(button.get(), true);
    button.reset();
    Button heir("short-lived");
    QVERIFY(isShifted(heir));
    m_style->disableButtonShift(&heir, true);
    QVERIFY(!isShifted(heir));
    m_style.reset(); // the style may go first
    heir.setObjectName(QStringLiteral("survivor"));
    QCOMPARE(heir.connections(), 0);
    QCOMPARE(installedLogger().take(), QStringList());
}

void ButtonShiftTest::wrongCalls()
{
    Button nameless("");
    m_style->disableButtonShift(&nameless, true);
    expectAssertion("disableButtonShift", 75);
    nameless.setObjectName(QStringLiteral("named at last")); // it was registered nevertheless
    QVERIFY(!isShifted(nameless));

    Button owner("shared");
    Button stranger("shared");
    m_style->disableButtonShift(&owner, true);
    m_style->disableButtonShift(&stranger, false);
    expectAssertion("pimpl::disableButtonShift", 58);
    QVERIFY(isShifted(owner));
    QCOMPARE(owner.connections(), 2); // the stranger's were cut, not these
    owner.setObjectName(QStringLiteral("lost"));
    expectAssertion("onNonShiftedButtonObjectNameChanged", 107);
    QVERIFY(isShifted(owner));

    QVERIFY(QMetaObject::invokeMethod(m_style.get(), "onNonShiftedButtonObjectNameChanged",
                                      Q_ARG(QString, QStringLiteral("without a sender"))));
    QCOMPARE(installedLogger().take(), QStringList());
}

TOLVAN_GUI_TEST_MAIN(ButtonShiftTest)
#include "tst_buttonshift.moc"
