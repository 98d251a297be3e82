#include "PaintedPhoto.h"
#include "Report.h"
#include "Sections.h"
#include "workplace/LensTable.h"
#include "workplace/RenderItem.h"
#include "workplace/RulesMachine.h"

#include <utilsDll/GuiUtils.h>

#include <QElapsedTimer>

using namespace TOLVAN_NAMESPACE;

namespace
{

void showRules(Report& report)
{
    RulesMachine machine;
    const QString error = machine.load(QStringLiteral(":/other/CorrectionsStateMachine.xml"));
    report.check(QStringLiteral("rules of the tools"),
                 error.isEmpty() ? QStringLiteral("%1 read").arg(machine.rules().size()) : error,
                 machine.rules().size() == 50);
    const QString activate = QStringLiteral("ModuleActivate");
    machine.perform(QStringLiteral("Horizon"), activate);
    const RulesMachine::Rule* const rule = machine.perform(QStringLiteral("Crop"), activate);
    report.check(QStringLiteral("Crop chosen while Horizon is current"),
                 rule ? RulesMachine::inWords(*rule) : QStringLiteral("no rule holds"),
                 machine.current() == QLatin1String("Crop") && !machine.isActive(QStringLiteral("Horizon")));
}

void showLenses(Report& report)
{
    LensTable table;
    const QString error = table.open();
    if (table.count() == 0) {
        report.row(QStringLiteral("lens search"), error);
        return;
    }
    QElapsedTimer timer;
    timer.start();
    const QVector<int> rows = table.rowsWith(QStringLiteral("canon 24-70"));
    const double milliseconds = timer.nsecsElapsed() / 1e6;
    report.check(QStringLiteral("\"canon 24-70\" in %1 modules").arg(table.count()),
                 QStringLiteral("%1 found in %2 ms").arg(rows.size()).arg(milliseconds, 0, 'f', 1),
                 !rows.isEmpty() && table.at(rows.first()).name.contains(QLatin1String("24-70")));
}

void showCorrections(Report& report)
{
    constexpr QSize size(2400, 1800);
    const QImage photo = paintedPhoto(size);
    Step horizon = Step::startOf(Tool::Horizon, double(size.width()) / size.height());
    horizon.setAngle(2.4);
    const auto source = [photo] { return photo; };
    RenderItem item(source, {horizon, Step::startOf(Tool::TiltShift, horizon.aspect)});
    QElapsedTimer timer;
    timer.start();
    item.run();
    double difference = 0.0;
    const imgCmpResult answer = compareImages(photo, item.result(), difference, differenceThreshold);
    report.check(QStringLiteral("horizon and tilt-shift applied"),
                 QStringLiteral("%1 ms, measure of the difference %2").arg(timer.elapsed()).arg(difference),
                 answer == imgCmpDifferent);

    RenderItem stopped(source, {horizon});
    stopped.stop();
    stopped.run();
    report.check(QStringLiteral("the same, stopped"), QStringLiteral("no picture"),
                 stopped.result().isNull());
}

} // namespace

void showWorkplace(Report& report)
{
    showRules(report);
    showLenses(report);
    showCorrections(report);
}
