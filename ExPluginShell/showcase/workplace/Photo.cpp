#include "Photo.h"

#include "PaintedPhoto.h"

#include <QFileInfo>
#include <QImageReader>

namespace
{

constexpr QSize mostOnCanvas(1500, 1000);

} // namespace

Photo Photo::painted()
{
    constexpr QSize size(5640, 4230);
    return {QStringLiteral("harbour-town.jpg"), size, paintedPhoto(QSize(1080, 810), goOn),
            [size](const Progress& progress) { return paintedPhoto(size, progress); }};
}

Photo Photo::fromFile(const QString& path, QString* error)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    QSize size = reader.size();
    if (size.isValid() && size.boundedTo(mostOnCanvas) != size) {
        reader.setScaledSize(size.scaled(mostOnCanvas, Qt::KeepAspectRatio));
    }
    const QImage small = reader.read().convertToFormat(QImage::Format_RGB32);
    if (small.isNull()) {
        *error = reader.errorString();
        return {};
    }
    if (reader.transformation() & QImageIOHandler::TransformationRotate90) {
        size.transpose();
    }
    const auto full = [path](const Progress&) {
        QImageReader whole(path);
        whole.setAutoTransform(true);
        return whole.read().convertToFormat(QImage::Format_RGB32);
    };
    return {QFileInfo(path).fileName(), size.isValid() ? size : small.size(), small, full};
}
