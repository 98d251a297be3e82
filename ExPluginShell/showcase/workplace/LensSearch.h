#pragma once

#include "LensTable.h"

#include <QObject>
#include <QThreadPool>

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
    LensTable m_table; ///< used in the pool's thread only
    QThreadPool m_pool;
    QAtomicInt m_latest{0};
};

Q_DECLARE_METATYPE(QVector<Lens>)
