#include "WebServicePage.h"

#include "LengthService.h"
#include "Pages.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGridLayout>
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
    auto* form = addForm();
    m_amount = new QSpinBox(this);
    m_amount->setRange(0, 100000);
    m_amount->setValue(12);
    m_unit = new QComboBox(this);
    m_unit->setEditable(true);
    m_unit->addItems(LengthService::unitNames());
    addRow(form, QT_TR_NOOP("Amount"), m_amount);
    addRow(form, QT_TR_NOOP("Unit"), m_unit);
    connect(m_amount, qOverload<int>(&QSpinBox::valueChanged), this, &WebServicePage::showRequest);
    connect(m_unit, &QComboBox::currentTextChanged, this, &WebServicePage::showRequest);

    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(makeButton(QT_TR_NOOP("Ask the service"), [this] { ask(); }));
    m_result = new QLabel(this);
    m_result->setTextFormat(Qt::PlainText);
    m_result->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    row->addWidget(m_result, 1);
    column()->addLayout(row);
}

void WebServicePage::addMessages()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(6);
    int place = 0;
    for (const char* title : {QT_TR_NOOP("Request"), QT_TR_NOOP("Answer")}) {
        auto* view = new QPlainTextEdit(this);
        view->setReadOnly(true);
        view->setLineWrapMode(QPlainTextEdit::WidgetWidth);
        view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        view->setTabChangesFocus(true);
        QLabel* const label = addTitle(title);
        label->setBuddy(view);
        grid->addWidget(label, 0, place);
        grid->addWidget(view, 1, place);
        grid->setColumnStretch(place, 1);
        (place++ == 0 ? m_request : m_answer) = view;
    }
    grid->setRowStretch(1, 1);
    column()->addLayout(grid, 1);
}

void WebServicePage::showRequest()
{
    m_request->setPlainText(LengthService::request(m_amount->value(), m_unit->currentText()).toXmlString(2));
}

void WebServicePage::ask()
{
    m_service->start(); // a failure is what the transport then tells
    m_transport.setHost(QStringLiteral("127.0.0.1"), m_service->serverPort());
    m_transport.setAction(LengthService::action());
    m_transport.setTimeout(10000);
    QtSoapMessage request = LengthService::request(m_amount->value(), m_unit->currentText());
    m_transport.submitRequest(request, QStringLiteral("/lengths"));
}

void WebServicePage::showAnswer(const QtSoapMessage& answer)
{
    m_answer->setPlainText(answer.toXmlString(2));
    showResult();
}

void WebServicePage::showResult()
{
    const QtSoapMessage& answer = m_transport.getResponse();
    if (answer.isFault()) {
        m_result->setText(tr("Fault: %1").arg(answer.faultString().toString()));
    } else if (answer.returnValue().isValid()) {
        m_result->setText(tr("%1 cm").arg(answer.returnValue()[QStringLiteral("cm")].toString()));
    }
}

void WebServicePage::languageChanged()
{
    showResult();
}
