#pragma once

#include <QObject>
#include <QTemporaryDir>

#include <memory>

/// Base of tests that work on files: each function begins with an empty folder of its own.
class FolderTest : public QObject
{
    Q_OBJECT

protected:
    QString folder() const { return m_folder->path(); }
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QString path(const char* name) const { return path(QString::fromUtf8(name)); }

protected Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};
