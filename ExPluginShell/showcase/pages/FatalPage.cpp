#include "Pages.h"
#include "PageWidget.h"

#include <utilsDll/ErrStrings.h>

using TOLVAN_NAMESPACE::CErrStrings;

/// The fatal messages of the product, each shown as it would be in trouble.
class FatalPage : public PageWidget
{
    Q_OBJECT

public:
    explicit FatalPage(QWidget* parent)
        : PageWidget(parent)
    {
        addMessage(QT_TR_NOOP("Little free space"),
                   QT_TR_NOOP("The drive of the temporary folder is almost full."),
                   &CErrStrings::ShowSmallFreeSpaceDialog);
        addMessage(QT_TR_NOOP("Out of memory"), QT_TR_NOOP("A program of its own, which will be closed."),
                   &CErrStrings::ShowOutOfMemoryDialog);
        addMessage(QT_TR_NOOP("Out of memory in the photo editor"),
                   QT_TR_NOOP("The editor may become unstable."),
                   &CErrStrings::ShowOutOfMemoryInPhotoshopDialog);
        addMessage(QT_TR_NOOP("Unhandled exception"), QT_TR_NOOP("The program will be closed."),
                   &CErrStrings::ShowUnhandledExceptionDialog);
        column()->addWidget(makeAnswer());
        addText(QT_TR_NOOP(
                    "The texts are prepared in the current language while all is well. On Windows the "
                    "system's own "
                    "message box shows them, on Linux a message program (kdialog, zenity or xmessage) or the "
                    "standard error output."))
            ->setObjectName(QStringLiteral("pageSummary"));
        column()->addStretch();
    }

protected:
    void languageChanged() override { m_messages.Retranslate(); }

private:
    //! [code]
    void addMessage(const char* title, const char* reason, void (CErrStrings::*message)() const)
    {
        QPushButton* const button = makeButton(QT_TR_NOOP("Show"), [=] {
            (m_messages.*message)(); // returns when the user has closed the message
            answer([title] { return tr("Shown and closed: %1").arg(tr(title)); });
        });
        //! [code]
        auto* const texts = new QVBoxLayout;
        texts->setSpacing(2);
        for (const char* const text : {title, reason}) {
            auto* const label = withText(new QLabel(this), text);
            label->setObjectName(text == title ? QStringLiteral("pageSubtitle")
                                               : QStringLiteral("pageSummary"));
            texts->addWidget(label);
        }
        auto* const row = makeRow({button}, 1);
        row->insertLayout(0, texts, 1);
        column()->addLayout(row);
    }

    CErrStrings m_messages;
};

QWidget* makeFatalPage(QWidget* parent)
{
    return new FatalPage(parent);
}

#include "FatalPage.moc"
