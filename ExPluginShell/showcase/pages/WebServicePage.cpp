#include "Pages.h"
#include "PageWidget.h"
#include "Report.h"

#include <utilsDll/soap/qtsoap.h>

#include <QTcpServer>
#include <QTcpSocket>

using namespace TOLVAN_NAMESPACE;

namespace
{
const QString uri = QStringLiteral("urn:trelio:showcase:lengths");

struct Unit {
    const char* name;
    double centimetres;
};

constexpr Unit units[] = {{"inch", 2.54}, {"foot", 30.48}, {"yard", 91.44}, {"millimetre", 0.1}};

/// The request that asks for \a amount \a unit in centimetres.
QtSoapMessage requestFor(int amount, const QString& unit)
{
    QtSoapMessage message;
    message.setMethod(QStringLiteral("convertLength"), uri);
    message.addMethodArgument(QStringLiteral("amount"), QString(), amount);
    message.addMethodArgument(QStringLiteral("unit"), QString(), unit);
    return message;
}

QtSoapMessage answerTo(const QtSoapMessage& request)
{
    const QString unit = request.method()[QStringLiteral("unit")].toString();
    const int amount = request.method()[QStringLiteral("amount")].toInt();
    QtSoapMessage answer;
    for (const Unit& known : units) {
        if (unit == QLatin1String(known.name)) {
            answer.setMethod(QStringLiteral("convertLengthResponse"), uri);
            auto* const result = new QtSoapStruct(QtSoapQName(QStringLiteral("result")));
            result->insert(new QtSoapSimpleType(QtSoapQName(QStringLiteral("cm")),
                                                QString::number(amount * known.centimetres)));
            answer.addMethodArgument(result);
            return answer;
        }
    }
    answer.setFaultCode(QtSoapMessage::Client);
    answer.setFaultString(QStringLiteral("The unit \"%1\" is not known").arg(unit));
    answer.addFaultDetail(
        new QtSoapSimpleType(QtSoapQName(QStringLiteral("unit")), QString::fromLatin1(units[0].name)));
    return answer;
}

/// A small web service inside the showcase, on a free port of the loopback interface: converts lengths into
/// centimetres, and answers a unit that it does not know with a fault.
class LengthService : public QTcpServer
{
public:
    explicit LengthService(QObject* parent = nullptr)
        : QTcpServer(parent)
    {
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* const socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [socket] { serve(socket); });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        });
        listen(QHostAddress::LocalHost); // if it fails, the transport answers with a fault
    }

private:
    static void serve(QTcpSocket* socket)
    {
        const QByteArray received = socket->peek(socket->bytesAvailable());
        QtSoapMessage request;
        if (!request.setContent(received.mid(received.indexOf("\r\n\r\n") + 4))) {
            return; // the rest is on its way
        }
        socket->readAll();
        const QtSoapMessage answer = answerTo(request);
        const QByteArray text = answer.toXmlString().toUtf8();
        socket->write((answer.isFault() ? "HTTP/1.1 500 Internal Server Error" : "HTTP/1.1 200 OK") +
                      QByteArray("\r\nContent-Type: text/xml; charset=utf-8\r\nContent-Length: ") +
                      QByteArray::number(text.size()) + "\r\n\r\n" + text);
    }
};

//! [code]
void ask(QtSoapHttpTransport& transport, const LengthService& service, QtSoapMessage request)
{
    transport.setHost(QStringLiteral("127.0.0.1"), service.serverPort());
    transport.setAction(uri + QStringLiteral("#convertLength"));
    transport.setTimeout(10000);
    transport.submitRequest(request, QStringLiteral("/lengths")); // announces responseReady()
}
//! [code]

/// The same, and turns the event loop until the answer is there.
const QtSoapMessage& askAndWait(QtSoapHttpTransport& transport, const LengthService& service,
                                const QtSoapMessage& request)
{
    QEventLoop loop;
    QObject::connect(&transport, qOverload<>(&QtSoapHttpTransport::responseReady), &loop, &QEventLoop::quit);
    ask(transport, service, request);
    loop.exec();
    return transport.getResponse();
}

/// The message on lines; the namespaces of its envelope on one each.
QString readable(const QtSoapMessage& message)
{
    QString xml = message.toXmlString(2);
    const int end = xml.indexOf(QLatin1Char('>'));
    QString envelope = xml.left(end);
    for (const char* attribute : {" xmlns:", " SOAP-ENV:encodingStyle"}) {
        envelope.replace(QLatin1String(attribute), QLatin1String("\n   ") + QLatin1String(attribute));
    }
    return xml.replace(0, end, envelope);
}

} // namespace

