#include "BoxKinds.h"
#include "InstalledLogger.h"
#include "TestMain.h"

#include <utilsDll/controls/IconViewer.h>
#include <utilsDll/MessageBox.h>

#include <QGridLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <functional>

using namespace BoxKinds;

namespace
{

/// Shows a box of this kind and lets \a act deal with it as soon as it is open. \return what the box returns
int answer(const Kind& kind, QWidget* parent, const std::function<void(CMessageBox&)>& act)
{
    bool acted = false;
    QTimer::singleShot(0, [&] {
        auto* const box = qobject_cast<CMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box && box->isVisible());
        acted = true;
        const QPointer<CMessageBox> guard(box);
        act(*box);
        if (guard && guard->isVisible()) {
            guard->close(); // no test hangs
        }
    });
    const int result = kind.show(parent);
    return acted ? result : -4711;
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
    void answers_data() { kindRows(); }
    void answers();
    void content_data() { kindRows(); }
    void content();
    void form();
    void buttonRow_data();
    void buttonRow();
    void parentDies_data() { kindRows(); }
    void parentDies();
    void hostileTexts_data();
    void hostileTexts();
    void rightToLeft();
    void nothingIsLeftBehind();
    void scriptedAnswers();
    void wrongScriptedAnswerIsReported();

private:
    static void kindRows();
};

void MessageBoxTest::kindRows()
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
                 it.results.at(i));
    }
    QCOMPARE(answer(it, nullptr, [](CMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }),
             it.otherwise);
    QCOMPARE(answer(it, nullptr, [](CMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }),
             it.results.at(it.defaultButton));
    QCOMPARE(answer(it, nullptr, [](CMessageBox& box) { box.close(); }), it.otherwise);
}

void MessageBoxTest::content()
{
    QFETCH(int, kind);
    const Kind& it = kinds().at(kind);
    answer(it, nullptr, [&](CMessageBox& box) {
        QCOMPARE(box.size(), QSize(520, it.height));
        QCOMPARE(box.minimumSize(), box.maximumSize());
        QStringList names;
        QStringList texts;
        for (const QPushButton* const button : buttonsOf(box)) {
            names += button->objectName();
            texts += button->text();
            QCOMPARE(button->minimumSize(), QSize(80, 36));
            QVERIFY(button->width() >= 80 && button->height() >= 36);
        }
        QCOMPARE(names, it.buttons);
        QCOMPARE(texts, it.texts);
        QVERIFY(buttonsOf(box).at(it.defaultButton)->isDefault());
        const auto* const label = find<QLabel>(box, "textLabel");
        QCOMPARE(label->text(), text);
        QVERIFY(label->wordWrap());
        QVERIFY(label->height() >= label->heightForWidth(label->width())); // nothing cut off
        const auto* const viewer = find<TOLVAN_NAMESPACE::CIconViewer>(box, "iconWidget");
        QCOMPARE(viewer->sizeHint(), QSize(34, 34));
        QCOMPARE(viewer->width(), 34); // also beside a short text
        const QIcon icon(QString::fromLatin1(it.icon));
        QCOMPARE(viewer->icon().isNull(), icon.isNull());
        QCOMPARE(viewer->icon().pixmap(34).toImage(), icon.pixmap(34).toImage());
        if (it.simple) {
            const QPushButton& button = *buttonsOf(box).first();
            QVERIFY(qAbs(button.mapTo(&box, button.rect().center()).x() - (28 + 520 - 21) / 2) <= 1);
        }
    });
}

void MessageBoxTest::form()
{
    answer(kinds().at(3), nullptr, [](CMessageBox& box) {
        QCOMPARE(box.objectName(), QStringLiteral("CMessageBox"));
        QCOMPARE(box.windowTitle(), QStringLiteral("Dialog"));
        QVERIFY(box.isModal());
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
        QCOMPARE(grid->itemAtPosition(0, 0)->widget(), find<QWidget>(box, "iconWidget"));
        const auto* const contentWidget = find<QWidget>(box, "contentWidget");
        QCOMPARE(grid->itemAtPosition(0, 1)->widget(), contentWidget);
        const QSpacerItem* const spacer = grid->itemAtPosition(1, 1)->spacerItem();
        QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding));
        QCOMPARE(spacer->sizeHint(), QSize(20, 40));
        QCOMPARE(contentWidget->layout()->objectName(), QStringLiteral("verticalLayout_2"));
        QCOMPARE(contentWidget->layout()->contentsMargins(), QMargins());
        const auto* const content = find<QVBoxLayout>(box, "contentLayout");
        QCOMPARE(contentWidget->layout()->itemAt(0)->layout(), content);
        QCOMPARE(content->itemAt(0)->widget(), find<QWidget>(box, "textLabel"));
        const QSizePolicy policy = find<QWidget>(box, "iconWidget")->sizePolicy();
        QCOMPARE(policy.horizontalPolicy(), QSizePolicy::Preferred);
        QCOMPARE(policy.verticalPolicy(), QSizePolicy::Preferred);
    });
}

