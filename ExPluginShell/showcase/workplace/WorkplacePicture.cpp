#include "Canvas.h"
#include "ToolPanel.h"
#include "Workplace.h"

#include <utilsDll/GuiUtils.h>

#include <QLabel>
#include <QLocale>
#include <QToolButton>

using namespace TOLVAN_NAMESPACE;

namespace
{

bool goOn(double)
{
    return true;
}

} // namespace

void Workplace::replay()
{
    m_original = m_photo.small.scaled(m_canvas->pictureSize(m_photo.size), Qt::IgnoreAspectRatio,
                                      Qt::SmoothTransformation);
    renewBase();
    showPicture();
}

void Workplace::renewBase()
{
    m_result = {};
    m_base = m_original;
    const auto all = steps();
    for (const Step& step : all) {
        m_base = corrected(m_base, step, goOn);
    }
    m_base =
        m_base.scaled(m_canvas->pictureSize(m_base.size()), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

void Workplace::showPicture()
{
    Step* const step = shownStep();
    const bool guided = step && step->tool != Tool::Distortion;
    if (step) {
        step->aspect = double(m_base.width()) / m_base.height();
    }
    const bool live = guided && step->tool == Tool::TiltShift; // shows its effect below its guides
    const bool previewed = guided && !live && m_preview->isChecked();
    QImage shown = live || previewed ? corrected(m_base, *step, goOn) : m_base;
    if (shown.size() != m_base.size()) { // cropped
        shown = shown.scaled(m_canvas->pictureSize(shown.size()), Qt::IgnoreAspectRatio,
                             Qt::SmoothTransformation);
    }
    m_canvas->setPicture(shown);
    m_canvas->setStep(guided && !previewed ? step : nullptr);
    m_canvas->setBefore(m_compare->isChecked() ? m_original : QImage());
    m_panel->showStep(step, m_photo.size);
}

void Workplace::setComparing(bool on)
{
    if (on) {
        double difference = 0.0;
        const QImage after = m_base.scaled(m_original.size());
        const bool similar =
            compareImages(m_original, after, difference, differenceThreshold) == imgCmpSimilar;
        say(m_answer, [=] {
            return (similar ? tr("Before and after are alike.") : tr("Before and after differ.")) +
                   QStringLiteral("\n") + tr("Measure: %1").arg(QLocale().toString(difference, 'g', 3));
        });
    }
    showPicture();
}
