#include "GuiUtils.h"

#include <QImage>

#include <cstdlib>
#include <cstring>

#ifdef __SSE2__ // part of every 64-bit PC
#include <emmintrin.h>
#endif

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr int bytesPerPixel = 4;

quint32 pixelAt(const uchar* row, int x)
{
    quint32 pixel = 0;
    std::memcpy(&pixel, row + static_cast<std::size_t>(x) * bytesPerPixel, bytesPerPixel);
    return pixel;
}

/// Sum of |ΔR| + |ΔG| + |ΔB| of the pixels from \a begin on, in steps of 1/255.
quint64 plainRowDifference(const uchar* first, const uchar* second, int begin, int width)
{
    quint64 sum = 0;
    for (int x = begin; x < width; ++x) {
        const quint32 a = pixelAt(first, x);
        const quint32 b = pixelAt(second, x);
        sum += static_cast<quint64>(std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
                                    std::abs(qBlue(a) - qBlue(b)));
    }
    return sum;
}

#ifdef __SSE2__
quint64 rowDifference(const uchar* first, const uchar* second, int width)
{
    constexpr int step = sizeof(__m128i) / bytesPerPixel;
    const __m128i colours = _mm_set1_epi32(0x00ffffff);
    __m128i sums = _mm_setzero_si128(); // one 64-bit sum for each half
    const int vectorEnd = width - width % step;
    for (int x = 0; x < vectorEnd; x += step) {
        const std::size_t offset = static_cast<std::size_t>(x) * bytesPerPixel;
        const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(first + offset));
        const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(second + offset));
        sums = _mm_add_epi64(sums, _mm_sad_epu8(_mm_and_si128(a, colours), _mm_and_si128(b, colours)));
    }
    quint64 halves[2];
    _mm_storeu_si128(reinterpret_cast<__m128i*>(halves), sums);
    return halves[0] + halves[1] + plainRowDifference(first, second, vectorEnd, width);
}
#else
quint64 rowDifference(const uchar* first, const uchar* second, int width)
{
    return plainRowDifference(first, second, 0, width);
}
#endif

/// Converts images of less than 32 bits a pixel, because every pixel is read as a 32-bit value.
QImage withWholePixels(const QImage& image)
{
    return image.depth() < 32 ? image.convertToFormat(QImage::Format_RGB32) : image;
}

} // namespace

imgCmpResult compareImages(const QImage& first, const QImage& second, double& difference, double threshold)
{
    if (first.isNull() || second.isNull()) {
        return imgCmpInvalid;
    }
    if (first.size() != second.size()) {
        return imgCmpSizeDiffers;
    }
    const QImage left = withWholePixels(first);
    const QImage right = withWholePixels(second);
    const double samples = 3.0 * left.width() * left.height();
    const auto scaled = [samples](double total) { return total * 100.0 / samples; };
    for (int y = 0; y < left.height(); ++y) {
        const quint64 row = rowDifference(left.constScanLine(y), right.constScanLine(y), left.width());
        difference = scaled(difference + static_cast<double>(row) / 255.0);
    }
    difference = scaled(difference);
    return threshold > difference ? imgCmpSimilar : imgCmpDifferent;
}

} // namespace TOLVAN_NAMESPACE
