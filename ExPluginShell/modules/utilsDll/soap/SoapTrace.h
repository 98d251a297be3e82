#pragma once

#include <QNetworkReply>

namespace TOLVAN_NAMESPACE
{

class QtSoapMessage;

/// The trace of requests and answers, at level D through the logging bridge. Internal, not installed.
///
/// Switched on by the name of its logging category, "tolvan.soap.trace". Header lines and the user of an address
/// are left out, and the texts of elements and attributes with a name such as "password" or "token" are masked.

/// Returns whether the trace is switched on.
bool isSoapTraced();

/// Logs a request that is sent.
void traceSoapRequest(const QNetworkRequest& request, const QString& xml);

/// Logs the answer in \a reply: its body, or the fault that \a answer is if there was none.
void traceSoapAnswer(const QNetworkReply* reply, const QByteArray& body, const QtSoapMessage& answer);

/// Returns \a url without user and password.
QString soapTraceUrl(const QUrl& url);

} // namespace TOLVAN_NAMESPACE
