#pragma once

#include <QString>
#include <QThread>

/// Packs or unpacks a whole folder in a thread of its own. Cancelled with requestInterruption().
class FileWork : public QThread
{
    Q_OBJECT

public:
    enum Kind {
        Pack,   ///< from a folder to an archive
        Unpack, ///< from an archive to a folder
    };

    FileWork(Kind kind, const QString& from, const QString& to, QObject* parent = nullptr);
    ~FileWork() override;

    /// Whether the work was done; known when the thread has finished.
    bool succeeded() const { return m_succeeded; }
    /// Files in the folder; known when the thread has finished.
    int fileCount() const { return m_fileCount; }

    /// A folder that is there on every system: where the program lies, without the large libraries.
    static QString sampleFolder();
    /// The first file below \a a whose content is not the same below \a b; empty when the trees are equal.
    static QString firstDifference(const QString& a, const QString& b);

Q_SIGNALS:
    void progress(int percent);

protected:
    void run() override;

private Q_SLOTS:
    void onProgressed(qint64 bytes, qint64 total);

private:
    const Kind m_kind;
    const QString m_from;
    const QString m_to;
    bool m_succeeded = false;
    int m_fileCount = 0;
};