void MessageBoxTest::buttonRow_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QRect>("cell"); // column, row, columns, rows
    QTest::newRow("under everything") << 0 << QRect(0, 2, 2, 2);
    QTest::newRow("beside the icon") << 4 << QRect(1, 2, 1, 1);
}

void MessageBoxTest::buttonRow()
{
    QFETCH(int, kind);
    QFETCH(QRect, cell);
    answer(kinds().at(kind), nullptr, [&](CMessageBox& box) {
        QWidget* const row = buttonsOf(box).first()->parentWidget();
        QCOMPARE(row->layout()->spacing(), 11);
        QCOMPARE(row->layout()->contentsMargins(), QMargins());
        const auto* const grid = find<QGridLayout>(box, "gridLayout");
        int gridRow = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        grid->getItemPosition(grid->indexOf(row), &gridRow, &column, &rows, &columns);
        QCOMPARE(QRect(column, gridRow, columns, rows), cell);
    });
}

void MessageBoxTest::parentDies()
{
    QFETCH(int, kind);
    const Kind& it = kinds().at(kind);
    QPointer<QWidget> parent(new QWidget);
    QCOMPARE(answer(it, parent, [&](CMessageBox&) { delete parent; }), it.otherwise);
    QVERIFY(!QApplication::activeModalWidget());
}

void MessageBoxTest::hostileTexts_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("empty") << QString();
    QTest::newRow("short") << QStringLiteral("?");
    QTest::newRow("long") << QString(QStringLiteral("A word or two and ")).repeated(500);
    QTest::newRow("one endless word") << QString(5000, QLatin1Char('x'));
    QTest::newRow("looks like rich text") << QStringLiteral("<b>bold</b> and <unknown>");
    QTest::newRow("a broken tag") << QStringLiteral("a < b & c <");
}

void MessageBoxTest::hostileTexts()
{
    QFETCH(QString, message);
    Kind kind = kinds().at(3);
    kind.show = [&](QWidget* parent) { return int(CMessageBox::yesNoMessage(parent, message, height)); };
    const int result = answer(kind, nullptr, [&](CMessageBox& box) {
        QCOMPARE(box.size(), QSize(520, height));
        QCOMPARE(find<QLabel>(box, "textLabel")->text(), message);
        const QPushButton* const yes = buttonsOf(box).first();
        QVERIFY(box.rect().contains(QRect(yes->mapTo(&box, QPoint()), yes->size()))); // it can be answered
    });
    QCOMPARE(result, int(QMessageBox::No));
}

void MessageBoxTest::rightToLeft()
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    answer(kinds().at(4), nullptr, [](CMessageBox& box) {
        const auto* const icon = find<QWidget>(box, "iconWidget");
        QVERIFY(icon->x() > find<QWidget>(box, "contentWidget")->x());
        QCOMPARE(buttonsOf(box).last()->objectName(), QStringLiteral("discardButton"));
    });
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void MessageBoxTest::nothingIsLeftBehind()
{
    QWidget parent;
    const int before = QApplication::allWidgets().size();
    for (int i = 0; i < 143; ++i) { // a thousand boxes and one
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
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods += QString::fromLatin1(meta.method(i).methodSignature());
    }
    QCOMPARE(methods, list({"onButtonClicked()", "setRotateQuestion(bool)", "setYesNoMessage(bool)",
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
    });
    QCOMPARE(result, int(QMessageBox::No)); // what was recorded answers nothing
    QCOMPARE(installedLogger().take(), QStringList());
}

void MessageBoxTest::wrongScriptedAnswerIsReported()
{
    const QString report = QStringLiteral("ASSERT in ExPluginShell\\modules\\utilsDll\\MessageBox:276");
    installedLogger().take();
    answer(kinds().at(0), nullptr, [&](CMessageBox& box) {
        for (const int value : {0x4000, 0, -1}) {
            QTest::ignoreMessage(QtDebugMsg, qPrintable(report));
            QMetaObject::invokeMethod(&box, "setSaveDiscardCancelMessage", Q_ARG(int, value));
            QCOMPARE(installedLogger().take(),
                     QStringList(QStringLiteral("E CMessageBox::setSaveDiscardCancelMessage: ") + report));
        }
    });
}

TOLVAN_GUI_TEST_MAIN(MessageBoxTest)
#include "tst_messagebox.moc"
