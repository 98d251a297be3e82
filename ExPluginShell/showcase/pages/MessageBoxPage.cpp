#include "MessageBoxPage.h"

#include "MessageBoxes.h"
#include "Pages.h"

#include <utilsDll/AboutDlg.h>

#include <QCoreApplication>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace
{

QString translated(const char* text)
{
    return QCoreApplication::translate("MessageBoxes", text);
}

} // namespace

QWidget* makeMessageBoxPage(QWidget* parent)
{
    return new MessageBoxPage(parent);
}

MessageBoxPage::MessageBoxPage(QWidget* parent)
    : PageWidget(parent)
{
    addFields();
    addBoxes();
    addAbout();
    column()->addStretch();
    languageChanged();
}

void MessageBoxPage::addFields()
{
    m_text = new QPlainTextEdit(this);
    m_text->setTabChangesFocus(true);
    m_text->setFixedSize(520, 90);
    m_height = new QSpinBox(this);
    m_height->setRange(120, 600);
    m_height->setValue(200);
    m_height->setSuffix(QStringLiteral(" px"));
    auto* const form = addForm();
    addRow(form, QT_TR_NOOP("Text"), m_text);
    addRow(form, QT_TR_NOOP("Height"), m_height);
    addText(QT_TR_NOOP("Without a text each box brings one of its own."))
        ->setObjectName(QStringLiteral("pageSummary"));
}

void MessageBoxPage::addBoxes()
{
    constexpr int columns = 3;
    addTitle(QT_TR_NOOP("Message boxes"));
    auto* const grid = new QGridLayout;
    grid->setSpacing(8);
    for (int i = 0; i < messageBoxCalls().size(); ++i) {
        auto* const button = new QPushButton(this);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, i] { showBox(i); });
        m_buttons += button;
        grid->addWidget(button, i / columns, i % columns);
        grid->setColumnStretch(i % columns, 1);
    }
    column()->addLayout(grid);
    addAnswer();
}

void MessageBoxPage::addAbout()
{
    addTitle(QT_TR_NOOP("About dialogs"));
    addButtons({makeButton(QT_TR_NOOP("About the product"), [this] { CAboutDlg(this).exec(); }),
                makeButton(QT_TR_NOOP("About the product family"), [this] { CAboutOstraDlg(this).exec(); })});
}

//! [code]
void MessageBoxPage::showBox(int kind)
{
    const MessageBoxCall& call = messageBoxCalls().at(kind);
    const QString own = m_text->toPlainText();
    const QString chosen = call.show(this, own.isEmpty() ? translated(call.sample) : own, m_height->value());
    answer([=] {
        return chosen.isEmpty() ? tr("%1: read and closed.").arg(translated(call.title))
                                : tr("%1: the answer is %2.").arg(translated(call.title), chosen);
    });
}
//! [code]

void MessageBoxPage::languageChanged()
{
    for (int i = 0; i < m_buttons.size(); ++i) {
        m_buttons.at(i)->setText(translated(messageBoxCalls().at(i).title));
    }
}
