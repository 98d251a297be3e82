#pragma once

#include <QImage>
#include <QSize>

/// A photo of a town by the water, painted by code: the camera was held at a tilt and pointed upwards, so that
/// there is something to correct. The same size always gives the same picture. May be called from any thread.
QImage paintedPhoto(const QSize& size);
