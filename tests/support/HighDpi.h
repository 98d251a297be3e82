#pragma once

#include <QCoreApplication>

/// Sets AA_UseHighDpiPixmaps. Qt 6 behaves as if it were set, and warns about its name.
inline void useHighDpiPixmaps(bool on)
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, on);
    QT_WARNING_POP
}
