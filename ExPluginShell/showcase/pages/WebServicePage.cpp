#include "WebServicePage.h"

#include "LengthService.h"
#include "Pages.h"

#include <QComboBox>
#include <QEventLoop>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace TOLVAN_NAMESPACE;

QWidget* makeWebServicePage(QWidget* parent)
{
    return new WebServicePage(parent);
}

WebServicePage::WebServicePage(QWidget* parent)
    : PageWidget(parent)
    , m_service(new LengthService(this))
{
    connect(&m_transport, qOverload<const QtSoapMessage&>(&QtSoapHttpTransport::responseReady), this,
            &WebServicePage::showAnswer);
    addQuestion();
    addMessages();
    showRequest();
}

void WebServicePage::addQuestion()
{
    m_amount = new QSpinBox(this);
    m_amount->setRange(0, 100000);
    m_amount->setValue(12);
    m_amount->setMinimumWidth(100);
    m_unit = new QComboBox(this);
    m_unit->setEditable(true);
    m_unit->addItems(LengthService::unitNames());
    m_unit->setMinimumWidth(160);
    connect(m_amount, qOverload<int>(&QSpinBox::valueChanged), this, &WebServicePage::showRequest);
    connect(m_unit, &QComboBox::currentTextChanged, this, &WebServicePage::showRequest);

    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    const auto add = [&](const char* name, QWidget* field) {
        auto* label = new QLabel(this);
        label->setBuddy(field);
        translate(name, [label](const QString& text) { label->setText(text); });
        row->addWidget(label);
        row->addWidget(field);
    };
    add(QT_TR_NOOP("Amount"), m_amount);
    add(QT_TR_NOOP("Unit"), m_unit);
    row->addWidget(makeButton(QT_TR_NOOP("Ask the service"), [this] { ask(); }));
    row->addStretch();
    column()->addLayout(row);
}

void WebServicePage::addMessages()
{
    m_result = new QLabel(this);
    m_result->setTextFormat(Qt::PlainText);
    m_result->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_request = addView(QT_TR_NOOP("Request"), nullptr, 7);
    m_answer = addView(QT_TR_NOOP("Answer"), m_result, 8); // has more levels
    translate(QT_TR_NOOP("The service has not been asked yet."),
              [this](const QString& text) { m_answer->setPlaceholderText(text); });
}

/// Adds a view of a message under its title, with \a note at the end of the title's line.
QPlainTextEdit* WebServicePage::addView(const char* title, QLabel* note, int stretch)
{
    auto* view = new QPlainTextEdit(this);
    view->setReadOnly(true);
    view->setLineWrapMode(QPlainTextEdit::NoWrap);
    view->setTabChangesFocus(true);
    view->setObjectName(QStringLiteral("code"));

    auto* line = new QHBoxLayout;
    QLabel* const label = addTitle(title);
    label->setWordWrap(false);
    label->setBuddy(view);
    line->addWidget(label);
    line->addStretch();
    if (note) {
        line->addWidget(note, 0, Qt::AlignBottom);
    }
    auto* part = new QVBoxLayout;
    part->setSpacing(6);
    part->addLayout(line);
    part->addWidget(view, 1);
    column()->addLayout(part, stretch);
    return view;
}

/// The message on lines; the namespaces of its envelope on one each.
QString WebServicePage::readable(const QtSoapMessage& message)
{
    QString xml = message.toXmlString(2);
    const int end = xml.indexOf(QLatin1Char('>'));
    QString envelope = xml.left(end);
    for (const char* attribute : {" xmlns:", " SOAP-ENV:encodingStyle"}) {
        envelope.replace(QLatin1String(attribute), QLatin1String("\n   ") + QLatin1String(attribute));
    }
    return xml.replace(0, end, envelope);
}

/// What is shown of an earlier answer goes: it belongs to another question.
void WebServicePage::showRequest()
{
    m_request->setPlainText(readable(LengthService::request(m_amount->value(), m_unit->currentText())));
    m_answer->clear();
    m_result->clear();
}

//! [code]
void WebServicePage::ask()
{
    m_service->start(); // if it fails, the transport answers with a fault
    m_transport.setHost(QStringLiteral("127.0.0.1"), m_service->serverPort());
    m_transport.setAction(LengthService::action());
    m_transport.setTimeout(10000);
    QtSoapMessage request = LengthService::request(m_amount->value(), m_unit->currentText());
    m_transport.submitRequest(request, QStringLiteral("/lengths"));
}

//! [code]

void WebServicePage::showAnswer(const QtSoapMessage& answer)
{
    m_answer->setPlainText(readable(answer));
    showResult();
}

void WebServicePage::showResult()
{
    const QtSoapMessage& answer = m_transport.getResponse();
    if (answer.isFault()) {
        m_result->setText(tr("Fault: %1").arg(answer.faultString().toString()));
    } else {
        m_result->setText(tr("%1 cm").arg(answer.returnValue()[QStringLiteral("cm")].toString()));
    }
}

void WebServicePage::languageChanged()
{
    if (!m_result->text().isEmpty()) {
        showResult();
    }
}

void WebServicePage::prepareForPicture()
{
    QEventLoop loop;
    connect(&m_transport, qOverload<>(&QtSoapHttpTransport::responseReady), &loop, &QEventLoop::quit);
    ask();
    loop.exec();
}
