#pragma once

#include <QImage>

#include <functional>

/// Receives how much is done, 0 to 1. \return false to stop the work
using Progress = std::function<bool(double part)>;

/// For work that is not to be stopped.
constexpr auto goOn = [](double) { return true; };

/// The progress of work that is \a part of a whole and begins at \a from.
Progress partOf(const Progress& whole, double from, double part);

/// Runs \a work for bands of rows on all cores. \a progress is called in this thread, 25 times a second.
/// \return false if the work was stopped
bool forBands(int height, const Progress& progress, const std::function<void(int top, int bottom)>& work);

/// The rows from \a top to \a bottom of \a image, whose memory begins at \a bits, as an image that shares it.
QImage band(uchar* bits, const QImage& image, int top, int bottom);
