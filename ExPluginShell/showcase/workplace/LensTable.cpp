#include "LensTable.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>

namespace
{

constexpr int pageSize = 4096;
constexpr int idColumn = 1, nameColumn = 3;
constexpr int fileHeader = 100; // before the first page's own header

/// The number that \a at points to, whose bytes have seven bits each; \a at is moved behind it.
quint64 readNumber(const uchar*& at)
{
    quint64 number = *at & 0x7F;
    while (*at++ & 0x80) {
        number = number << 7 | (*at & 0x7F);
    }
    return number;
}

/// The columns of a record: the types stand before the values.
class Record
{
public:
    explicit Record(const uchar* record)
        : m_type(record)
        , m_value(record)
    {
        m_value += readNumber(m_type);
    }

    /// The bytes of the column that is \a ahead of the next one.
    QByteArray column(int ahead = 0)
    {
        constexpr int lengths[] = {0, 1, 2, 3, 4, 6, 8, 8, 0, 0}; // of numbers
        QByteArray bytes;
        for (int i = 0; i <= ahead; ++i) {
            const quint64 type = readNumber(m_type);
            const int length = type < 10 ? lengths[type] : int(type - 12) / 2;
            bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(m_value), length);
            m_value += length;
        }
        return bytes;
    }

private:
    const uchar* m_type;
    const uchar* m_value;
};

} // namespace

/// Reads the leaves of a table's tree, from its page \a number on.
void LensTable::readPage(quint32 number)
{
    constexpr uchar branch = 5, leaf = 13;
    const uchar* const page = reinterpret_cast<const uchar*>(m_bytes.constData()) + (number - 1) * pageSize;
    const uchar* const header = page + (number == 1 ? fileHeader : 0);
    const int cells = qFromBigEndian<quint16>(header + 3);
    for (int i = 0; i < cells; ++i) {
        const bool inside = *header == branch;
        const uchar* cell = page + qFromBigEndian<quint16>(header + (inside ? 12 : 8) + 2 * i);
        if (inside) {
            readPage(qFromBigEndian<quint32>(cell));
        } else if (*header == leaf) {
            readNumber(cell); // its length
            readNumber(cell); // its row
            m_records += cell;
        }
    }
    if (*header == branch) {
        readPage(qFromBigEndian<quint32>(header + 8));
    }
}

//! [code]
bool LensTable::open()
{
    QFile file(QStringLiteral(":/calibration/db/CAFList5.db"));
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const auto* const bytes = reinterpret_cast<const char*>(file.map(0, file.size()));
    m_bytes = QByteArray::fromRawData(bytes, int(file.size())); // stays mapped while the library is loaded
    readPage(1);                                                // the list of tables and indexes
    const auto root = std::find_if(m_records.begin(), m_records.end(), [](const uchar* entry) {
        Record table(entry); // type, name, table, first page, text
        return table.column() == "table" && table.column() == "Module";
    });
    //! [code]
    if (root == m_records.end()) {
        return false;
    }
    const quint32 first = Record(*root).column(3).toHex().toUInt(nullptr, 16);
    m_records.clear();
    readPage(first);
    for (const uchar* const entry : qAsConst(m_records)) {
        m_names += Record(entry).column(nameColumn).toLower() + '\n';
        m_ends += m_names.size();
    }
    return !m_ends.isEmpty();
}

QVector<int> LensTable::rowsWith(const QString& text) const
{
    const QList<QByteArray> words = text.toLower().simplified().toUtf8().split(' ');
    const auto longest = std::max_element(words.begin(), words.end(),
                                          [](const auto& a, const auto& b) { return a.size() < b.size(); });
    QVector<int> rows;
    int row = 0;
    for (int from = m_names.indexOf(*longest); from >= 0 && !longest->isEmpty();
         from = m_names.indexOf(*longest, from)) {
        while (m_ends.at(row) <= from) {
            ++row;
        }
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
    return {QString::fromUtf8(Record(m_records.at(row)).column(idColumn)),
            QString::fromUtf8(Record(m_records.at(row)).column(nameColumn))};
}
