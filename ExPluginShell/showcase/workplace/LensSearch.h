#pragma once

#include "LensTable.h"

#include <QObject>
#include <QThreadPool>

#include <memory>

/// Looks for lenses in a thread of its own, one question at a time: a newer one replaces those that wait.
class LensSearch : public QObject
{
    Q_OBJECT

public:
    explicit LensSearch(QObject* parent);
    ~LensSearch() override;

    /// Asks for the lenses whose name contains every word of \a text; the answer is found().
    void ask(const QString& text);

Q_SIGNALS:
    /// \param lenses the first hundred
    /// \param total  how many there are, -1 if the database cannot be read
    void found(const QVector<Lens>& lenses, int total);

private:
    const std::shared_ptr<LensTable> m_table;
    QThreadPool m_pool;
    QAtomicInt m_latest{0};
};

Q_DECLARE_METATYPE(QVector<Lens>)
