#pragma once

#include <QString>
#include <QVector>

class QWidget;

/// One of the product's message boxes, as the showcase calls it.
struct MessageBoxCall {
    const char* name;   ///< of its picture
    const char* title;  ///< English, of the context "MessageBoxes"
    const char* sample; ///< a text that the product would show in it; English, of the context "MessageBoxes"
    /// Shows the box.
    /// \return the answer by name, empty when the box gives none
    QString (*show)(QWidget* parent, const QString& text, int height);
};

/// All message boxes, in the order of the page.
const QVector<MessageBoxCall>& messageBoxCalls();
