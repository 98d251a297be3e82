#pragma once

#include "qtsoapmessage.h"
#include "SoapUnpacker.h"

#include <QNetworkReply>
#include <QTimer>

namespace TOLVAN_NAMESPACE
{

/// Watches one reply while it comes in, and reads it piece by piece. Internal, not installed.
///
/// Belongs to the reply. Aborts a reply that stands still, takes too long or grows too large; while the caller is
/// busy, no more than the limit and one piece is held.
class SoapHttpExchange : public QObject
{
    Q_OBJECT

public:
    /// \param timeout milliseconds without progress, 0 for no limit
    /// \param limits bounds of the answer
    SoapHttpExchange(QNetworkReply* reply, int timeout, const QtSoapLimits& limits);

    /// Returns the message that the finished reply carries, or a fault with the reason why it carries none.
    QtSoapMessage message();

    /// Returns the exchange that watches \a reply.
    static SoapHttpExchange* of(QNetworkReply* reply);

    /// Refuses a head that is too large before Qt takes it apart, in a time that grows with its square.
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void limitReadAhead();
    void onProgress();
    void onHead();
    void onReceived();
    void onTimeout();

private:
    void receive();
    void giveUp(const QString& reason);
    QString failure(const QtSoapMessage& answer) const;
    QtSoapMessage fault(QtSoapMessage::FaultCode code, const QString& text, const QString& parserError) const;
    void declareEncoding();
    void trace(const QtSoapMessage& answer) const;

    QNetworkReply* m_reply; ///< the parent
    QTimer m_idle;
    QTimer m_whole;
    QtSoapLimits m_limits;
    SoapUnpacker m_unpacker;
    QByteArray m_body;
    QString m_reason; ///< why the exchange was given up
};

} // namespace TOLVAN_NAMESPACE
