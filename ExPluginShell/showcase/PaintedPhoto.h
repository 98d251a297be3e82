#pragma once

#include <QImage>
#include <QSize>

/// A picture of mountains behind a lake at dusk, painted by code: what the drawing tools work on. The same
/// size always gives the same picture.
QImage paintedPhoto(const QSize& size);