/// Asks a small service of the showcase's own, and shows the request and the answer as they travel.
class WebServicePage : public PageWidget
{
    Q_OBJECT

public:
    explicit WebServicePage(QWidget* parent)
        : PageWidget(parent)
        , m_service(new LengthService(this))
    {
        connect(&m_transport, qOverload<>(&QtSoapHttpTransport::responseReady), this,
                &WebServicePage::showAnswer);
        addQuestion();
        m_request = addView(QT_TR_NOOP("Request"), new QLabel(this), 7);
        m_received = addView(QT_TR_NOOP("Answer"), makeAnswer(), 8); // has more levels
        withText(m_received, QT_TR_NOOP("The service has not been asked yet."), "placeholderText");
        showRequest();
    }

    void prepareForPicture() override { askAndWait(m_transport, *m_service, request()); }

private:
    void addQuestion()
    {
        m_amount = new QSpinBox(this);
        m_amount->setRange(0, 100000);
        m_amount->setValue(12);
        m_amount->setMinimumWidth(100);
        m_unit = new QComboBox(this);
        m_unit->setEditable(true);
        for (const Unit& unit : units) {
            m_unit->addItem(QString::fromLatin1(unit.name));
        }
        m_unit->setMinimumWidth(160);
        connect(m_amount, qOverload<int>(&QSpinBox::valueChanged), this, &WebServicePage::showRequest);
        connect(m_unit, &QComboBox::currentTextChanged, this, &WebServicePage::showRequest);
        auto* const amount = withText(new QLabel(this), QT_TR_NOOP("Amount"));
        auto* const unit = withText(new QLabel(this), QT_TR_NOOP("Unit"));
        amount->setBuddy(m_amount);
        unit->setBuddy(m_unit);
        addButtons({amount, m_amount, unit, m_unit, makeButton(QT_TR_NOOP("Ask the service"), [this] {
                        ask(m_transport, *m_service, request());
                    })});
    }

    /// Adds a view of a message under its title, with \a note at the end of the title's line.
    QPlainTextEdit* addView(const char* title, QLabel* note, int stretch)
    {
        auto* const view = new QPlainTextEdit(this);
        view->setReadOnly(true);
        view->setLineWrapMode(QPlainTextEdit::NoWrap);
        view->setTabChangesFocus(true);
        view->setObjectName(QStringLiteral("code"));
        QLabel* const label = addTitle(title);
        label->setBuddy(view);
        note->setWordWrap(false);
        column()->addLayout(makeRow({label, note}, 0));
        column()->addWidget(view, stretch);
        return view;
    }

    QtSoapMessage request() const { return requestFor(m_amount->value(), m_unit->currentText()); }

    /// What is shown of an earlier answer goes: it belongs to another question.
    void showRequest()
    {
        m_request->setPlainText(readable(request()));
        m_received->clear();
        answer([] { return QString(); });
    }

    void showAnswer()
    {
        const QtSoapMessage& received = m_transport.getResponse();
        const bool fault = received.isFault();
        const QtSoapType& part =
            fault ? received.faultString() : received.returnValue()[QStringLiteral("cm")];
        m_received->setPlainText(readable(received));
        answer([fault, text = part.toString()] { return (fault ? tr("Fault: %1") : tr("%1 cm")).arg(text); });
    }

    LengthService* m_service;
    QtSoapHttpTransport m_transport;
    QSpinBox* m_amount = nullptr;
    QComboBox* m_unit = nullptr;
    QPlainTextEdit* m_request = nullptr;
    QPlainTextEdit* m_received = nullptr;
};

QWidget* makeWebServicePage(QWidget* parent)
{
    return new WebServicePage(parent);
}

void walkWebService(Report& report)
{
    LengthService service;
    const auto answered = [&](int amount, const char* unit) {
        QtSoapHttpTransport transport;
        return QtSoapMessage(askAndWait(transport, service, requestFor(amount, QString::fromLatin1(unit))));
    };
    const QtSoapMessage answer = answered(12, "inch");
    for (const QString& line : readable(answer).split(QLatin1Char('\n'))) {
        report.row("answer", line);
    }
    const QString length = answer.returnValue()[QStringLiteral("cm")].toString();
    report.check("12 inch in centimetres", length, length == QStringLiteral("30.48"));
    const QtSoapMessage refused = answered(1, "furlong");
    report.check("a unit that is not known", refused.faultString().toString(),
                 refused.isFault() && refused.faultCode() == QtSoapMessage::Client);
    service.close();
    const QtSoapMessage unreachable = answered(12, "inch");
    report.check("the service is gone", unreachable.faultString().toString(), unreachable.isFault());
    QtSoapMessage bomb;
    const bool taken = bomb.setContent(QByteArrayLiteral("<!DOCTYPE a [<!ENTITY b 'c'>]><a>&b;</a>"));
    report.check("a document type in an answer", bomb.errorString(), !taken);
}

#include "WebServicePage.moc"
