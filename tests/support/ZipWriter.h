#pragma once

#include <QByteArray>
#include <QVector>

/// An archive entry that a test describes, right or wrong in any field.
struct ZipEntry {
    QByteArray name;
    QByteArray content;
    int method = 8;         ///< 8 deflates the content, anything else stores it
    quint32 mode = 0100644; ///< Unix file type and permissions
    quint16 flags = 0;
    QByteArray comment = {};
    QByteArray extra = {};    ///< extra fields of the directory
    QByteArray packed = {};   ///< replaces the packed content
    qint64 declaredSize = -1; ///< replaces the size of the content
    qint64 localSize = -1;    ///< replaces the size in the local header alone
    qint64 checksum = -1;     ///< replaces the CRC-32
};

/// Bytes of an archive with these entries.
QByteArray zipOf(const QVector<ZipEntry>& entries, const QByteArray& comment = {});

/// Raw deflated data, without a header of its own.
QByteArray deflated(const QByteArray& content);

/// An entry of zeros, packed a thousand times smaller. \param size a multiple of 1 MiB; more than 4 GiB needs
/// and gets the ZIP64 field
ZipEntry zerosEntry(const QByteArray& name, qint64 size);
