#include "Canvas.h"
#include "RenderItem.h"
#include "ToolPanel.h"
#include "Workplace.h"

#include <utilsDll/ArchiveJob.h>
#include <utilsDll/FileManagement.h>
#include <utilsDll/GuiUtils.h>
#include <utilsDll/MessageBox.h>
#include <utilsDll/NativeDialogs.h>
#include <utilsDll/Settings.h>

using namespace TOLVAN_NAMESPACE;

namespace
{

constexpr int boxHeight = 165;
const QString presetsKey = QStringLiteral("showcase/presets");

/// Writes a picture to a file.
class SaveItem : public CQRunnableItem
{
public:
    SaveItem(QImage picture, QString path)
        : m_picture(std::move(picture))
        , m_path(std::move(path))
    {
        setAutoDelete(false);
    }
    bool doRun() override
    {
        QImageWriter writer(m_path);
        writer.setQuality(92);
        const bool written = writer.write(m_picture);
        error = writer.errorString();
        return written;
    }
    QString error;

private:
    const QImage m_picture;
    const QString m_path;
};

CNativeDialogs& dialogs()
{
    return Singleton<CNativeDialogs>::instance();
}

} // namespace

void Workplace::open()
{
    const QString path = dialogs().getOpenFileName(this, tr("Open a photo"), QDir::homePath(),
                                                   tr("Pictures (*.jpg *.jpeg *.png *.bmp)"), nullptr, {});
    if (path.isEmpty()) {
        return;
    }
    QString error;
    const Photo photo = Photo::fromFile(path, &error);
    if (photo.small.isNull()) {
        CMessageBox::critical(this, tr("%1 cannot be read: %2").arg(QFileInfo(path).fileName(), error),
                              boxHeight);
        return;
    }
    setPhoto(photo);
}

//! [code]
CProgressBox::Result Workplace::run(CQRunnableItem& item, const QString& title)
{
    CProgressBox box(title, window());
    if (auto* const render = qobject_cast<RenderItem*>(&item)) {
        connect(render, &RenderItem::progress, &box, [&box](int percent) { box.setProgress(percent, 100); });
    }
    return box.run(item);
}
//! [code]

void Workplace::apply()
{
    const Step* const current = shownStep();
    if (current && current->tool != Tool::Distortion) { // what was begun is accepted first
        perform(moduleOf(current->tool), QStringLiteral("CorrectionApplyed"));
    }
    RenderItem item(m_photo.full, steps());
    QElapsedTimer timer;
    timer.start();
    const CProgressBox::Result outcome = run(item, tr("Applying the corrections"));
    if (outcome != CProgressBox::Succeeded) {
        answer([stopped = outcome == CProgressBox::Stopped, name = m_photo.name] {
            return stopped ? tr("Stopped. The picture is unchanged.")
                           : tr("%1 cannot be read any more.").arg(name);
        });
        return;
    }
    showResult(item.result(), timer.elapsed());
}

