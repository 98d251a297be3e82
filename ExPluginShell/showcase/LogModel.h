#pragma once

#include "LiveLog.h"

#include <QAbstractTableModel>
#include <QVector>

/// The last lines of LiveLog: time, level, function, text.
class LogModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Time, Level, Function, Text, ColumnCount };
    static constexpr int RankRole = Qt::UserRole; ///< the place of a line's level among the levels

    /// The letters of the levels, in rising order, and how the user reads them.
    static constexpr char levels[] = {LogLevel::Debug, LogLevel::Information, LogLevel::Warning,
                                      LogLevel::Error};
    static QStringList levelNames();
    /// The place of a level among them, 0 for an unknown or empty one.
    static int rankOf(char level);
    static int rankOf(const QString& level) { return level.isEmpty() ? 0 : rankOf(level.at(0).toLatin1()); }

    /// The lines since it was first asked for.
    static LogModel& instance();

    /// Renews the words for the levels and the headings.
    void retranslate();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex&) const override { return ColumnCount; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    LogModel();
    void append(const LogLine& line);

    QVector<LogLine> m_lines;
};
