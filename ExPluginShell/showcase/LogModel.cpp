#include "LogModel.h"

#include <QColor>

#include <algorithm>

namespace
{

constexpr int mostRows = 2000;

QColor colourOf(char level)
{
    const QColor colours[] = {{0xA9, 0xAE, 0xB5}, {0x7F, 0xD9, 0xE8}, {0xF2, 0xB4, 0x4C}, {0xF0, 0x70, 0x6A}};
    return colours[LogModel::rankOf(level)];
}

} // namespace

LogModel::LogModel()
{
    connect(&LiveLog::instance(), &LiveLog::lineAdded, this, &LogModel::append);
}

LogModel& LogModel::instance()
{
    static LogModel model;
    return model;
}

void LogModel::append(const LogLine& line)
{
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

QStringList LogModel::levelNames()
{
    return {tr("Debug"), tr("Information"), tr("Warning"), tr("Error")};
}

int LogModel::rankOf(char level)
{
    return int(std::find(std::begin(levels), std::end(levels), level) - levels) % 4;
}

int LogModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_lines.size();
}

QVariant LogModel::data(const QModelIndex& index, int role) const
{
    const LogLine& line = m_lines.at(index.row());
    if (role == RankRole) {
        return rankOf(line.level);
    }
    if (role == Qt::ForegroundRole && index.column() == Level) {
        return colourOf(line.level);
    }
    if (role == Qt::ToolTipRole) {
        return line.function.isEmpty() ? line.text : line.function + QStringLiteral(":\n") + line.text;
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    const QString cells[] = {line.time.toString(QStringLiteral("HH:mm:ss.zzz")),
                             levelNames().at(rankOf(line.level)), line.function, line.text};
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
