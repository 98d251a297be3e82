#pragma once

#include "qtsoapmessage.h"

#include <QElapsedTimer>
#include <QNetworkReply>
#include <QTimer>

namespace TOLVAN_NAMESPACE
{

/// Internal: watches one reply while it comes in, and reads it piece by piece.
///
/// Belongs to the reply. Aborts one that stands still, that takes too long or that grows too large; however
/// busy the caller is, no more than the limit and one piece is held.
class SoapHttpExchange : public QObject
{
    Q_OBJECT

public:
    /// \param timeout milliseconds without progress, 0 for none
    SoapHttpExchange(QNetworkReply* reply, int timeout);

    /// The message that the finished reply carries, or a fault that says why it carries none.
    QtSoapMessage message();

    /// The exchange that watches \a reply.
    static SoapHttpExchange* of(QNetworkReply* reply);

private Q_SLOTS:
    void limitReadAhead();
    void onProgress();
    void onHead();
    void onReceived();
    void onTimeout();

private:
    void giveUp(const QString& reason);
    QString failure(const QByteArray& body, const QString& notSoap) const;
    QByteArray declared(const QByteArray& body) const;

    QNetworkReply* m_reply; ///< the parent
    QTimer m_idle;
    QTimer m_whole;
    QByteArray m_body;
    QString m_reason; ///< why the exchange was given up
};

} // namespace TOLVAN_NAMESPACE
