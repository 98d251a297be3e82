#include "ApplicationStyle.h"

#include "frame/Logging.h"
#include "PaletteColours.h"
#include "platform/Display.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QIcon>
#include <QRegularExpression>
#include <QStyle>
#include <QWidget>

// Qt keeps the file names of fonts and images until the process ends, and this library may be unloaded before.
// So no literal of this library is passed to Qt: fromLatin1() makes a copy on the heap.

namespace TOLVAN_NAMESPACE
{

namespace
{

const char* const fontFiles[] = {
    "MavenProLight-300.otf", "MavenPro-Medium.ttf", "MavenPro-Regular.ttf",
    "OpenSans-Light.ttf",    "Roboto-Bold.ttf",     "Roboto-Light.ttf",
    "Roboto-Regular.ttf",    "Roboto-Medium.ttf",   "Segoe+UI.ttf",
};

const int logoSizes[] = {16, 32, 48, 96, 128, 256, 512, 1024};

/// QFile opens a folder of the resources as if it were an empty file.
bool openForReading(QFile& file)
{
    return !QFileInfo(file).isDir() && file.open(QIODevice::ReadOnly);
}

/// Returns the counterpart of a colour of the palette, and any other colour as it is.
QColor highContrastColour(const QColor& colour)
{
    for (const PaletteColour& entry : paletteColours) {
        if (QColor(QLatin1String(entry.normal)) == colour) {
            return QColor(QLatin1String(entry.highContrast));
        }
    }
    return colour;
}

/// Replaces the colours of a sheet, which are written as #RRGGBB or rgba(red, green, blue, opacity).
QString inHighContrast(const QString& sheet)
{
    const QRegularExpression colour(QStringLiteral("#[0-9A-Fa-f]{6}\\b|rgba\\((\\d+), *(\\d+), *(\\d+)"));
    QString result;
    int end = 0;
    for (auto matches = colour.globalMatch(sheet); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        result.append(sheet.constData() + end, match.capturedStart() - end);
        end = match.capturedEnd();
        if (match.captured(1).isEmpty()) {
            result += highContrastColour(QColor(match.captured())).name();
        } else {
            const QColor now = highContrastColour(
                QColor(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt()));
            result += QStringLiteral("rgba(%1, %2, %3").arg(now.red()).arg(now.green()).arg(now.blue());
        }
    }
    return result + sheet.mid(end);
}

} // namespace

QStringList setAppStyleSheet(const QStringList& files, QApplication* app)
{
    QStringList read;
    if (!app || files.isEmpty()) {
        Logging::reportAssertion("TOLVAN_NAMESPACE::setAppStyleSheet", "SharedUtils", 60);
        return read;
    }
    QString sheet;
    for (const QString& path : files) {
        if (path.isEmpty()) {
            continue;
        }
        QFile file(path);
        if (openForReading(file)) {
            sheet += QString::fromUtf8(file.readAll());
            read += path;
        }
    }
    app->setStyleSheet(sheet);
    return read;
}

void setPredefinedAppStyleSheet(const QString& mainSheet, QApplication* app)
{
    setAppStyleSheetWithContrast(mainSheet, app, Contrast::System);
}

void setAppStyleSheetWithContrast(const QString& mainSheet, QApplication* app, Contrast contrast)
{
    setAppStyleSheet({mainSheet.isEmpty() ? QStringLiteral(":/qss/custom.qss") : mainSheet,
                      QStringLiteral(":/qss/slider.qss"), QStringLiteral(":/qss/settings.qss"),
                      QStringLiteral(":/qss/message_box.qss"), QStringLiteral(":/qss/win.qss")},
                     app);
    const bool high =
        contrast == Contrast::High || (contrast == Contrast::System && systemUsesHighContrast());
    if (app && high) {
        app->setStyleSheet(inHighContrast(app->styleSheet()));
    }
}

bool systemUsesHighContrast()
{
    return Platform::usesHighContrast();
}

void loadFonts()
{
    for (const char* const name : fontFiles) {
        QFontDatabase::addApplicationFont(QString::fromLatin1(":/fonts/") + QString::fromLatin1(name));
    }
}

bool loadAppLogoIcon()
{
    QIcon icon;
    for (const int size : logoSizes) {
        icon.addFile(QString::fromLatin1(":/icons/app_icon_trelioapp/logo_%1.png").arg(size));
    }
    if (icon.availableSizes().isEmpty()) {
        return false;
    }
    QApplication::setWindowIcon(icon);
    return true;
}

void reapplyWidgetQss(QWidget& widget)
{
    if (QStyle* const style = widget.style()) {
        style->unpolish(&widget);
        style->polish(&widget);
        widget.update();
    }
}

void setWidgetFullTransparency(QWidget* widget)
{
    if (!widget) {
        return;
    }
    QPalette palette = widget->palette();
    for (const QPalette::ColorRole role :
         {QPalette::Window, QPalette::Button, QPalette::Base, QPalette::Light, QPalette::Midlight,
          QPalette::Dark, QPalette::Mid, QPalette::Shadow}) {
        palette.setColor(role, Qt::transparent);
    }
    widget->setPalette(palette);
}

} // namespace TOLVAN_NAMESPACE
