#pragma once

#include <QByteArray>
#include <QString>

namespace TOLVAN_NAMESPACE
{

/// Internal: looks through a document before any XML reader sees it.
///
/// Refuses what costs a reader more than its size: documents and tags that are too long, document types.
///
/// \param document the bytes as received
/// \param unicode receives the text when it is UTF-16 or UTF-32, and stays null otherwise
/// \return what is wrong, empty when nothing is
QString checkSoapDocument(const QByteArray& document, QString* unicode);

/// Internal: whether a document that is no UTF-16 or UTF-32 may declare \a encoding; an empty one is UTF-8.
///
/// Only encodings in which the bytes of '<', '>' and the quotes stand for nothing else: the check above relies
/// on it.
bool isSoapEncoding(const QStringRef& encoding);

} // namespace TOLVAN_NAMESPACE
