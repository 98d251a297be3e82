#include "ApplicationStyle.h"
#include "customtolvanappstyle.h"
#include "GuiUtils.h"
#include "MessageBox.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QTimer>
#include <QtMath>

#include <cstring>

namespace
{

constexpr QSize photo(6000, 4000); // 24 megapixels

/// Two photographs that are equal, so that memcmp() reads them to the end.
const QImage& photograph(int number)
{
    static const QImage images[] = {[] {
                                        QImage image(photo, QImage::Format_RGB32);
                                        for (int y = 0; y < image.height(); ++y) {
                                            auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
                                            for (int x = 0; x < image.width(); ++x) {
                                                line[x] = qRgb(x % 251, y % 241, (x * y) % 239);
                                            }
                                        }
                                        return image;
                                    }(),
                                    images[0].copy()};
    return images[number];
}

void reportBytes(benchmark::State& state)
{
    state.SetBytesProcessed(state.iterations() * 2 * photograph(0).sizeInBytes());
}

void compareImages(benchmark::State& state)
{
    for (auto _ : state) {
        double difference = 0.0;
        benchmark::DoNotOptimize(
            TOLVAN_NAMESPACE::compareImages(photograph(0), photograph(1), difference, 1.0));
    }
    reportBytes(state);
}
BENCHMARK(compareImages)->Unit(benchmark::kMillisecond)->MinTime(2);

void compareWithMemcmp(benchmark::State& state)
{
    const auto size = static_cast<std::size_t>(photograph(0).sizeInBytes());
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::memcmp(photograph(0).constBits(), photograph(1).constBits(), size));
    }
    reportBytes(state);
}
BENCHMARK(compareWithMemcmp)->Unit(benchmark::kMillisecond)->MinTime(2);

void comparePixelByPixel(benchmark::State& state)
{
    for (auto _ : state) {
        double difference = 0.0;
        for (int y = 0; y < photo.height(); ++y) {
            for (int x = 0; x < photo.width(); ++x) {
                const QRgb a = photograph(0).pixel(x, y);
                const QRgb b = photograph(1).pixel(x, y);
                difference +=
                    (qAbs(qRed(a) - qRed(b)) + qAbs(qGreen(a) - qGreen(b)) + qAbs(qBlue(a) - qBlue(b))) /
                    255.0;
            }
        }
        benchmark::DoNotOptimize(difference);
    }
    reportBytes(state);
}
BENCHMARK(comparePixelByPixel)->Unit(benchmark::kMillisecond);

QPixmap linePattern()
{
    QPixmap pattern(16, 5);
    pattern.fill(Qt::transparent);
    QPainter painter(&pattern);
    painter.fillRect(0, 2, 10, 1, Qt::white);
    return pattern;
}

constexpr int lineLength = 4000;

void drawToolLine(benchmark::State& state)
{
    QImage image(lineLength + 20, lineLength + 20, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const QPixmap pattern = linePattern();
    const double angle = qDegreesToRadians(static_cast<double>(state.range(0)));
    const QPointF end(lineLength * qCos(angle), lineLength * qSin(angle));
    for (auto _ : state) {
        ::drawToolLine({0.0, 10.0}, QPointF(0.0, 10.0) + end, pattern, false, &painter, {});
    }
}
BENCHMARK(drawToolLine)->ArgName("degrees")->Arg(0)->Arg(3)->Arg(40)->Unit(benchmark::kMicrosecond);

void drawTiledPixmap(benchmark::State& state)
{
    QImage image(lineLength + 20, lineLength + 20, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QPixmap pattern = linePattern();
    for (auto _ : state) {
        painter.setTransform(QTransform::fromTranslate(0, 10).rotate(static_cast<double>(state.range(0))));
        painter.drawTiledPixmap(QRect(0, 0, lineLength, pattern.height()), pattern);
    }
}
BENCHMARK(drawTiledPixmap)->ArgName("degrees")->Arg(0)->Arg(3)->Arg(40)->Unit(benchmark::kMicrosecond);

/// Twenty lines across a 4K window, as a drag with the mouse repaints them.
void drawTwentyLines(benchmark::State& state)
{
    QImage image(3840, 2160, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const QPixmap pattern = linePattern();
    for (auto _ : state) {
        for (int i = 0; i < 20; ++i) {
            ::drawToolLine({0.0, 100.0 * i}, {3840.0, 2000.0 - 90.0 * i}, pattern, false, &painter,
                           image.rect());
        }
    }
    state.counters["frames/s"] =
        benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(drawTwentyLines)->Unit(benchmark::kMillisecond)->UseRealTime();

const QString question = QStringLiteral("The picture was changed. Do you want to save the changes?");

/// Closes the box as soon as it has been painted.
void closeWhenShown()
{
    QTimer::singleShot(0, [] {
        if (QWidget* const box = QApplication::activeModalWidget()) {
            box->grab();
            box->close();
        }
    });
}

void showMessageBox(benchmark::State& state)
{
    for (auto _ : state) {
        closeWhenShown();
        benchmark::DoNotOptimize(CMessageBox::saveDiscardCancelMessage(nullptr, question, 200));
    }
}
BENCHMARK(showMessageBox)->Unit(benchmark::kMicrosecond)->UseRealTime();

void showQMessageBox(benchmark::State& state)
{
    for (auto _ : state) {
        closeWhenShown();
        benchmark::DoNotOptimize(QMessageBox::question(
            nullptr, QString(), question, QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel));
    }
}
BENCHMARK(showQMessageBox)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    TOLVAN_NAMESPACE::loadFonts();
    QApplication::setStyle(new TOLVAN_NAMESPACE::CustomTolvanAppStyle);
    TOLVAN_NAMESPACE::setPredefinedAppStyleSheet(QString(), &application);
    if (application.styleSheet().isEmpty()) {
        return 1; // without the look the boxes would not be those of the product
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
