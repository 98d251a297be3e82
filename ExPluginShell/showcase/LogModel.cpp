#include "LogModel.h"

#include <QColor>

namespace
{

constexpr int mostRows = 2000;

int rankOf(char level)
{
    return QByteArray("DIWE").indexOf(level);
}

QColor colourOf(char level)
{
    const QColor colours[] = {{0xA9, 0xAE, 0xB5}, {0x7F, 0xD9, 0xE8}, {0xF2, 0xB4, 0x4C}, {0xF0, 0x70, 0x6A}};
    return colours[qMax(0, rankOf(level))];
}

} // namespace

LogModel::LogModel(QObject* parent)
    : QAbstractTableModel(parent)
{
    setMinimumLevel(m_minimum);
    connect(&LiveLog::instance(), &LiveLog::lineAdded, this, &LogModel::append);
}

void LogModel::setMinimumLevel(char level)
{
    beginResetModel();
    m_minimum = level;
    m_lines.clear();
    for (const LogLine& line : LiveLog::instance().lines()) {
        if (rankOf(line.level) >= rankOf(level)) {
            m_lines += line;
        }
    }
    endResetModel();
}

void LogModel::append(const LogLine& line)
{
    if (rankOf(line.level) < rankOf(m_minimum)) {
        return;
    }
    if (m_lines.size() == mostRows) {
        beginRemoveRows({}, 0, 0);
        m_lines.removeFirst();
        endRemoveRows();
    }
    beginInsertRows({}, m_lines.size(), m_lines.size());
    m_lines += line;
    endInsertRows();
}

void LogModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_lines.isEmpty()) {
        Q_EMIT dataChanged(index(0, Level), index(m_lines.size() - 1, Level));
    }
}

QString LogModel::levelName(char level)
{
    const QString names[] = {tr("Debug"), tr("Information"), tr("Warning"), tr("Error")};
    return names[qMax(0, rankOf(level))];
}

int LogModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_lines.size();
}

QVariant LogModel::data(const QModelIndex& index, int role) const
{
    const LogLine& line = m_lines.at(index.row());
    if (role == Qt::ForegroundRole && index.column() == Level) {
        return colourOf(line.level);
    }
    if (role == Qt::ToolTipRole) {
        return line.function.isEmpty() ? line.text : line.function + QStringLiteral(":\n") + line.text;
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    const QString cells[] = {line.time.toString(QStringLiteral("HH:mm:ss.zzz")), levelName(line.level),
                             line.function, line.text};
    return cells[index.column()];
}

QVariant LogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    const QString names[] = {tr("Time"), tr("Level"), tr("Function"), tr("Text")};
    return names[section];
}
