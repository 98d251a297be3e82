#pragma once

#include "SoapXmlCursor.h"

#include <QHash>
#include <QVector>
#include <QXmlStreamReader>

namespace TOLVAN_NAMESPACE
{

/// Internal: walks a document as it is read, within SoapLimits; nothing is kept of what was passed.
class SoapStreamCursor : public SoapXmlCursor
{
public:
    explicit SoapStreamCursor(const QByteArray& document, const QtSoapLimits& limits = QtSoapLimits());

    Token next() override;
    QString text() const override;
    QDomElement takeElement() override;

private:
    Token start();
    bool feed();
    Token advance();
    Token failHere(const QString& error);
    QString shared(QStringView name);

    QByteArray m_document;
    int m_fed = 0; ///< number of bytes that the reader has
    int m_piece;   ///< number of bytes that it gets next
    QXmlStreamReader m_reader;
    bool m_decoded = false;          ///< the encoding was recognised by the first bytes
    int m_skippedLines = 0;          ///< blank lines before the document
    QHash<QString, QString> m_names; ///< element names and URIs repeat: one copy of each
    QVector<int> m_declarations;     ///< number of namespace declarations, by level
    int m_namespaces = 0;            ///< their sum
};

} // namespace TOLVAN_NAMESPACE
