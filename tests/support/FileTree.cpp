#include "FileTree.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace FileTree
{

QString write(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("test file %s can't be written", qPrintable(path));
    }
    return path;
}

QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList filesBelow(const QString& folder)
{
    QStringList files;
    QDirIterator walk(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        files += walk.next();
    }
    files.sort();
    return files;
}

QMap<QString, QByteArray> of(const QString& folder)
{
    QMap<QString, QByteArray> tree;
    const QDir root(folder);
    QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        const QString name = root.relativeFilePath(path);
        if (walk.fileInfo().isSymLink()) {
            const auto target = std::filesystem::read_symlink(path.toStdU16String()).u8string();
            tree[name] = "-> " + QByteArray::fromStdString(target);
        } else if (walk.fileInfo().isDir()) {
            tree[name + QLatin1Char('/')] = "folder";
        } else {
            tree[name] = read(path);
        }
    }
    return tree;
}

} // namespace FileTree
