#pragma once

#include <QEvent>
#include <QVector>
#include <QWidget>

/// A widget that accepts every event and records its type.
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
