#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

/// Short forms for tests with many texts.

/// A text of the product, from UTF-8.
inline QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

/// Content of a file, with the line ends "\n"; "(unreadable)" when it can't be read.
inline QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? file.readAll() : QByteArray("(unreadable)");
}
