#include "ArchiveTarget.h"

#include <cstring>

namespace TOLVAN_NAMESPACE
{

namespace
{
constexpr int blockSize = 1024 * 1024;
} // namespace

ArchiveTarget::ArchiveTarget(const QString& path)
    : m_file(path)
{
    m_block.reserve(blockSize);
}

bool ArchiveTarget::begin()
{
    return m_file.open(QIODevice::WriteOnly) && QIODevice::open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

bool ArchiveTarget::commit()
{
    return flushBlock() && m_file.commit();
}

bool ArchiveTarget::seek(qint64 position)
{
    return position <= size() && QIODevice::seek(position);
}

qint64 ArchiveTarget::writeData(const char* data, qint64 length)
{
    const qint64 position = pos();
    const bool inBlock = position >= m_blockStart && position + length <= m_blockStart + blockSize;
    if (!inBlock) {
        // An older header, or a full block: the collected bytes are written first.
        if (!flushBlock() || !m_file.seek(position)) {
            return -1;
        }
        if (position < m_blockStart) {
            const qint64 written = m_file.write(data, length);
            return m_file.seek(m_blockStart) ? written : -1;
        }
        m_blockStart = position;
    }
    const qint64 offset = position - m_blockStart;
    if (length > blockSize) {
        m_blockStart += length;
        return m_file.write(data, length);
    }
    const auto end = static_cast<int>(offset + length);
    if (m_block.size() < end) {
        m_block.resize(end);
    }
    std::memcpy(m_block.data() + offset, data, static_cast<std::size_t>(length));
    return length;
}

bool ArchiveTarget::flushBlock()
{
    const qint64 length = m_block.size();
    if (m_file.write(m_block) != length) {
        return false;
    }
    m_blockStart += length;
    m_block.resize(0);
    return true;
}

} // namespace TOLVAN_NAMESPACE
