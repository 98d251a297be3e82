#include "Bands.h"

#include <QThread>
#include <QThreadPool>

#include <atomic>

Progress partOf(const Progress& whole, double from, double part)
{
    return [=](double done) { return whole(from + done * part); };
}

bool forBands(int height, const Progress& progress, const std::function<void(int top, int bottom)>& work)
{
    const int rows = qBound(1, height / 64, 48); // enough bands for a fine progress
    std::atomic<int> next{0};
    std::atomic<int> done{0};
    std::atomic<bool> stopped{false};
    QThreadPool pool; // of its own: the global pool also serves Qt's painting
    for (int i = 0; i < QThread::idealThreadCount(); ++i) {
        pool.start([&] {
            for (int top = next.fetch_add(rows); top < height && !stopped; top = next.fetch_add(rows)) {
                work(top, std::min(top + rows, height));
                done += rows;
            }
        });
    }
    while (!pool.waitForDone(40)) {
        if (!progress(std::min(1.0, double(done) / height))) {
            stopped = true;
        }
    }
    return !stopped;
}

QImage band(uchar* bits, const QImage& image, int top, int bottom)
{
    const auto stride = image.bytesPerLine();
    return QImage(bits + top * stride, image.width(), bottom - top, stride, image.format());
}
