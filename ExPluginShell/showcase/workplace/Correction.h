#pragma once

#include "Bands.h"

#include <QLineF>
#include <QRectF>
#include <QVariant>
#include <QVector>

/// The tools of the workplace, in the order of the tool bar.
enum class Tool { Horizon, Keystoning, Distortion, Crop, TiltShift };
constexpr int toolCount = 5;

/// The name of a tool in the rules.
QString moduleOf(Tool tool);

/// One correction of a picture. Points are parts of the picture's width and height, so that the same step fits
/// the preview and the full picture. A new step changes nothing until its values are set.
struct Step {
    Tool tool = Tool::Horizon;
    QVector<QLineF> lines;   ///< what is level (Horizon), or upright (Keystoning, two of them)
    double amount = 0.0;     ///< -1 to 1: pincushion to barrel (Distortion); 0 to 1: blur (TiltShift)
    QRectF area{0, 0, 1, 1}; ///< what is kept (Crop)
    QLineF focus{0.5, 0.55, 0.8, 0.55}; ///< from the centre of what stays sharp along it (TiltShift)
    double width = 0.18;                ///< half the height of what stays sharp (TiltShift)
    double aspect = 1.5;                ///< width to height of the picture that the lines were drawn on

    /// The step a tool begins with.
    static Step startOf(Tool tool, double aspect);
    /// The angle by which the Horizon step turns the picture, in degrees, counter-clockwise.
    double angle() const;
    /// Turns the line so that angle() becomes \a degrees.
    void setAngle(double degrees);

    /// As it is stored in a preset.
    QVariantList toList() const;
    static Step fromList(const QVariantList& stored);
};

/// The threshold for compareImages(): its measure gets small with the size of the pictures, and a copy gives 0.
constexpr double differenceThreshold = 1e-12;

/// \a picture with \a step carried out, computed on all cores.
///
/// May be called from any thread; \a progress is called in the calling one, at least 20 times a second.
/// \return a null image if the work was stopped
QImage corrected(const QImage& picture, const Step& step, const Progress& progress);
