#include "FileSizes.h"
#include "FileManagement.h"
#include "frame/Logging.h"
#include "Settings.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr int fallbackResolution = 96;
constexpr qint64 kilobyte = 1024;
constexpr int unknownUnitLine = 82; // Part of a log text, which names the unit of the public header.

int usableResolution(qreal dotsPerInch)
{
    return std::isfinite(dotsPerInch) && dotsPerInch >= 1 ? qRound(dotsPerInch) : fallbackResolution;
}

ScreenResolution primaryScreenResolution()
{
    const QScreen* const screen = QGuiApplication::primaryScreen();
    if (!screen) {
        return {fallbackResolution, fallbackResolution};
    }
    return {usableResolution(screen->physicalDotsPerInchX()),
            usableResolution(screen->physicalDotsPerInchY())};
}

QString dimensions(double width, double height, int decimals, const QString& unit)
{
    return QString::number(width, 'f', decimals) + QStringLiteral(" x ") +
           QString::number(height, 'f', decimals) + unit;
}

} // namespace

QString fileSizeToString(qint64 bytes)
{
    const double size = static_cast<double>(bytes);
    if (bytes <= kilobyte) {
        return QString::number(size, 'g', 6) + QObject::tr("B");
    }
    if (bytes <= kilobyte * kilobyte) {
        return QString::number(size / kilobyte, 'f', 1) + QObject::tr("KB");
    }
    return QString::number(size / kilobyte / kilobyte, 'f', 1) + QObject::tr("MB");
}

QString imageSizeText(const QSize& size, int unit, const ScreenResolution& resolution)
{
    const auto lengths = [&](double perInch, int decimals, const QString& name) {
        return dimensions(size.width() * perInch / resolution.horizontal,
                          size.height() * perInch / resolution.vertical, decimals, name);
    };
    switch (unit) {
    case 0:
        return dimensions(size.width(), size.height(), 0, QObject::tr("px"));
    case 1:
        return lengths(1, 2, QObject::tr("in"));
    case 2:
        return lengths(2.54, 1, QObject::tr("cm"));
    case 3:
        return lengths(25.4, 0, QObject::tr("mm"));
    default:
        return {};
    }
}

QString sizeToString(const QSize& size)
{
    const int unit = CSettings().value(QStringLiteral("imageSizeUnits"), 0).toInt();
    const QString text = imageSizeText(size, unit, primaryScreenResolution());
    if (!text.isEmpty()) {
        return text;
    }
    Logging::reportAssertion("TOLVAN_NAMESPACE::sizeToString", "FileManagement", unknownUnitLine);
    return imageSizeText(size, 0, primaryScreenResolution());
}

} // namespace TOLVAN_NAMESPACE
