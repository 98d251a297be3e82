#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QSaveFile>
#include <QString>

namespace TOLVAN_NAMESPACE
{

/// The file that a new archive is written to: a temporary one that commit() puts in the place of the target.
/// Where the folder refuses it, the target itself. Without commit() there is no archive afterwards.
///
/// Writes are collected in a large block, in which the headers of small entries are completed as well: that
/// saves most calls of the system. Internal.
class ArchiveTarget : public QIODevice
{
public:
    explicit ArchiveTarget(const QString& path);
    ~ArchiveTarget() override;

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

    QSaveFile m_file;
    QByteArray m_block;
    qint64 m_blockStart = 0; ///< position of the block in the file
    bool m_direct = false;
    bool m_committed = false;
};

} // namespace TOLVAN_NAMESPACE
