#pragma once

#include "qtsoapmessage.h"

#include <QList>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QUrl>

namespace TOLVAN_NAMESPACE
{

/// \brief Sends messages to a service over HTTP or HTTPS and hands over its answers.
///
/// Everything is asynchronous and happens in the thread of the object, which needs an event loop. Each
/// submitRequest() is answered by exactly one pair of responseReady() signals, also if the request fails; a
/// transport that is destroyed before that sends none. Requests may overlap, but getResponse() and
/// networkReply() then return the latest one: use one transport per call where that matters.
///
/// An answer that cannot be read as a message becomes a fault: with the code of the failed setContent() if a
/// 2xx answer is not SOAP, else with the code Other. Its text names the cause: the status of the server, the
/// error of the network, the time-out. An empty answer with status 202 or 204 is an empty message, no fault.
/// Redirections are not followed. An answer of more than 64 MiB is given up. At most 1 MiB beyond what was
/// read is received while the thread is busy.
///
/// Proxies are those of networkAccessManager(), at first the ones of the application. Certificate errors make
/// the request fail unless a slot on that manager's `sslErrors` ignores them. HTTPS is the system's on Windows
/// and that of OpenSSL on Unix. If its libraries are missing, requests over HTTPS fail.
///
/// \code
/// QtSoapMessage request; // is not kept by the transport
/// request.setMethod("convertLength", "urn:example:units"); // the name and its namespace
/// request.addMethodArgument("amount", "", 12); // the argument takes the namespace of the method
/// transport.setAction("urn:example:units#convertLength"); // sent in the SOAPAction header
/// transport.setHost("soap.example.org", true); // over HTTPS
/// transport.submitRequest(request, "/units");
/// \endcode
class UTILSDLL_EXPORT QtSoapHttpTransport : public QObject
{
    Q_OBJECT
    /// Milliseconds, see setTimeout().
    Q_PROPERTY(int timeout READ timeout WRITE setTimeout)

public:
    /// A transport without host, owned by \a parent.
    QtSoapHttpTransport(QObject* parent = nullptr);

    /// Aborts what is under way; no signal follows.
    ~QtSoapHttpTransport() override;

    /// Sends to \a host from now on, over HTTPS if \a useSecureHTTP; port 0 is 80, or 443 for HTTPS.
    void setHost(const QString& host, bool useSecureHTTP = false, int port = 0);

    /// Sends to \a host and \a port over HTTP. Kept for older callers.
    void setHost(const QString& host, int port);

    /// Sets the SOAPAction of this and later requests; quotes are added where the caller did not.
    void setAction(const QString& action);

    /// \brief Posts \a request to \a path on the host, and returns at once.
    /// \param request is not kept
    /// \param path begins with a slash; what follows a question mark is the query
    void submitRequest(QtSoapMessage& request, const QString& path);

    /// The latest answer, overwritten by the next one; an empty message before the first. It may be a fault.
    const QtSoapMessage& getResponse() const;

    /// The manager in use, owned by the transport: for its signals, its proxy, its cookies.
    QNetworkAccessManager* networkAccessManager();

    /// The reply of the latest request, valid until the next one is sent; null before the first. Its body has
    /// been read.
    QNetworkReply* networkReply();

    /// The time-out in milliseconds; 60,000 unless set.
    int timeout() const;

    /// \brief Sets after how many milliseconds without progress a request is given up; 0 turns the
    /// time-out off.
    ///
    /// Progress is what is sent, the complete head of the answer, each piece of its body. A request that keeps
    /// moving is given up after ten times as long, so a service that answers byte by byte cannot hold its
    /// caller for ever. Holds for requests submitted from now on.
    void setTimeout(int msec);

Q_SIGNALS:
    /// An answer is there: see getResponse().
    void responseReady();

    /// An answer is there; sent right behind the form without argument.
    ///
    /// In string-based connections the type is written without its namespace, as it is declared here:
    /// `SIGNAL(responseReady(const QtSoapMessage&))` and `SLOT(show(const QtSoapMessage&))`. Qt compares the
    /// texts, so a slot declared with `TOLVAN_NAMESPACE::QtSoapMessage` does not connect that way: declare it
    /// below `using namespace TOLVAN_NAMESPACE;`, or connect with pointers to members.
    ///
    /// For queued connections the client declares the type, with `Q_DECLARE_METATYPE(QtSoapMessage)`, and
    /// registers it under that name.
    void responseReady(const QtSoapMessage& response);

private Q_SLOTS:
    void readResponse(QNetworkReply* reply);

private:
    void deliver(QNetworkReply* reply);

    QNetworkAccessManager m_manager;
    QPointer<QNetworkReply> m_reply;
    QList<QPointer<QNetworkReply>> m_pending; ///< children of the manager, those already read excluded
    QUrl m_url;
    QString m_action;
    QtSoapMessage m_response;
    int m_timeout;
};

} // namespace TOLVAN_NAMESPACE
