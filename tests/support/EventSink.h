#pragma once

#include <QEvent>
#include <QVector>
#include <QWidget>

/// A widget that takes every event and notes its type.
class EventSink : public QWidget
{
public:
    EventSink()
    {
        setMouseTracking(true);
        setAcceptDrops(true);
    }
    /// How many of a type came since the last call.
    int take(QEvent::Type type)
    {
        const int count = got.count(type);
        got.clear();
        return count;
    }

    QVector<int> got;

protected:
    bool event(QEvent* event) override
    {
        got += event->type();
        return true;
    }
};
