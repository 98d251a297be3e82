#include "AssertionReport.h"
#include "BoxKinds.h"
#include "ModalDialog.h"
#include "ScreenProbe.h"
#include "TestMain.h"

#include <utilsDll/controls/IconViewer.h>

#include <QGridLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>

#include <algorithm>

using namespace BoxKinds;

namespace
{

const QString text = QStringLiteral("The picture was changed. Do you want to save the changes?");

/// Shows a box of this kind and lets \a act deal with it. \return what the box returns
template <class Act>
int answer(const Kind& kind, QWidget* parent, Act act, const QString& message = text)
{
    int result = 0;
    const bool shown = whileOpen<CMessageBox>([&] { result = kind.show(parent, message); }, std::move(act));
    return shown ? result : -4711;
}

/// The buttons of the button row from left to right.
QList<QPushButton*> buttonsOf(const CMessageBox& box)
{
    QList<QPushButton*> buttons = box.findChildren<QPushButton*>();
    std::sort(buttons.begin(), buttons.end(),
              [](const QPushButton* a, const QPushButton* b) { return a->x() < b->x(); });
    return buttons;
}

template <class T>
T* find(const CMessageBox& box, const char* name)
{
    return box.findChild<T*>(QString::fromLatin1(name));
}

} // namespace

class MessageBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answers_data();
    void answers();
    void content_data() { answers_data(); }
    void content();
    void form();
    void hostileTexts_data();
    void hostileTexts();
    void rightToLeft();
    void nothingIsLeftBehind();
    void scriptedAnswers();
};

void MessageBoxTest::answers_data()
{
    QTest::addColumn<int>("kind");
    for (int i = 0; i < kinds().size(); ++i) {
        QTest::newRow(kinds().at(i).name) << i;
    }
}

void MessageBoxTest::answers()
{
    QFETCH(int, kind);
    const Kind& it = kinds().at(kind);
    for (int i = 0; i < it.buttons.size(); ++i) {
        QCOMPARE(answer(it, nullptr, [&](CMessageBox& box) { buttonsOf(box).at(i)->click(); }),
                 it.buttons.at(i).result);
    }
    QCOMPARE(answer(it, nullptr, [](CMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }),
             it.buttons.at(it.defaultButton).result);
    QCOMPARE(answer(it, nullptr, [](CMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }),
             it.otherwise);
    QCOMPARE(answer(it, nullptr, [](CMessageBox& box) { box.close(); }), it.otherwise);
    auto* const parent = new QWidget;
    QCOMPARE(answer(it, parent, [parent](CMessageBox&) { delete parent; }), it.otherwise);
    QVERIFY(!QApplication::activeModalWidget());
}

void MessageBoxTest::content()
{
    QFETCH(int, kind);
    const Kind& it = kinds().at(kind);
    const auto check = [&it](CMessageBox& box) {
        QVERIFY(box.isModal());
        QCOMPARE(box.size(), QSize(520, it.height));
        QCOMPARE(box.minimumSize(), box.maximumSize());
        const QList<QPushButton*> buttons = buttonsOf(box);
        QCOMPARE(buttons.size(), it.buttons.size());
        for (int i = 0; i < buttons.size(); ++i) {
            QCOMPARE(buttons.at(i)->objectName(), QString::fromLatin1(it.buttons.at(i).name));
            QCOMPARE(buttons.at(i)->text(), QString::fromLatin1(it.buttons.at(i).text));
            QCOMPARE(buttons.at(i)->minimumSize(), QSize(80, 36));
            QCOMPARE(buttons.at(i)->isDefault(), i == it.defaultButton);
        }
        const auto* const label = find<QLabel>(box, "textLabel");
        QCOMPARE(label->text(), text);
        QVERIFY(label->wordWrap());
        QVERIFY(label->height() >= label->heightForWidth(label->width())); // nothing cut off
        const auto* const viewer = find<TOLVAN_NAMESPACE::CIconViewer>(box, "iconWidget");
        QCOMPARE(viewer->sizeHint(), QSize(34, 34));
        QCOMPARE(viewer->icon().pixmap(34).toImage(),
                 QIcon(QString::fromLatin1(it.icon)).pixmap(34).toImage());

        const bool alone = buttons.size() == 1;
        QWidget* const row = buttons.first()->parentWidget();
        QCOMPARE(row->layout()->spacing(), 11);
        QCOMPARE(row->layout()->contentsMargins(), QMargins());
        const auto* const grid = find<QGridLayout>(box, "gridLayout");
        QPoint cell;
        int rows = 0;
        int columns = 0;
        grid->getItemPosition(grid->indexOf(row), &cell.ry(), &cell.rx(), &rows, &columns);
        QCOMPARE(QRect(cell, QSize(columns, rows)), alone ? QRect(0, 2, 2, 2) : QRect(1, 2, 1, 1));
        const int centre = buttons.first()->mapTo(&box, buttons.first()->rect().center()).x();
        QVERIFY(!alone || qAbs(centre - (28 + 520 - 21) / 2) <= 1);
    };
    answer(it, nullptr, check);
}

