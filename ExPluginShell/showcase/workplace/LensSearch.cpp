#include "LensSearch.h"

namespace
{

constexpr int mostShown = 100;

} // namespace

LensSearch::LensSearch(QObject* parent)
    : QObject(parent)
    , m_table(std::make_shared<LensTable>())
{
    qRegisterMetaType<QVector<Lens>>();
    m_pool.setMaxThreadCount(1);
    m_pool.setExpiryTimeout(-1);
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
        QVector<Lens> lenses;
        if (m_table->count() == 0 && !m_table->open().isEmpty()) {
            Q_EMIT found(lenses, -1);
            return;
        }
        const QVector<int> rows = m_table->rowsWith(text);
        for (const int row : rows.mid(0, mostShown)) {
            lenses += m_table->at(row);
        }
        Q_EMIT found(lenses, rows.size());
    });
}
