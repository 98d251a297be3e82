#pragma once

#include "workplace/Bands.h"

/// A photo of a town by the water, painted by code on all cores: the camera was held at a tilt and pointed upwards,
/// so that there is something to correct. The same size always gives the same picture. May be called from any thread.
/// \return a null image if \a progress stopped the work
QImage paintedPhoto(const QSize& size, const Progress& progress);
