#pragma once

#include <utilsDll/soap/qtsoap.h>

#include <QTcpServer>

class QTcpSocket;

/// A small web service inside the showcase, on a free port of the loopback interface: converts lengths into
/// centimetres. It knows the units of unitNames() and answers any other one with a fault.
class LengthService : public QTcpServer
{
    Q_OBJECT

public:
    explicit LengthService(QObject* parent = nullptr);

    /// Starts to listen unless it does already.
    /// \return false when there is no port to be had
    bool start();

    static QStringList unitNames();
    /// The request that asks for \a amount \a unit in centimetres.
    static TOLVAN_NAMESPACE::QtSoapMessage request(int amount, const QString& unit);
    /// The action that goes with it.
    static QString action();

private Q_SLOTS:
    void onConnection();

private:
    static void serve(QTcpSocket* socket);
};
