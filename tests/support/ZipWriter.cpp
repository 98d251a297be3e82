#include "ZipWriter.h"

#include <quazip/quacrc32.h>

#include <QDataStream>
#include <QIODevice>

#include <zlib.h>

namespace
{

constexpr quint16 oldDate = 0x58A1; // a day in 2024

/// The fields that both headers have: version needed to the size of the name.
void writeCommon(QDataStream& out, const ZipEntry& entry, quint32 checksum, quint32 packedSize, quint32 size)
{
    out << quint16(20) << entry.flags << quint16(entry.method) << quint16(0) << oldDate << checksum
        << packedSize << size << quint16(entry.name.size());
}

} // namespace

QByteArray deflated(const QByteArray& content)
{
    return qCompress(content, 6).mid(6).chopped(4); // without Qt's length and zlib's frame
}

QByteArray zipOf(const QVector<ZipEntry>& entries, const QByteArray& comment)
{
    QByteArray local;
    QByteArray directory;
    QDataStream localOut(&local, QIODevice::WriteOnly);
    QDataStream directoryOut(&directory, QIODevice::WriteOnly);
    localOut.setByteOrder(QDataStream::LittleEndian);
    directoryOut.setByteOrder(QDataStream::LittleEndian);
    const auto raw = [](QDataStream& out, const QByteArray& bytes) { out.writeRawData(bytes, bytes.size()); };
    for (const ZipEntry& entry : entries) {
        const auto offset = quint32(local.size());
        const QByteArray packed = !entry.packed.isNull() ? entry.packed
                                  : entry.method == 8    ? deflated(entry.content)
                                                         : entry.content;
        QuaCrc32 calculator;
        const quint32 checksum =
            entry.checksum < 0 ? calculator.calculate(entry.content) : quint32(entry.checksum);
        const auto size = quint32(entry.declaredSize < 0 ? entry.content.size() : entry.declaredSize);
        localOut << quint32(0x04034b50);
        writeCommon(localOut, entry, checksum, quint32(packed.size()),
                    entry.localSize < 0 ? size : quint32(entry.localSize));
        localOut << quint16(0);
        raw(localOut, entry.name);
        raw(localOut, packed);
        directoryOut << quint32(0x02014b50) << quint16(3 << 8 | 20);
        writeCommon(directoryOut, entry, checksum, quint32(packed.size()), size);
        directoryOut << quint16(entry.extra.size()) << quint16(entry.comment.size()) << quint16(0)
                     << quint16(0) << quint32(entry.mode << 16) << offset;
        raw(directoryOut, entry.name);
        raw(directoryOut, entry.extra);
        raw(directoryOut, entry.comment);
    }
    const auto start = quint32(local.size());
    const auto length = quint32(directory.size());
    localOut.device()->seek(local.size());
    raw(localOut, directory);
    localOut << quint32(0x06054b50) << quint16(0) << quint16(0) << quint16(entries.size())
             << quint16(entries.size()) << length << start << quint16(comment.size());
    raw(localOut, comment);
    return local;
}

ZipEntry zerosEntry(const QByteArray& name, qint64 size)
{
    constexpr int pieceSize = 1 << 20;
    QByteArray zeros(pieceSize, '\0');
    QByteArray piece(pieceSize, '\0');
    z_stream stream = {};
    deflateInit2(&stream, 6, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
    stream.next_in = reinterpret_cast<Bytef*>(zeros.data());
    stream.avail_in = pieceSize;
    stream.next_out = reinterpret_cast<Bytef*>(piece.data());
    stream.avail_out = pieceSize;
    deflate(&stream, Z_FULL_FLUSH); // ends on a whole byte and refers to nothing before it
    piece.truncate(int(stream.total_out));
    deflateEnd(&stream);

    const qint64 pieces = size / pieceSize;
    const uLong pieceChecksum = crc32(0, reinterpret_cast<const Bytef*>(zeros.constData()), pieceSize);
    uLong checksum = 0;
    for (qint64 i = 0; i < pieces; ++i) {
        checksum = crc32_combine(checksum, pieceChecksum, pieceSize);
    }
    ZipEntry entry{name, {}};
    entry.packed = piece.repeated(int(pieces)) + QByteArray("\x03\x00", 2); // and an empty last block
    entry.checksum = qint64(checksum);
    entry.declaredSize = size;
    if (size >= 0xFFFFFFFF) {
        entry.declaredSize = 0xFFFFFFFF;
        QDataStream out(&entry.extra, QIODevice::WriteOnly);
        out.setByteOrder(QDataStream::LittleEndian);
        out << quint16(1) << quint16(8) << size;
    }
    return entry;
}
