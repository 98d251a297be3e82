#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

/// One calibration module: a camera body with a lens at a range of focal lengths.
struct Lens {
    QString id;   ///< for example "C24560b_001"
    QString name; ///< body, lens and range
};

/// The table "Module" of the calibration database, read where it lies in the library.
///
/// The database is written by the library's own build and never changes while the program runs, so that its pages
/// can be read in their order: https://www.sqlite.org/fileformat2.html. No database engine reads it, because the Qt that
/// the Windows build uses has no SQL, and Qt's engine would need a copy of the file on disk. All functions belong to one
/// thread, which need not be the main one.
class LensTable
{
public:
    /// Finds the rows and reads their names. \return false if the database cannot be read
    bool open();
    int count() const { return m_ends.size(); }
    /// The rows whose name contains every word of \a text, in the order of the table.
    QVector<int> rowsWith(const QString& text) const;
    Lens at(int row) const;

private:
    void readPage(quint32 number);

    QByteArray m_bytes; ///< of the whole file, not copied
    QVector<const uchar*> m_records;
    QByteArray m_names; ///< all names in lower case, each with a line feed at its end
    QVector<int> m_ends;
};
