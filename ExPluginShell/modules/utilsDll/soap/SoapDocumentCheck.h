#pragma once

#include <QByteArray>
#include <QString>

namespace TOLVAN_NAMESPACE
{

/// Looks through a document before any XML reader sees it, and refuses what costs a reader more than its size:
/// documents and tags that are too long, document types. Internal, not installed.
/// \param document the bytes as received
/// \param unicode receives the text if it is UTF-16 or UTF-32, and stays null otherwise
/// \return what is wrong; empty if nothing is
QString checkSoapDocument(const QByteArray& document, QString* unicode);

/// Returns the error text for a document with a document type.
QString documentTypeRefusal();

/// Returns whether a document that is neither UTF-16 nor UTF-32 may declare \a encoding; an empty one is UTF-8.
///
/// In the encodings accepted the bytes of '<', '>' and the quotes stand for nothing else: the check above relies
/// on that.
bool isSoapEncoding(const QStringRef& encoding);

} // namespace TOLVAN_NAMESPACE
