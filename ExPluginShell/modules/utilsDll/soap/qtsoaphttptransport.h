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
/// error of the network, the time-out, where a redirection leads. Its detail has the children `status`, `reason`,
/// `location`, `network` (the error of Qt Network), `parser` (reason and position) and `body` (the first 500
/// characters), those that apply. An empty answer with status 202 or 204 is an empty message, no fault.
/// Redirections are not followed. An answer beyond limits() is given up, and so is one whose head has more than
/// 500 lines or 64 KiB. At most 1 MiB beyond what was read is received while the thread is busy. Answers packed
/// with gzip or deflate are unpacked within the same limits.
///
/// \par Trace
/// With the logging category "tolvan.soap.trace" switched on (`QT_LOGGING_RULES="tolvan.soap.trace.debug=true"`, or
/// `QLoggingCategory::setFilterRules()`), each request and each answer is logged at level D. No header lines and no
/// user of an address are logged, and the texts of elements and attributes that are named like a secret
/// ("password", "token", "session" and others, as a part of the name) are replaced by "***".
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
    ///
    /// \a host may have its port ("example.org:8080"), or be an address ("https://example.org"), whose path is not
    /// used; \a port goes before a port in \a host.
    void setHost(const QString& host, bool useSecureHTTP = false, int port = 0);

    /// Sends to \a host and \a port over HTTP. Kept for older callers.
    void setHost(const QString& host, int port);

    /// Sets the SOAPAction of this and later requests; quotes are added where the caller did not.
    void setAction(const QString& action);

    /// \brief Posts \a request to \a path on the host, and returns at once.
    /// \param request is not kept
    /// \param path what follows a question mark is the query; a missing slash is put before it. An address
    /// ("http://example.org/service") is used in place of that of setHost().
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

    /// What reading an answer may take.
    QtSoapLimits limits() const;

    /// Sets what reading the answers of requests submitted from now on may take.
    void setLimits(const QtSoapLimits& limits);

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
    void onAuthentication();

private:
    void deliver(QNetworkReply* reply);
    QUrl address(const QString& path) const;
    bool isIdle() const;

    QNetworkAccessManager m_manager;
    QPointer<QNetworkReply> m_reply;
    QList<QPointer<QNetworkReply>> m_pending; ///< children of the manager, those already read excluded
    QUrl m_url;
    QString m_action;
    QtSoapMessage m_response;
    QtSoapLimits m_limits;
    int m_timeout;
    bool m_authenticates = false; ///< the server or the proxy has asked for a user
};

} // namespace TOLVAN_NAMESPACE
