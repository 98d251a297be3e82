#include "RenderItem.h"

RenderItem::RenderItem(Source picture, QVector<Step> steps)
    : m_picture(std::move(picture))
    , m_steps(std::move(steps))
{
    setAutoDelete(false); // its owner asks for the result
}

//! [code]
bool RenderItem::doRun()
{
    const double parts = m_steps.size() + 1; // the first one is to get the picture
    const Progress whole = [this](double part) {
        Q_EMIT progress(int(part * 100));
        return !stopRequired();
    };
    QImage picture = m_picture(partOf(whole, 0, 1 / parts));
    for (int i = 0; i < m_steps.size() && !picture.isNull(); ++i) {
        picture = corrected(picture, m_steps.at(i), partOf(whole, (i + 1) / parts, 1 / parts));
    }
    if (stopRequired() || picture.isNull()) {
        return false;
    }
    m_result = picture;
    Q_EMIT progress(100);
    return true;
}
//! [code]
