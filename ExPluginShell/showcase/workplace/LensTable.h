#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

struct sqlite3;

/// One calibration module: a camera body with a lens at a range of focal lengths.
struct Lens {
    QString id;                       ///< for example "C24560b_001"
    QString name;                     ///< body, lens and range
    double shortest = 0, longest = 0; ///< focal length in millimetres
    double widest = 0;                ///< smallest f-number
    bool rawOnly = false;
};

/// The calibration database, read where it lies in the library. All functions belong to one thread, which need
/// not be the main one.
class LensTable
{
public:
    LensTable() = default;
    ~LensTable();
    Q_DISABLE_COPY(LensTable)

    /// Opens the database and reads the names. \return an empty text, or what went wrong
    QString open();
    int count() const { return m_ends.size(); }
    /// The rows whose name contains every word of \a text, in the order of the table.
    QVector<int> rowsWith(const QString& text) const;
    Lens at(int row) const;

private:
    sqlite3* m_database = nullptr;
    QByteArray m_names; ///< all names in lower case, each with a line feed at its end
    QVector<int> m_ends;
};
