#pragma once

#include "FileTree.h"
#include "TestMain.h"
#include "Texts.h"

#include <QObject>
#include <QTemporaryDir>

#include <memory>

/// Base of tests that work on files, with what they need: each function begins with an empty folder of its own.
class FolderTest : public QObject
{
    Q_OBJECT

protected:
    QString folder() const { return m_folder->path(); }
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QString path(const char* name) const { return path(QString::fromUtf8(name)); }

    static void permit(const QString& path, int permissions)
    {
        QVERIFY(QFile::setPermissions(path, QFile::Permissions(permissions)));
    }

protected Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};
