#include "ApplicationStyle.h"

#include "frame/Logging.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QIcon>
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
    setAppStyleSheet({mainSheet.isEmpty() ? QStringLiteral(":/qss/custom.qss") : mainSheet,
                      QStringLiteral(":/qss/slider.qss"), QStringLiteral(":/qss/settings.qss"),
                      QStringLiteral(":/qss/message_box.qss"), QStringLiteral(":/qss/win.qss")},
                     app);
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
