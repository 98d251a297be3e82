#pragma once

#include "SoapValueReader.h"

namespace TOLVAN_NAMESPACE
{

/// Internal: reads an envelope. Entries between and behind header and body are passed over.
class SoapMessageReader
{
public:
    explicit SoapMessageReader(SoapXmlCursor& cursor)
        : m_cursor(cursor)
        , m_values(cursor)
    {
    }

    /// Reads the whole document; false on an error.
    bool read();

    QString errorString() const { return m_cursor.errorString(); }

    /// Whether the error is an envelope of another version.
    bool isOtherVersion() const { return m_otherVersion; }

    bool hasHeader() const { return m_hasHeader; }
    bool hasBody() const { return m_hasBody; }
    const QList<QtSmartPtr<QtSoapType>>& header() const { return m_header; }
    const QList<QtSmartPtr<QtSoapType>>& body() const { return m_body; }

private:
    bool envelope();
    bool entry();
    bool entries(QList<QtSmartPtr<QtSoapType>>& target);

    SoapXmlCursor& m_cursor;
    SoapValueReader m_values;
    QList<QtSmartPtr<QtSoapType>> m_header;
    QList<QtSmartPtr<QtSoapType>> m_body;
    bool m_otherVersion = false;
    bool m_isEmpty = true; ///< as written for a message without contents
    bool m_hasHeader = false;
    bool m_hasBody = false;
};

} // namespace TOLVAN_NAMESPACE
