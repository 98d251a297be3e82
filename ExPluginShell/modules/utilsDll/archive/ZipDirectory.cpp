#include "ZipDirectory.h"

#include "ArchiveFile.h"

#include <QtEndian>
#include <QTimeZone>

#include <algorithm>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr quint32 localSignature = 0x04034b50;
constexpr quint32 entrySignature = 0x02014b50;
constexpr quint32 endSignature = 0x06054b50;
constexpr quint32 zip64EndSignature = 0x06064b50;
constexpr quint32 zip64LocatorSignature = 0x07064b50;
constexpr qint64 localSize = 30;
constexpr qint64 entrySize = 46;
constexpr qint64 endSize = 22;
constexpr qint64 zip64EndSize = 56;
constexpr qint64 zip64LocatorSize = 20;

constexpr qint64 searchedEnd = 1024 * 1024; // How far from the end of the file the end record is looked for.
constexpr qint64 blockSize = 256 * 1024;    // longer than any entry of the directory
constexpr qint64 wrap = Q_INT64_C(1) << 32;
constexpr quint32 inExtraField = 0xFFFFFFFF;
constexpr quint16 zip64Field = 0x0001;
constexpr quint16 timeField = 0x5455;

template <class Integer>
Integer at(const char* data, qint64 offset)
{
    return qFromLittleEndian<Integer>(data + offset);
}

/// Takes a 64-bit value from the ZIP64 field if the directory refers to it.
bool takeLong(quint32 stored, qint64& value, const QByteArray& field, int& offset)
{
    value = stored;
    if (stored != inExtraField) {
        return true;
    }
    if (field.size() < offset + 8) {
        return field.isNull(); // without the field it is the plain number
    }
    value = at<qint64>(field.constData(), offset);
    offset += 8;
    return value >= 0;
}

} // namespace

QByteArray extraField(const QByteArray& extra, quint16 number)
{
    qint64 offset = 0;
    while (offset + 4 <= extra.size()) {
        const auto length = at<quint16>(extra.constData(), offset + 2);
        if (offset + 4 + length > extra.size()) {
            break;
        }
        if (at<quint16>(extra.constData(), offset) == number) {
            return QByteArray(extra.constData() + offset + 4, length);
        }
        offset += 4 + length;
    }
    return {};
}

QFile::Permissions DirectoryEntry::permissions() const
{
    const auto group = [this](int shift, QFile::Permissions read, QFile::Permissions write,
                              QFile::Permissions execute) {
        const quint32 bits = mode >> shift;
        return ((bits & 4) ? read : QFile::Permissions()) | ((bits & 2) ? write : QFile::Permissions()) |
               ((bits & 1) ? execute : QFile::Permissions());
    };
    return group(6, QFile::ReadOwner | QFile::ReadUser, QFile::WriteOwner | QFile::WriteUser,
                 QFile::ExeOwner | QFile::ExeUser) |
           group(3, QFile::ReadGroup, QFile::WriteGroup, QFile::ExeGroup) |
           group(0, QFile::ReadOther, QFile::WriteOther, QFile::ExeOther);
}

QDateTime DirectoryEntry::lastModified() const
{
    const QByteArray field = extraField(extra, timeField);
    if (field.size() >= 5 && (field.at(0) & 1)) {
        return QDateTime::fromSecsSinceEpoch(at<qint32>(field.constData(), 1), Qt::UTC);
    }
    const QDate date(1980 + (dosDate >> 9), (dosDate >> 5) & 15, dosDate & 31);
    const QTime time(dosTime >> 11, (dosTime >> 5) & 63, (dosTime & 31) * 2);
    return date.isValid() && time.isValid() ? QDateTime(date, time) : QDateTime();
}

ZipDirectory::ZipDirectory(ArchiveFile& file)
    : m_file(file)
{
}

bool ZipDirectory::locate()
{
    const qint64 length = std::min(m_file.size(), searchedEnd);
    const qint64 start = m_file.size() - length;
    QByteArray tail(static_cast<int>(length), Qt::Uninitialized);
    if (!m_file.read(start, tail.data(), length)) {
        return false;
    }
    for (qint64 i = length - endSize; i >= 0; --i) {
        const char* const record = tail.constData() + i;
        if (*record == 'P' && at<quint32>(record, 0) == endSignature && accept(start + i, record)) {
            rewind();
            return true;
        }
    }
    return false;
}

bool ZipDirectory::accept(qint64 endRecord, const char* record)
{
    m_count = at<quint16>(record, 10);
    if (readZip64(endRecord)) {
        return true;
    }
    m_zip64 = false;
    return placeDirectory(endRecord, at<quint32>(record, 12), at<quint32>(record, 16));
}

bool ZipDirectory::readZip64(qint64 endRecord)
{
    char locator[zip64LocatorSize];
    char end[zip64EndSize];
    const qint64 locatorPosition = endRecord - zip64LocatorSize;
    if (!m_file.read(locatorPosition, locator, zip64LocatorSize) ||
        at<quint32>(locator, 0) != zip64LocatorSignature) {
        return false;
    }
    // Behind a program the stored position is too small; without extensions the record precedes the locator.
    for (const qint64 position : {at<qint64>(locator, 8), locatorPosition - zip64EndSize}) {
        if (m_file.read(position, end, zip64EndSize) && at<quint32>(end, 0) == zip64EndSignature) {
            m_zip64 = true;
            m_count = at<quint64>(end, 32);
            return placeDirectory(position, at<qint64>(end, 40), at<qint64>(end, 48));
        }
    }
    return false;
}

