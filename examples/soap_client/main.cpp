#include <qtsoap.h>

#include <QCoreApplication>
#include <QDebug>

using namespace TOLVAN_NAMESPACE;

class LengthClient : public QObject
{
    Q_OBJECT

public:
    LengthClient(const QString& host, int port)
    {
        connect(&transport, SIGNAL(responseReady(const QtSoapMessage&)), SLOT(show(const QtSoapMessage&)));
        QtSoapMessage request;
        request.setMethod("convertLength", "urn:example:units");
        request.addMethodArgument("amount", "", 12);
        request.addMethodArgument("unit", "", "inch");
        request.addMethodArgument("round", "", true, 0);
        transport.setAction("urn:example:units#convertLength");
        transport.setHost(host, port);
        transport.submitRequest(request, "/units");
    }

private Q_SLOTS:
    void show(const QtSoapMessage& answer)
    {
        if (answer.isFault()) {
            qWarning() << answer.faultString().toString();
        } else {
            qInfo() << answer.returnValue()["cm"].value().toDouble() << "cm";
        }
        QCoreApplication::exit(answer.isFault() ? 1 : 0);
    }

private:
    QtSoapHttpTransport transport;
};

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    LengthClient client(application.arguments().value(1), application.arguments().value(2).toInt());
    return application.exec();
}

#include "main.moc"