void MessageBoxTest::form()
{
    const auto check = [](CMessageBox& box) {
        QCOMPARE(box.objectName(), QStringLiteral("CMessageBox"));
        QCOMPARE(box.windowTitle(), QStringLiteral("Dialog"));
        const auto* const outer = qobject_cast<QHBoxLayout*>(box.layout());
        QCOMPARE(outer->objectName(), QStringLiteral("horizontalLayout"));
        QCOMPARE(outer->spacing(), 0);
        QCOMPARE(outer->contentsMargins(), QMargins());
        const auto* const background = find<QWidget>(box, "wBackgroundWidget");
        QCOMPARE(background->size(), box.size());
        const auto* const grid = qobject_cast<QGridLayout*>(background->layout());
        QCOMPARE(grid->objectName(), QStringLiteral("gridLayout"));
        QCOMPARE(grid->horizontalSpacing(), 35);
        QCOMPARE(grid->verticalSpacing(), 0);
        QCOMPARE(grid->contentsMargins(), QMargins(28, 24, 21, 20));
        const auto* const icon = find<QWidget>(box, "iconWidget");
        QCOMPARE(grid->itemAtPosition(0, 0)->widget(), icon);
        QCOMPARE(icon->width(), 34); // also beside a short text
        QCOMPARE(icon->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred));
        const QSpacerItem* const spacer = grid->itemAtPosition(1, 1)->spacerItem();
        QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding));
        QCOMPARE(spacer->sizeHint(), QSize(20, 40));
        const auto* const contentWidget = find<QWidget>(box, "contentWidget");
        QCOMPARE(grid->itemAtPosition(0, 1)->widget(), contentWidget);
        QCOMPARE(contentWidget->layout()->objectName(), QStringLiteral("verticalLayout_2"));
        QCOMPARE(contentWidget->layout()->contentsMargins(), QMargins());
        const auto* const content = find<QVBoxLayout>(box, "contentLayout");
        QCOMPARE(contentWidget->layout()->itemAt(0)->layout(), content);
        QCOMPARE(content->itemAt(0)->widget(), find<QWidget>(box, "textLabel"));
    };
    answer(kinds().at(0), nullptr, check, QStringLiteral("?"));
}

void MessageBoxTest::hostileTexts_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("empty") << QString();
    QTest::newRow("long") << QString(QStringLiteral("A word or two and ")).repeated(500);
    QTest::newRow("one endless word") << QString(5000, QLatin1Char('x'));
    QTest::newRow("looks like rich text") << QStringLiteral("<b>bold</b> and <unknown>");
    QTest::newRow("a broken tag") << QStringLiteral("a < b & c <");
}

void MessageBoxTest::hostileTexts()
{
    QFETCH(QString, message);
    const auto check = [&message](CMessageBox& box) {
        QCOMPARE(box.size(), QSize(520, usualHeight));
        QCOMPARE(find<QLabel>(box, "textLabel")->text(), message);
        const QPushButton* const yes = buttonsOf(box).first();
        QVERIFY(box.rect().contains(QRect(yes->mapTo(&box, QPoint()), yes->size()))); // it can be answered
    };
    QCOMPARE(answer(kinds().at(3), nullptr, check, message), int(QMessageBox::No));
}

void MessageBoxTest::rightToLeft()
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    answer(kinds().at(4), nullptr, [](CMessageBox& box) {
        QVERIFY(find<QWidget>(box, "iconWidget")->x() > find<QWidget>(box, "contentWidget")->x());
        QCOMPARE(buttonsOf(box).last()->objectName(), QStringLiteral("discardButton"));
    });
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void MessageBoxTest::nothingIsLeftBehind()
{
    const int rounds =
        ScreenProbe::canSee() ? 5 : 143; // a thousand boxes and one; real windows take their time
    QWidget parent;
    const int before = QApplication::allWidgets().size();
    for (int i = 0; i < rounds; ++i) {
        for (const Kind& kind : kinds()) {
            answer(kind, &parent, [](CMessageBox& box) { buttonsOf(box).first()->click(); });
        }
    }
    QCOMPARE(QApplication::allWidgets().size(), before);
    QVERIFY(parent.children().isEmpty());
}

void MessageBoxTest::scriptedAnswers()
{
    const QMetaObject& meta = CMessageBox::staticMetaObject;
    QByteArrayList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods += meta.method(i).methodSignature();
    }
    QCOMPARE(methods,
             QByteArrayList({"onButtonClicked()", "setRotateQuestion(bool)", "setYesNoMessage(bool)",
                             "setYesNoMessageWithCheckBox(bool,bool)", "setSaveDiscardCancelMessage(int)"}));
    installedLogger().take();
    const int result = answer(kinds().at(3), nullptr, [](CMessageBox& box) {
        QVERIFY(QMetaObject::invokeMethod(&box, "setYesNoMessage", Q_ARG(bool, true)));
        QVERIFY(QMetaObject::invokeMethod(&box, "setRotateQuestion", Q_ARG(bool, true)));
        QVERIFY(QMetaObject::invokeMethod(&box, "setYesNoMessageWithCheckBox", Q_ARG(bool, true),
                                          Q_ARG(bool, true)));
        for (const int value : {0x800, 0x800000, 0x400000}) {
            QVERIFY(QMetaObject::invokeMethod(&box, "setSaveDiscardCancelMessage", Q_ARG(int, value)));
        }
        QCOMPARE(installedLogger().take(), QStringList());
        for (const int value : {0x4000, 0, -1}) {
            verifyReport("CMessageBox::setSaveDiscardCancelMessage", "MessageBox", 276, nullptr, [&] {
                QMetaObject::invokeMethod(&box, "setSaveDiscardCancelMessage", Q_ARG(int, value));
            });
        }
    });
    QCOMPARE(result, int(QMessageBox::No)); // what was recorded answers nothing
}

TOLVAN_GUI_TEST_MAIN(MessageBoxTest)
#include "tst_messagebox.moc"
