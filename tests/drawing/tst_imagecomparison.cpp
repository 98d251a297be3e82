#include "TestMain.h"

#include <utilsDll/GuiUtils.h>

#include <QImage>
#include <QRandomGenerator>

#include <cmath>
#include <limits>

using namespace TOLVAN_NAMESPACE;

namespace
{

/// The measure in its plainest form, pixel by pixel.
double plainMeasure(const QImage& first, const QImage& second, double difference)
{
    const double pixels = static_cast<double>(first.width()) * first.height();
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            const QRgb a = reinterpret_cast<const QRgb*>(first.constScanLine(y))[x];
            const QRgb b = reinterpret_cast<const QRgb*>(second.constScanLine(y))[x];
            difference += (std::abs(qRed(b) - qRed(a)) + std::abs(qGreen(b) - qGreen(a)) +
                           std::abs(qBlue(b) - qBlue(a))) /
                          255.0;
        }
        difference = difference * 100.0 / (pixels * 3.0);
    }
    return difference * 100.0 / (pixels * 3.0);
}

QImage noise(const QSize& size, quint32 seed)
{
    QRandomGenerator random(seed);
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        random.fillRange(reinterpret_cast<quint32*>(image.scanLine(y)), size.width());
    }
    return image;
}

QImage filled(const QSize& size, QRgb pixel)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(pixel);
    return image;
}

} // namespace

class ImageComparisonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answers()
    {
        const QImage image = filled({4, 4}, qRgb(1, 2, 3));
        double difference = 42.0;
        QCOMPARE(compareImages(QImage(), image, difference, 1), imgCmpInvalid);
        QCOMPARE(compareImages(image, QImage(), difference, 1), imgCmpInvalid);
        QCOMPARE(compareImages(image, filled({2, 8}, 0), difference, 1), imgCmpSizeDiffers);
        QCOMPARE(difference, 42.0);
        difference = 0.0;
        QCOMPARE(compareImages(image, image, difference, 5e-324), imgCmpSimilar);
        QCOMPARE(compareImages(image, image, difference, 0.0), imgCmpDifferent);
        const double unordered = std::numeric_limits<double>::quiet_NaN();
        QCOMPARE(compareImages(image, image, difference, unordered), imgCmpDifferent);
    }

    void plainMeasureIsTheMeasure()
    {
        for (const QSize size : {QSize(1, 1), QSize(7, 5), QSize(1025, 2)}) {
            const QImage images[] = {noise(size, 1), noise(size, 2), filled(size, 0),
                                     filled(size, 0xffffffff)};
            for (const QImage& other : images) {
                double difference = -3.25;
                compareImages(images[0], other, difference, 1.0);
                const double expected = plainMeasure(images[0], other, -3.25);
                QVERIFY2(std::abs(difference - expected) <= 1e-12 * std::abs(expected),
                         qPrintable(QString::number(difference, 'g', 17)));
            }
        }
    }

    void otherMemory()
    {
        const QImage black = filled({65, 3}, 0xff000000);
        const QImage white = filled({65, 3}, 0xffffffff);
        double expected = 0.0;
        compareImages(black, white, expected, 1.0);
        QVERIFY(expected > 0.0);
        for (const auto shallow :
             {QImage::Format_Grayscale8, QImage::Format_RGB16, QImage::Format_RGB888, QImage::Format_Mono}) {
            double difference = 0.0;
            compareImages(black.convertToFormat(shallow), white.convertToFormat(shallow), difference, 1.0);
            QCOMPARE(difference, expected);
        }
        const QImage whole = noise({64, 8}, 5);
        const QImage part(whole.constBits() + 4 * 3, 10, 8, whole.bytesPerLine(), QImage::Format_ARGB32);
        double difference = 0.0;
        compareImages(part, whole.copy(3, 0, 10, 8), difference, 1.0);
        QCOMPARE(difference, 0.0);
    }
};

TOLVAN_CORE_TEST_MAIN(ImageComparisonTest)
#include "tst_imagecomparison.moc"
