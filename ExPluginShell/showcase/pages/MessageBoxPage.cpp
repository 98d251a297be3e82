#include "MessageBoxes.h"
#include "Pages.h"
#include "PageWidget.h"

#include <utilsDll/AboutDlg.h>

namespace
{
QString translated(const char* text)
{
    return QCoreApplication::translate("MessageBoxes", text);
}

} // namespace

/// Every message box with a text of the user's choice, and the About dialogs.
class MessageBoxPage : public PageWidget
{
    Q_OBJECT

public:
    explicit MessageBoxPage(QWidget* parent)
        : PageWidget(parent)
        , m_text(new QPlainTextEdit(this))
        , m_height(new QSpinBox(this))
    {
        m_text->setTabChangesFocus(true);
        m_text->setFixedSize(520, 90);
        m_height->setRange(120, 600);
        m_height->setValue(200);
        m_height->setSuffix(QStringLiteral(" px"));
        auto* const form = addForm();
        addRow(form, QT_TR_NOOP("Text"), m_text);
        addRow(form, QT_TR_NOOP("Height"), m_height);
        addText(QT_TR_NOOP("Without a text each box brings one of its own."))
            ->setObjectName(QStringLiteral("pageSummary"));
        constexpr int columns = 3;
        addTitle(QT_TR_NOOP("Message boxes"));
        auto* const grid = new QGridLayout;
        grid->setSpacing(8);
        for (int i = 0; i < messageBoxCalls().size(); ++i) {
            m_buttons += new QPushButton(this);
            m_buttons.last()->setAutoDefault(false);
            connect(m_buttons.last(), &QPushButton::clicked, this, [this, i] { showBox(i); });
            grid->addWidget(m_buttons.last(), i / columns, i % columns);
            grid->setColumnStretch(i % columns, 1);
        }
        column()->addLayout(grid);
        column()->addWidget(makeAnswer());
        addTitle(QT_TR_NOOP("About dialogs"));
        addButtons(
            {makeButton(QT_TR_NOOP("About the product"), [this] { CAboutDlg(this).exec(); }),
             makeButton(QT_TR_NOOP("About the product family"), [this] { CAboutOstraDlg(this).exec(); })});
        column()->addStretch();
        languageChanged();
    }

protected:
    void languageChanged() override
    {
        for (int i = 0; i < m_buttons.size(); ++i) {
            m_buttons.at(i)->setText(translated(messageBoxCalls().at(i).title));
        }
    }

private:
    //! [code]
    void showBox(int kind)
    {
        const MessageBoxCall& call = messageBoxCalls().at(kind);
        const QString own = m_text->toPlainText();
        const QString chosen =
            call.show(this, own.isEmpty() ? translated(call.sample) : own, m_height->value());
        answer([=] {
            return chosen.isEmpty() ? tr("%1: read and closed.").arg(translated(call.title))
                                    : tr("%1: the answer is %2.").arg(translated(call.title), chosen);
        });
    }
    //! [code]

    QVector<QPushButton*> m_buttons;
    QPlainTextEdit* m_text;
    QSpinBox* m_height;
};

QWidget* makeMessageBoxPage(QWidget* parent)
{
    return new MessageBoxPage(parent);
}

#include "MessageBoxPage.moc"
