#pragma once

#include "LiveLog.h"

#include <QAbstractTableModel>

/// The lines of LiveLog from a level on: time, level, function, text.
class LogModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Time, Level, Function, Text, ColumnCount };

    explicit LogModel(QObject* parent);

    /// Shows the lines of \a level and of those above it. \param level a letter of LogLevel
    void setMinimumLevel(char level);
    /// Renews the words for the levels and the headings.
    void retranslate();
    /// The word for a level.
    static QString levelName(char level);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex&) const override { return ColumnCount; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void append(const LogLine& line);

    QVector<LogLine> m_lines;
    char m_minimum = 'D';
};
