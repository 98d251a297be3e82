#pragma once

#include "Bands.h"

#include <QString>

/// A photo that is worked on: a small image for the canvas now, the full one when it is asked for.
struct Photo {
    QString name;
    QSize size; ///< of the full picture
    QImage small;
    /// May be called from any thread; returns null if the file cannot be read any more, or the work was stopped.
    std::function<QImage(const Progress&)> full;

    /// The photo that is painted by code, 24 megapixels.
    static Photo painted();
    /// Reads the photo at \a path. \param error receives what went wrong, if \a small is null
    static Photo fromFile(const QString& path, QString* error);
};
