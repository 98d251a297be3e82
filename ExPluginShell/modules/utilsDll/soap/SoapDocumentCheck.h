#pragma once

#include "qtsoaplimits.h"

#include <QByteArray>
#include <QString>

namespace TOLVAN_NAMESPACE
{

/// A look through a document before any XML reader sees it. Refuses what costs a reader more than its size:
/// documents and tags that are too long, document types. Internal, not installed.
struct SoapDocumentCheck {
    SoapDocumentCheck(const QByteArray& document, const QtSoapLimits& limits);

    QString error;     ///< what is wrong; empty if nothing is
    QByteArray utf8;   ///< the text if it is UTF-16 or UTF-32; null otherwise
    qint64 memory = 0; ///< bytes that the document takes, and the copy of its longest text in the reader
    qint64 text = 0;   ///< bytes that this text takes as a value
};

/// Returns the error text for a document with a document type.
QString documentTypeRefusal();

/// Returns whether a document that is neither UTF-16 nor UTF-32 may declare \a encoding; an empty one is UTF-8.
///
/// In the encodings accepted the bytes of '<', '>' and the quotes stand for nothing else: the check above relies
/// on that.
bool isSoapEncoding(QStringView encoding);

} // namespace TOLVAN_NAMESPACE
