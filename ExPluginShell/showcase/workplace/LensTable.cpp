#include "LensTable.h"

#include <QFile>

#include <sqlite3.h>

#include <algorithm>

namespace
{

/// A statement that is finalised at the end of its life.
class Query
{
public:
    Query(sqlite3* database, const char* text)
    {
        sqlite3_prepare_v2(database, text, -1, &m_statement, nullptr);
    }
    ~Query() { sqlite3_finalize(m_statement); }
    Q_DISABLE_COPY(Query)

    bool next() { return sqlite3_step(m_statement) == SQLITE_ROW; }
    void bind(int value) { sqlite3_bind_int(m_statement, 1, value); }
    double number(int column) const { return sqlite3_column_double(m_statement, column); }
    QByteArray text(int column) const
    {
        return QByteArray(reinterpret_cast<const char*>(sqlite3_column_text(m_statement, column)),
                          sqlite3_column_bytes(m_statement, column));
    }

private:
    sqlite3_stmt* m_statement = nullptr;
};

} // namespace

LensTable::~LensTable()
{
    sqlite3_close(m_database);
}

//! [code]
QString LensTable::open()
{
    QFile file(QStringLiteral(":/calibration/db/CAFList5.db"));
    if (!file.open(QIODevice::ReadOnly)) {
        return file.errorString();
    }
    auto* const bytes = file.map(0, file.size()); // stays mapped as long as the library is loaded
    if (!bytes || sqlite3_open(":memory:", &m_database) != SQLITE_OK ||
        sqlite3_deserialize(m_database, "main", bytes, file.size(), file.size(),
                            SQLITE_DESERIALIZE_READONLY) != SQLITE_OK) {
        return QString::fromUtf8(sqlite3_errmsg(m_database));
    }
    Query names(m_database, "SELECT name FROM Module ORDER BY id");
    while (names.next()) {
        m_names += names.text(0).toLower() + '\n';
        m_ends += m_names.size();
    }
    //! [code]
    return m_ends.isEmpty() ? QString::fromUtf8(sqlite3_errmsg(m_database)) : QString();
}

QVector<int> LensTable::rowsWith(const QString& text) const
{
    const QList<QByteArray> words = text.toLower().simplified().toUtf8().split(' ');
    const auto longest = std::max_element(words.begin(), words.end(),
                                          [](const auto& a, const auto& b) { return a.size() < b.size(); });
    QVector<int> rows;
    for (int from = m_names.indexOf(*longest); from >= 0 && !longest->isEmpty();
         from = m_names.indexOf(*longest, from)) {
        const int row = int(std::upper_bound(m_ends.begin(), m_ends.end(), from) - m_ends.begin());
        const int begin = row > 0 ? m_ends.at(row - 1) : 0;
        const QByteArray name = QByteArray::fromRawData(m_names.constData() + begin, m_ends.at(row) - begin);
        if (std::all_of(words.begin(), words.end(), [&](const auto& word) { return name.contains(word); })) {
            rows += row;
        }
        from = m_ends.at(row);
    }
    return rows;
}

Lens LensTable::at(int row) const
{
    Query query(m_database, "SELECT cid, name, fmin, fmax, amin, raw_only FROM Module WHERE id = ?");
    query.bind(row + 1);
    if (!query.next()) {
        return {};
    }
    return {QString::fromUtf8(query.text(0)),
            QString::fromUtf8(query.text(1)),
            query.number(2),
            query.number(3),
            query.number(4),
            query.number(5) != 0};
}
