#include "LensTable.h"
#include "pages/Pages.h"
#include "Photo.h"
#include "RenderItem.h"
#include "Report.h"
#include "RulesMachine.h"

#include <utilsDll/GuiUtils.h>

#include <QElapsedTimer>

using namespace TOLVAN_NAMESPACE;

namespace
{

void walkRules(Report& report)
{
    RulesMachine machine;
    const QString error = machine.load(QStringLiteral(":/other/CorrectionsStateMachine.xml"));
    report.check("rules of the tools",
                 error.isEmpty() ? QStringLiteral("%1 read").arg(machine.rules().size()) : error,
                 machine.rules().size() == 50);
    const QString activate = QStringLiteral("ModuleActivate");
    machine.perform(QStringLiteral("Horizon"), activate);
    const RulesMachine::Rule* const rule = machine.perform(QStringLiteral("Crop"), activate);
    report.check("Crop chosen while Horizon is current",
                 rule ? RulesMachine::inWords(*rule) : QStringLiteral("no rule holds"),
                 machine.current() == QLatin1String("Crop") && !machine.isActive(QStringLiteral("Horizon")));
}

void walkLenses(Report& report)
{
    LensTable table;
    report.check("calibration database", QStringLiteral("read where it lies in the library"), table.open());
    QElapsedTimer timer;
    timer.start();
    const QVector<int> rows = table.rowsWith(QStringLiteral("canon 24-70"));
    const double milliseconds = timer.nsecsElapsed() / 1e6;
    report.check(QStringLiteral("\"canon 24-70\" in %1 modules").arg(table.count()),
                 QStringLiteral("%1 found in %2 ms").arg(rows.size()).arg(milliseconds, 0, 'f', 1),
                 !rows.isEmpty());
    const Lens lens = rows.isEmpty() ? Lens() : table.at(rows.first());
    report.check("the first of them", lens.name + QStringLiteral(", ") + lens.id,
                 lens.name.contains(QLatin1String("24-70")));
}

/// What "Apply" does on the workplace, with its photo of 24 megapixels.
void walkCorrections(Report& report)
{
    const Photo photo = Photo::painted();
    Step horizon = Step::startOf(Tool::Horizon, double(photo.size.width()) / photo.size.height());
    horizon.setAngle(2.4);
    RenderItem item(photo.full, {horizon, Step::startOf(Tool::TiltShift, horizon.aspect)});
    int reports = 0;
    QObject::connect(&item, &RenderItem::progress, [&reports] { ++reports; });
    QElapsedTimer timer;
    timer.start();
    item.run();
    const double seconds = timer.elapsed() / 1000.0;
    const QImage after =
        item.result().scaled(photo.small.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    double difference = 0.0;
    const imgCmpResult answer = compareImages(photo.small, after, difference, differenceThreshold);
    report.check("photo painted, horizon and tilt-shift",
                 QStringLiteral("%1 s, measure of the difference %2").arg(seconds, 0, 'f', 1).arg(difference),
                 answer == imgCmpDifferent);
    report.row("reports of its progress", QStringLiteral("%1 a second").arg(reports / seconds, 0, 'f', 0));

    RenderItem stopped(photo.full, {horizon});
    stopped.stop();
    stopped.run();
    report.check("the same, stopped", QStringLiteral("no picture"), stopped.result().isNull());
}

} // namespace

void walkWorkplace(Report& report)
{
    walkRules(report);
    walkLenses(report);
    walkCorrections(report);
}
