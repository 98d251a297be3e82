#pragma once

#include "platform/FileReplacement.h"

#include <QByteArray>
#include <QIODevice>
#include <QString>

namespace TOLVAN_NAMESPACE
{

/// The file that a new archive is written to. It replaces the target whole, in commit(); without that the target
/// stays as it was. Internal.
///
/// Writes are collected in a large block, in which the headers of small entries are completed as well: that
/// saves most calls of the system.
class ArchiveTarget : public QIODevice
{
public:
    explicit ArchiveTarget(const QString& path);

    bool begin();
    /// \return whether the archive is complete and in its place
    bool commit();

    bool isSequential() const override { return false; }
    qint64 size() const override { return m_blockStart + m_block.size(); }
    bool seek(qint64 position) override;

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* data, qint64 length) override;

private:
    bool flushBlock();

    Platform::FileReplacement m_file;
    QByteArray m_block;
    qint64 m_blockStart = 0; ///< position of the block in the file
};

} // namespace TOLVAN_NAMESPACE
