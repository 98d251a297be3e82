#include "MessageBoxes.h"

#include <utilsDll/MessageBox.h>

#include <QMetaEnum>

namespace
{

QString nameOf(QMessageBox::StandardButton answer)
{
    return QString::fromLatin1(QMetaEnum::fromType<QMessageBox::StandardButtons>().valueToKey(answer));
}

/// A box that is only read.
template <void (*box)(QWidget*, const QString&, int)>
QString shown(QWidget* parent, const QString& text, int height)
{
    box(parent, text, height);
    return {};
}

/// A box that is answered.
template <QMessageBox::StandardButton (*box)(QWidget*, const QString&, int)>
QString answered(QWidget* parent, const QString& text, int height)
{
    return nameOf(box(parent, text, height));
}

} // namespace

const QVector<MessageBoxCall>& messageBoxCalls()
{
    static const QVector<MessageBoxCall> calls{
        {"information", QT_TRANSLATE_NOOP("MessageBoxes", "Information"),
         QT_TRANSLATE_NOOP("MessageBoxes", "The picture was saved. You find it beside the original."),
         &shown<&CMessageBox::information>},
        {"warning", QT_TRANSLATE_NOOP("MessageBoxes", "Warning"),
         QT_TRANSLATE_NOOP("MessageBoxes",
                           "No lens profile was found for this picture. Distortion is not corrected."),
         &shown<&CMessageBox::warning>},
        {"critical", QT_TRANSLATE_NOOP("MessageBoxes", "Error"),
         QT_TRANSLATE_NOOP("MessageBoxes", "The picture could not be saved, because the disk is full."),
         &shown<&CMessageBox::critical>},
        {"yes-no", QT_TRANSLATE_NOOP("MessageBoxes", "Yes or no"),
         QT_TRANSLATE_NOOP("MessageBoxes",
                           "A picture of this name is there already. Do you want to replace it?"),
         &answered<&CMessageBox::yesNoMessage>},
        {"save-discard-cancel", QT_TRANSLATE_NOOP("MessageBoxes", "Save, discard, cancel"),
         QT_TRANSLATE_NOOP("MessageBoxes", "The picture was changed. Do you want to save your corrections?"),
         &answered<&CMessageBox::saveDiscardCancelMessage>},
        {"rotate", QT_TRANSLATE_NOOP("MessageBoxes", "Rotate"),
         QT_TRANSLATE_NOOP("MessageBoxes", "The camera was held upright. Do you want to rotate the picture?"),
         [](QWidget* parent, const QString& text, int height) {
             return CMessageBox::rotateQuestion(parent, text, height) ? QStringLiteral("Rotate")
                                                                      : QStringLiteral("Cancel");
         }},
        {"quit", QT_TRANSLATE_NOOP("MessageBoxes", "Quit during work"),
         QT_TRANSLATE_NOOP("MessageBoxes",
                           "Pictures are still being corrected. What is not finished will be lost."),
         [](QWidget* parent, const QString& text, int) {
             return nameOf(CMessageBox::backgroundProcessingCancelMessage(parent, text));
         }},
    };
    return calls;
}
