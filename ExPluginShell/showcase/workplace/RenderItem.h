#pragma once

#include "Correction.h"

#include <utilsDll/RunnableItem.h>

/// Carries out steps on a picture of full size, on a thread pool, until it is stopped.
class RenderItem : public CQRunnableItem
{
    Q_OBJECT

public:
    /// Where the picture comes from; called in the thread of the work.
    using Source = std::function<QImage(const Progress&)>;

    RenderItem(Source picture, QVector<Step> steps);

    /// The corrected picture; known when the work has finished, null if it was stopped.
    QImage result() const { return m_result; }

    bool doRun() override;

Q_SIGNALS:
    void progress(int percent);

private:
    const Source m_picture;
    const QVector<Step> m_steps;
    QImage m_result;
};
