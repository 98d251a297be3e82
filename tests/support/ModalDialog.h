#pragma once

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

/// Calls \a open, which shows a modal dialog and waits for its end, and calls \a act with the dialog. A dialog
/// that \a act leaves open is closed.
/// \return whether a dialog of this class was shown
template <class Dialog, class Open, class Act>
bool whileOpen(Open open, Act act)
{
    bool acted = false;
    QTimer::singleShot(0, [&] {
        const QPointer<QWidget> modal(QApplication::activeModalWidget());
        if (auto* const dialog = qobject_cast<Dialog*>(modal.data())) {
            acted = true;
            act(*dialog);
        }
        if (modal) {
            modal->close();
        }
    });
    open();
    return acted;
}

/// Returns the widget of a name in a dialog.
template <class T>
T* find(const QWidget& dialog, const char* name)
{
    return dialog.findChild<T*>(QString::fromLatin1(name));
}