bool ZipDirectory::placeDirectory(qint64 endRecord, qint64 size, qint64 offset)
{
    if (size < 0 || offset < 0 || size > endRecord || offset > endRecord - size) {
        return false;
    }
    m_end = endRecord;
    m_begin = endRecord - size;
    m_shift = m_begin - offset;
    char signature[4];
    m_wrapped = !m_zip64 && m_shift >= wrap && m_shift % wrap == 0 && m_file.read(0, signature, 4) &&
                at<quint32>(signature, 0) == localSignature;
    if (m_wrapped) {
        m_shift = 0;
    }
    return size == 0 || (m_file.read(m_begin, signature, 4) && at<quint32>(signature, 0) == entrySignature);
}

void ZipDirectory::rewind()
{
    m_position = m_begin;
    m_seen = 0;
    m_lastOffset = -1;
}

/// Bytes of the directory, which stay valid until the next call.
const char* ZipDirectory::bytes(qint64 position, qint64 length)
{
    if (length > m_end - position) {
        return nullptr;
    }
    if (position < m_blockStart || position + length > m_blockStart + m_block.size()) {
        m_block.resize(static_cast<int>(std::min(blockSize, m_end - position)));
        m_blockStart = position;
        if (!m_file.read(position, m_block.data(), m_block.size())) {
            m_block.clear();
            return nullptr;
        }
    }
    return m_block.constData() + (position - m_blockStart);
}

std::optional<DirectoryEntry> ZipDirectory::next()
{
    const char* header = bytes(m_position, entrySize);
    if (!header || at<quint32>(header, 0) != entrySignature) {
        return std::nullopt;
    }
    const auto nameLength = at<quint16>(header, 28);
    const auto extraLength = at<quint16>(header, 30);
    const qint64 length = entrySize + nameLength + extraLength + at<quint16>(header, 32);
    header = bytes(m_position, length);
    if (!header) {
        return std::nullopt;
    }
    DirectoryEntry entry;
    entry.flags = at<quint16>(header, 8);
    entry.method = at<quint16>(header, 10);
    entry.dosTime = at<quint16>(header, 12);
    entry.dosDate = at<quint16>(header, 14);
    entry.checksum = at<quint32>(header, 16);
    entry.mode = at<quint16>(header, 40);
    entry.name = QByteArray(header + entrySize, nameLength);
    entry.extra = QByteArray(header + entrySize + nameLength, extraLength);
    const QByteArray large = extraField(entry.extra, zip64Field);
    int offset = 0;
    if (!takeLong(at<quint32>(header, 24), entry.size, large, offset) ||
        !takeLong(at<quint32>(header, 20), entry.packedSize, large, offset) ||
        !takeLong(at<quint32>(header, 42), entry.offset, large, offset)) {
        entry.size = entry.packedSize = 0;
        entry.offset = m_file.size(); // nothing can be there
    }
    entry.offset = std::min(entry.offset, m_file.size());
    entry.offset = m_wrapped ? unwrapped(entry) : entry.offset + m_shift;
    m_lastOffset = std::max(m_lastOffset, entry.offset);
    m_position += length;
    ++m_seen;
    return entry;
}

/// The first local header behind the previous one that may be meant.
qint64 ZipDirectory::unwrapped(const DirectoryEntry& entry) const
{
    for (qint64 position = entry.offset; position < m_begin; position += wrap) {
        DirectoryEntry candidate = entry;
        candidate.offset = position;
        if (position > m_lastOffset && contentPosition(candidate) >= 0) {
            return position;
        }
    }
    return entry.offset;
}

bool ZipDirectory::isComplete() const
{
    const bool countFits = m_zip64 ? m_seen == m_count : (m_seen & 0xFFFF) == m_count;
    return countFits && m_position == m_end;
}

qint64 ZipDirectory::contentPosition(const DirectoryEntry& entry) const
{
    char header[localSize];
    if (entry.offset > m_begin - localSize || !m_file.read(entry.offset, header, localSize) ||
        at<quint32>(header, 0) != localSignature || at<quint16>(header, 8) != entry.method ||
        at<quint16>(header, 26) != entry.name.size()) {
        return -1;
    }
    const auto packedSize = at<quint32>(header, 18);
    const auto size = at<quint32>(header, 22);
    const bool sizesFit =
        (packedSize == inExtraField || packedSize == static_cast<quint32>(entry.packedSize)) &&
        (size == inExtraField || size == static_cast<quint32>(entry.size));
    if (!entry.hasLaterSizes() && (!sizesFit || at<quint32>(header, 14) != entry.checksum)) {
        return -1;
    }
    const qint64 content = entry.offset + localSize + entry.name.size() + at<quint16>(header, 28);
    return content <= m_begin ? content : -1;
}

} // namespace TOLVAN_NAMESPACE
