#pragma once

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

/// Calls \a open, which shows a modal dialog and waits for its end, and lets \a act deal with the dialog;
/// what \a act leaves open is closed, so that no test hangs. \return whether there was such a dialog
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
