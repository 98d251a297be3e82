#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/// Files and folders below a folder, for comparing trees in one line.
namespace FileTree
{

/// Writes a file, with all missing folders above it. \return its path
QString write(const QString& path, const QByteArray& content = "content");

/// Content of a file; null when it can't be read.
QByteArray read(const QString& path);

/// Relative path to content; a folder is "name/" with the content "folder", a link "-> target".
QMap<QString, QByteArray> of(const QString& folder);

} // namespace FileTree
