#include "LensSearch.h"

LensSearch::LensSearch(QObject* parent)
    : QObject(parent)
{
    qRegisterMetaType<QVector<Lens>>();
    m_pool.setMaxThreadCount(1);
    m_pool.setExpiryTimeout(-1);
    m_pool.start([this] { m_table.open(); }); // the first question need not wait for it
}

LensSearch::~LensSearch()
{
    m_latest.fetchAndAddOrdered(1);
    m_pool.waitForDone();
}

void LensSearch::ask(const QString& text)
{
    const int number = m_latest.fetchAndAddOrdered(1) + 1;
    m_pool.start([this, text, number] {
        if (number != m_latest.loadAcquire()) {
            return; // a newer question waits
        }
        constexpr int mostShown = 100;
        QVector<Lens> lenses;
        if (m_table.count() == 0) {
            Q_EMIT found(lenses, -1);
            return;
        }
        const QVector<int> rows = m_table.rowsWith(text);
        for (const int row : rows.mid(0, mostShown)) {
            lenses += m_table.at(row);
        }
        Q_EMIT found(lenses, rows.size());
    });
}
