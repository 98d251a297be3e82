#include "ArchiveSource.h"

#include <algorithm>
#include <cstring>

namespace TOLVAN_NAMESPACE
{

namespace
{
constexpr qint64 blockSize = 64 * 1024;
} // namespace

ArchiveSource::ArchiveSource(const QString& path)
    : m_file(path)
{
}

bool ArchiveSource::open(OpenMode mode)
{
    // What is no plain file has no end to begin reading from.
    if (mode != QIODevice::ReadOnly || !m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ||
        m_file.isSequential()) {
        return false;
    }
    m_size = m_file.size();
    return QIODevice::open(mode | QIODevice::Unbuffered);
}

const ArchiveSource::Block* ArchiveSource::block(qint64 number)
{
    Block* oldest = &m_blocks.front();
    for (Block& candidate : m_blocks) {
        if (candidate.number == number) {
            candidate.lastUse = ++m_uses;
            return &candidate;
        }
        if (candidate.lastUse < oldest->lastUse) {
            oldest = &candidate;
        }
    }
    oldest->number = -1;
    oldest->bytes.resize(static_cast<int>(std::min(blockSize, m_size - number * blockSize)));
    if (!m_file.seek(number * blockSize) ||
        m_file.read(oldest->bytes.data(), oldest->bytes.size()) != oldest->bytes.size()) {
        return nullptr;
    }
    oldest->number = number;
    oldest->lastUse = ++m_uses;
    return oldest;
}

qint64 ArchiveSource::readData(char* data, qint64 length)
{
    qint64 done = 0;
    while (done < length && pos() + done < m_size) {
        const qint64 position = pos() + done;
        const Block* const from = block(position / blockSize);
        if (!from) {
            return done > 0 ? done : -1;
        }
        const qint64 offset = position % blockSize;
        const qint64 part = std::min(length - done, from->bytes.size() - offset);
        std::memcpy(data + done, from->bytes.constData() + offset, static_cast<std::size_t>(part));
        done += part;
    }
    return done;
}

} // namespace TOLVAN_NAMESPACE
