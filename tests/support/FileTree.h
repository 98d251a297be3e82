#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

/// Files and folders below a folder, as a map that can be compared.
namespace FileTree
{

/// Writes a file and creates missing folders. \return its path
QString write(const QString& path, const QByteArray& content = "content");

/// Content of a file; null if it can't be read.
QByteArray read(const QString& path);

/// Paths of all files below a folder, sorted.
QStringList filesBelow(const QString& folder);

/// Relative path to content; a folder is "name/" with the content "folder", a link "-> target".
QMap<QString, QByteArray> of(const QString& folder);

} // namespace FileTree
