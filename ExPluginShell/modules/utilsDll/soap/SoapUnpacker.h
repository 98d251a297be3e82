#pragma once

#include <QByteArray>

#include <memory>

namespace TOLVAN_NAMESPACE
{

/// Unpacks an HTTP body that is packed as "gzip" or "deflate", piece by piece. Internal, not installed.
class SoapUnpacker
{
public:
    SoapUnpacker();
    ~SoapUnpacker();

    /// Appends what \a piece unpacks to; stops as soon as \a body is larger than \a limit bytes.
    /// \return false if the piece is damaged
    bool unpack(const QByteArray& piece, QByteArray& body, qint64 limit);

    /// Returns whether the packed body is complete.
    bool isComplete() const { return m_complete; }

private:
    struct Stream;
    std::unique_ptr<Stream> m_stream;
    bool m_started = false;
    bool m_complete = false;
};

} // namespace TOLVAN_NAMESPACE
