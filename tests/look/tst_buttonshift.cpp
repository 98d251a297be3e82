#include "AssertionReport.h"
#include "TestMain.h"

#include <utilsDll/customtolvanappstyle.h>

#include <QPushButton>
#include <QStyleFactory>

#include <memory>

using TOLVAN_NAMESPACE::CustomTolvanAppStyle;

namespace
{

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
    void init()
    {
        m_style = std::make_unique<CustomTolvanAppStyle>();
        installedLogger().take();
    }

    void optingOutOfTheShift()
    {
        Button button("button");
        QVERIFY(isShifted(button));
        button.setProperty("disableButtonShiftProperty", false);
        QVERIFY(!isShifted(button)); // presence alone counts
        button.setObjectName(QString());
        QVERIFY(isShifted(button));

        Button registered("registered");
        Button namesake("registered");
        for (Button* const one : {&registered, &namesake}) {
            m_style->disableButtonShift(one, true);
            QVERIFY(!isShifted(*one)); // known by name
        }
        QCOMPARE(registered.connections(), 2);
        QCOMPARE(namesake.connections(), 0);
        m_style->disableButtonShift(&registered, false);
        QVERIFY(isShifted(registered));
        QCOMPARE(registered.connections(), 0);
        m_style->disableButtonShift(nullptr, true);
        QCOMPARE(installedLogger().take(), QStringList());
    }

    void renaming()
    {
        Button button("before");
        Button taken("taken");
        m_style->disableButtonShift(&button, true);
        m_style->disableButtonShift(&taken, true);
        button.setObjectName(QStringLiteral("after"));
        QVERIFY(!isShifted(button));
        QVERIFY(isShifted(Button("before")));
        button.setObjectName(QStringLiteral("taken")); // the entry of another button stays
        QCOMPARE(button.connections(), 0);
        m_style->disableButtonShift(&taken, false);
        QVERIFY(isShifted(button));
        m_style->disableButtonShift(&button, true);
        button.setObjectName(QString()); // unregistered
        QVERIFY(isShifted(Button("taken")));
        QCOMPARE(button.connections(), 0);
    }

    void destroying()
    {
        auto button = std::make_unique<Button>("short-lived");
        m_style->disableButtonShift(button.get(), true);
        button.reset();
        Button heir("short-lived");
        QVERIFY(isShifted(heir));
        m_style->disableButtonShift(&heir, true);
        m_style.reset(); // the style may go first
        heir.setObjectName(QStringLiteral("survivor"));
        QCOMPARE(heir.connections(), 0);
        QCOMPARE(installedLogger().take(), QStringList());
    }

    void wrongCalls()
    {
        Button nameless("");
        verify("disableButtonShift", 75, [&] { m_style->disableButtonShift(&nameless, true); });
        nameless.setObjectName(QStringLiteral("named at last")); // it was registered nevertheless
        QVERIFY(!isShifted(nameless));

        Button owner("shared");
        Button stranger("shared");
        m_style->disableButtonShift(&owner, true);
        verify("pimpl::disableButtonShift", 58, [&] { m_style->disableButtonShift(&stranger, false); });
        QVERIFY(isShifted(owner));
        QCOMPARE(owner.connections(), 2); // the stranger's were cut, not these
        verify("onNonShiftedButtonObjectNameChanged", 107,
               [&] { owner.setObjectName(QStringLiteral("lost")); });
        QVERIFY(isShifted(owner));
    }

private:
    bool isShifted(const QWidget& widget) const
    {
        const int x = m_style->pixelMetric(QStyle::PM_ButtonShiftHorizontal, nullptr, &widget);
        const int y = m_style->pixelMetric(QStyle::PM_ButtonShiftVertical, nullptr, &widget);
        return x == m_stock->pixelMetric(QStyle::PM_ButtonShiftHorizontal) && x > 0 && y > 0;
    }

    template <class Call>
    void verify(const char* function, int line, Call call) const
    {
        const QByteArray name = QByteArray("TOLVAN_NAMESPACE::CustomTolvanAppStyle::").append(function);
        verifyReport(name.constData(), "customtolvanappstyle", line, nullptr, call);
    }

    std::unique_ptr<CustomTolvanAppStyle> m_style;
    std::unique_ptr<QStyle> m_stock{QStyleFactory::create(QStringLiteral("windows"))};
};

TOLVAN_GUI_TEST_MAIN(ButtonShiftTest)
#include "tst_buttonshift.moc"