void Workplace::showResult(const QImage& result, qint64 milliseconds)
{
    m_result = result;
    double difference = 0.0;
    const QImage after = result.scaled(m_original.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    compareImages(m_original, after, difference, differenceThreshold);
    answer([=] {
        return tr("Applied in %1 s").arg(QLocale().toString(milliseconds / 1000.0, 'f', 1)) +
               QStringLiteral("\n") + sizeToString(result.size()) + QStringLiteral("\n") +
               tr("Measure: %1").arg(QLocale().toString(difference, 'g', 3));
    });
    showTools();
}

void Workplace::save()
{
    const QString name = QFileInfo(m_photo.name).completeBaseName() + QStringLiteral("-corrected.jpg");
    const QString path = dialogs().getSaveFileName(this, tr("Save the picture"), QDir::home().filePath(name),
                                                   tr("Pictures (*.jpg *.png)"), nullptr, {});
    if (path.isEmpty()) {
        return;
    }
    SaveItem item(m_result, path);
    if (run(item, tr("Saving %1").arg(QFileInfo(path).fileName())) != CProgressBox::Succeeded) {
        CMessageBox::critical(this, tr("%1 cannot be saved: %2").arg(QFileInfo(path).fileName(), item.error),
                              boxHeight);
        return;
    }
    m_saved.removeAll(path);
    m_saved += path;
    answer([path] {
        return tr("Saved: %1").arg(QFileInfo(path).fileName()) + QStringLiteral("\n") +
               fileSizeToString(QFileInfo(path).size());
    });
    showTools();
}

void Workplace::pack()
{
    const QString path = dialogs().getSaveFileName(this, tr("Pack the saved pictures"),
                                                   QDir::home().filePath(QStringLiteral("pictures.zip")),
                                                   tr("Archives (*.zip)"), nullptr, {});
    if (path.isEmpty()) {
        return;
    }
    CArchiveJob job(ArchiveTask::pack(m_saved, path));
    CProgressBox box(tr("Packing %1").arg(QFileInfo(path).fileName()), window());
    connect(&job, &CArchiveJob::progressed, &box,
            qOverload<qint64, qint64, const QString&>(&CProgressBox::setProgress));
    const bool packed = box.run(job) == CProgressBox::Succeeded;
    const ArchiveReport report = job.report();
    if (!packed && !report.stopped) {
        CMessageBox::critical(this, report.summary(), boxHeight);
    }
    answer([report] { return report.summary(); });
}

void Workplace::savePreset()
{
    bool accepted = false;
    const QString name = QInputDialog::getText(this, tr("Save a preset"), tr("Name"), QLineEdit::Normal,
                                               tr("My preset"), &accepted);
    if (!accepted || name.trimmed().isEmpty()) {
        return;
    }
    QVariantList stored;
    for (const Step& step : steps()) {
        stored += QVariant(step.toList());
    }
    CSettings settings;
    QVariantMap presets = settings.value(presetsKey).toMap();
    presets[name.trimmed()] = stored;
    settings.setValue(presetsKey, presets);
    settings.sync();
    listPresets();
    answer([name] { return tr("Preset saved: %1").arg(name.trimmed()); });
}

void Workplace::listPresets()
{
    const QString chosen = m_presets->currentData().toString();
    m_presets->clear();
    m_presets->addItem(tr("Presets"));
    const QVariantMap presets = CSettings().value(presetsKey).toMap();
    for (auto it = presets.begin(); it != presets.end(); ++it) {
        m_presets->addItem(it.key(), it.key());
    }
    m_presets->setCurrentIndex(qMax(0, m_presets->findData(chosen)));
}

void Workplace::usePreset(int index)
{
    if (index <= 0) {
        return;
    }
    const QVariantList preset =
        CSettings().value(presetsKey).toMap().value(m_presets->itemText(index)).toList();
    resetAll();
    for (const QVariant& stored : preset) {
        const Step step = Step::fromList(stored.toList());
        if (step.tool == Tool::Distortion) {
            perform(moduleOf(step.tool), QStringLiteral("ModuleActivate"));
            m_steps[int(step.tool)] = step;
        } else {
            m_applied += step;
        }
    }
    m_presets->setCurrentIndex(index);
    showTools();
    replay();
}

void Workplace::trashOrRestore()
{
    if (m_trashed.isTrashed) {
        const QString path = m_trashed.originalPath;
        const bool restored = restore(m_trashed);
        m_trashed = {};
        if (restored) {
            m_saved += path;
        }
        answer([=] {
            return (restored ? tr("Brought back: %1") : tr("Cannot be brought back: %1"))
                .arg(QFileInfo(path).fileName());
        });
    } else {
        const QString path = m_saved.takeLast();
        m_trashed = trash(QDir::toNativeSeparators(path));
        const bool moved = m_trashed.isTrashed;
        answer([=] {
            return (moved ? tr("In the recycle bin: %1") : tr("Cannot be moved to the recycle bin: %1"))
                .arg(QFileInfo(path).fileName());
        });
    }
    showTools();
}

void Workplace::replay()
{
    m_original = m_photo.small.scaled(m_canvas->pictureSize(m_photo.size), Qt::IgnoreAspectRatio,
                                      Qt::SmoothTransformation);
    renewBase();
    showPicture();
}

void Workplace::renewBase()
{
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
    m_canvas->setGrid(m_grid->isChecked());
    m_canvas->setStep(guided && !previewed ? step : nullptr);
    m_canvas->setBefore(m_compare->isChecked() ? m_original : QImage());
    m_panel->showStep(step, m_photo.size);
}

void Workplace::compare()
{
    if (m_compare->isChecked()) {
        double difference = 0.0;
        const QImage after = m_base.scaled(m_original.size());
        const bool similar =
            compareImages(m_original, after, difference, differenceThreshold) == imgCmpSimilar;
        answer([=] {
            return (similar ? tr("Before and after are alike.") : tr("Before and after differ.")) +
                   QStringLiteral("\n") + tr("Measure: %1").arg(QLocale().toString(difference, 'g', 3));
        });
    }
    showPicture();
}
