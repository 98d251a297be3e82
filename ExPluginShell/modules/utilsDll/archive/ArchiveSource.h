#pragma once

#include <QByteArray>
#include <QFile>
#include <QIODevice>
#include <QString>

#include <array>

namespace TOLVAN_NAMESPACE
{

/// The file that an archive is read from. Reading an archive goes back and forth between its directory and
/// its entries, often byte by byte: a few blocks of the file are kept in memory for that. Internal.
class ArchiveSource : public QIODevice
{
public:
    explicit ArchiveSource(const QString& path);

    bool open(OpenMode mode) override;
    bool isSequential() const override { return false; }
    qint64 size() const override { return m_size; }

protected:
    qint64 readData(char* data, qint64 length) override;
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    struct Block {
        qint64 number = -1;
        quint64 lastUse = 0;
        QByteArray bytes;
    };
    const Block* block(qint64 number);

    QFile m_file;
    qint64 m_size = 0;
    quint64 m_uses = 0;
    std::array<Block, 4> m_blocks;
};

} // namespace TOLVAN_NAMESPACE
