#include "AssertionReport.h"
#include "BoxKinds.h"
#include "ModalDialog.h"
#include "TestMain.h"

#include <utilsDll/controls/IconViewer.h>

#include <QAccessible>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTextDocument>

#include <algorithm>

using namespace BoxKinds;

namespace
{

const QString text = QStringLiteral("The picture was changed. Do you want to save the changes?");
const QString path = QStringLiteral("C:\\Users\\Anna\\Pictures\\Hochzeit_Anna_und_Paul_im_Standesamt\\"
                                    "Bilder_der_zweiten_Kamera\\IMG_20240617_143512.CR3");

/// Shows a box of this kind and lets \a act deal with it. \return what the box returns
template <class Act>
int answer(const Kind& kind, QWidget* parent, Act act, const QString& message = text)
{
    int result = 0;
    const bool shown = whileOpen<CMessageBox>([&] { result = kind.show(parent, message); }, std::move(act));
    return shown ? result : -4711;
}

int alerts = 0; // of boxes, to assistive technology

/// The buttons of the button row from left to right.
QList<QPushButton*> buttonsOf(const CMessageBox& box)
{
    QList<QPushButton*> buttons = box.findChildren<QPushButton*>();
    std::sort(buttons.begin(), buttons.end(),
              [](const QPushButton* a, const QPushButton* b) { return a->x() < b->x(); });
    return buttons;
}

} // namespace

class MessageBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answers_data()
    {
        QTest::addColumn<int>("kind");
        for (int i = 0; i < kinds().size(); ++i) {
            QTest::newRow(kinds().at(i).name) << i;
        }
    }

    void answers()
    {
        QFETCH(int, kind);
        const Kind& it = kinds().at(kind);
        for (int i = 0; i < it.buttons.size(); ++i) {
            QCOMPARE(answer(it, nullptr, [&](CMessageBox& box) { buttonsOf(box).at(i)->click(); }),
                     it.buttons.at(i).result);
        }
        const int widgets = QApplication::allWidgets().size();
        QCOMPARE(answer(it, nullptr, [](CMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }),
                 it.buttons.at(it.defaultButton).result);
        QCOMPARE(answer(it, nullptr, [](CMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }),
                 it.otherwise);
        QCOMPARE(answer(it, nullptr, [](CMessageBox& box) { box.close(); }), it.otherwise);
        auto* const parent = new QWidget;
        QCOMPARE(answer(it, parent, [parent](CMessageBox&) { delete parent; }), it.otherwise);
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(QApplication::allWidgets().size(), widgets);
    }
    void content_data() { answers_data(); }

    void content()
    {
        QFETCH(int, kind);
        const Kind& it = kinds().at(kind);
        QAccessible::setActive(true);
        alerts = 0;
        QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            alerts += event->type() == QAccessible::Alert && qobject_cast<CMessageBox*>(event->object());
        });
        const auto check = [&it](CMessageBox& box) {
            QVERIFY(box.isModal());
            QCOMPARE(box.objectName(), QStringLiteral("CMessageBox"));
            QCOMPARE(box.size(), QSize(520, it.height));
            const QList<QPushButton*> buttons = buttonsOf(box);
            QCOMPARE(buttons.size(), it.buttons.size());
            for (int i = 0; i < buttons.size(); ++i) {
                QCOMPARE(buttons.at(i)->objectName(), QString::fromLatin1(it.buttons.at(i).name));
                QCOMPARE(buttons.at(i)->text(), QString::fromLatin1(it.buttons.at(i).text));
                QCOMPARE(buttons.at(i)->isDefault(), i == it.defaultButton);
            }
            const auto* const viewer = find<TOLVAN_NAMESPACE::CIconViewer>(box, "iconWidget");
            const QIcon picture(QString::fromLatin1(it.icon));
            QCOMPARE(viewer->icon().pixmap(34).toImage(), picture.pixmap(34).toImage());
            QCOMPARE(alerts, QAccessible::isActive() ? 1 : 0); // the offscreen platform has no accessibility
            const std::pair<QWidget*, QAccessible::Role> named[] = {
                {&box, QAccessible::AlertMessage}, {find<QWidget>(box, "iconWidget"), QAccessible::Graphic}};
            for (const auto& [widget, role] : named) {
                const auto* const accessible = QAccessible::queryAccessibleInterface(widget);
                QCOMPARE(accessible->role(), role);
                QCOMPARE(accessible->text(QAccessible::Name), QString::fromLatin1(it.accessibleName));
            }
            QCOMPARE(box.accessibleDescription(), text);
        };
        answer(it, nullptr, check);
        QAccessible::installUpdateHandler(nullptr);
        QAccessible::setActive(false);
    }

    /// Every text can be read to its end.
    void texts()
    {
        const std::pair<QString, bool> rows[] = {{QStringLiteral("<b>%1</b>").arg(path), false},
                                                 {QString(5000, QLatin1Char('x')), true}};
        for (const auto& [message, scrolls] : rows) {
            const auto check = [&, scrolls = scrolls](CMessageBox& box) {
                const auto* const label = find<QLabel>(box, "textLabel");
                QCOMPARE(box.findChild<QScrollArea*>() != nullptr, scrolls);
                QTRY_VERIFY(label->height() >= label->heightForWidth(label->width()));
                QVERIFY(label->mapTo(&box, QPoint()).y() >= 24); // scrolled to the top
                box.grab();
                const auto* const document = label->findChild<QTextDocument*>();
                QVERIFY(!document || document->idealWidth() <= label->width());
            };
            QCOMPARE(answer(kinds().at(3), nullptr, check, message), int(QMessageBox::No));
        }
    }

    void boxesFitTheirText()
    {
        const int highest = QGuiApplication::primaryScreen()->availableGeometry().height() * 4 / 5;
        for (Kind kind : kinds()) {
            if (!kind.showFitting) {
                continue;
            }
            kind.show = kind.showFitting;
            int last = 100;
            for (const QString& message : {text, path.repeated(60)}) {
                const auto check = [&](CMessageBox& box) {
                    QVERIFY(box.height() > last && box.height() <= highest);
                    last = box.height();
                    QCOMPARE(box.width(), 520);
                    QCOMPARE(box.findChild<QScrollArea*>() != nullptr, last == highest);
                    buttonsOf(box).first()->click();
                };
                QCOMPARE(answer(kind, nullptr, check, message), kind.buttons.first().result);
            }
            QCOMPARE(last, highest);
        }
    }

    void copying()
    {
        const auto copied = [] { return QGuiApplication::clipboard()->text(); };
        QGuiApplication::clipboard()->setText(QStringLiteral("probe"));
        if (copied() != QLatin1String("probe")) {
            QSKIP("the system has no clipboard");
        }
        const auto check = [&](CMessageBox& box) {
            box.activateWindow();
            QTRY_VERIFY(box.isActiveWindow());
            QTest::keyClick(box.windowHandle(), Qt::Key_C, Qt::ControlModifier);
            QCOMPARE(copied(), QStringLiteral("The file is new."));
            auto* const label = find<QLabel>(box, "textLabel");
            label->setFocus();
            QTest::keyClick(label, Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
            QTest::keyClick(label, Qt::Key_C, Qt::ControlModifier);
            QCOMPARE(copied(), QStringLiteral("The "));
        };
        answer(kinds().at(3), nullptr, check, QStringLiteral("The <b>file</b> is new."));
    }

    void scriptedAnswers()
    {
        installedLogger().take();
        const int result = answer(kinds().at(3), nullptr, [](CMessageBox& box) {
            const auto invoke = [&box](const char* method, QGenericArgument one, QGenericArgument two = {}) {
                QVERIFY(QMetaObject::invokeMethod(&box, method, one, two));
            };
            invoke("setYesNoMessage", Q_ARG(bool, true));
            invoke("setRotateQuestion", Q_ARG(bool, true));
            invoke("setYesNoMessageWithCheckBox", Q_ARG(bool, true), Q_ARG(bool, true));
            invoke("setSaveDiscardCancelMessage", Q_ARG(int, 0x800));
            QCOMPARE(installedLogger().take(), QStringList());
            verifyReport("CMessageBox::setSaveDiscardCancelMessage", "MessageBox", 276, nullptr,
                         [&] { invoke("setSaveDiscardCancelMessage", Q_ARG(int, 0x4000)); });
        });
        QCOMPARE(result, int(QMessageBox::No)); // what was recorded answers nothing
    }
};

TOLVAN_GUI_TEST_MAIN(MessageBoxTest)
#include "tst_messagebox.moc"
