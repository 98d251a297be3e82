#include "NativeDialogsPage.h"

#include "Pages.h"

#include <utilsDll/NativeDialogs.h>

#include <QDir>
#include <QGridLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

using TOLVAN_NAMESPACE::CNativeDialogs;

QWidget* makeNativeDialogsPage(QWidget* parent)
{
    return new NativeDialogsPage(parent);
}

NativeDialogsPage::NativeDialogsPage(QWidget* parent)
    : PageWidget(parent)
    , m_answer(new QPlainTextEdit(this))
{
    auto& dialogs = Singleton<CNativeDialogs>::instance();
    const QString home = QDir::homePath();
    const auto filter = [] { return tr("Pictures (*.jpg *.png *.tif);;All files (*)"); };
    QPushButton* const buttons[] = {
        makeButton(QT_TR_NOOP("Open a file"),
                   [=, &dialogs] {
                       answer(
                           {dialogs.getOpenFileName(this, tr("Open a file"), home, filter(), nullptr, {})});
                   }),
        makeButton(QT_TR_NOOP("Open files"),
                   [=, &dialogs] {
                       answer(dialogs.getOpenFileNames(this, tr("Open files"), home, filter(), nullptr, {}));
                   }),
        makeButton(QT_TR_NOOP("Save a file"),
                   [=, &dialogs] {
                       answer(
                           {dialogs.getSaveFileName(this, tr("Save a file"), home, filter(), nullptr, {})});
                   }),
        makeButton(
            QT_TR_NOOP("Choose a folder"),
            [=, &dialogs] { answer({dialogs.getExistingDirectory(this, tr("Choose a folder"), home, {})}); }),
        makeButton(QT_TR_NOOP("Choose a folder by its pictures"),
                   [=, &dialogs] {
                       answer(
                           {dialogs.getFileBrowserDirectory(this, tr("Choose a folder by its pictures"), home,
                                                            QStringLiteral("*.jpg *.png *.tif"), {})});
                   }),
    };
    constexpr int columns = 3;
    auto* const grid = new QGridLayout;
    grid->setSpacing(8);
    int number = 0;
    for (QPushButton* const button : buttons) {
        grid->addWidget(button, number / columns, number % columns);
        grid->setColumnStretch(number % columns, 1);
        ++number;
    }
    column()->addLayout(grid);
    addTitle(QT_TR_NOOP("What was chosen"));
    m_answer->setReadOnly(true);
    column()->addWidget(m_answer, 1);
}

void NativeDialogsPage::answer(const QStringList& paths)
{
    m_answer->setPlainText(paths.join(QLatin1Char('\n')));
}
