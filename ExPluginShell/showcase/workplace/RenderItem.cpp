#include "RenderItem.h"

RenderItem::RenderItem(std::function<QImage()> picture, QVector<Step> steps)
    : m_picture(std::move(picture))
    , m_steps(std::move(steps))
{
    setAutoDelete(false); // its owner asks for the result
}

//! [code]
bool RenderItem::doRun()
{
    QImage picture = m_picture();
    for (int i = 0; i < m_steps.size() && !picture.isNull(); ++i) {
        picture = corrected(picture, m_steps.at(i), [&](double part) {
            Q_EMIT progress(int((i + part) * 100 / m_steps.size()));
            return !stopRequired();
        });
    }
    if (stopRequired() || picture.isNull()) {
        return false;
    }
    m_result = picture;
    Q_EMIT progress(100);
    return true;
}
//! [code]
