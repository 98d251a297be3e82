#include "MessageBoxes.h"

#include <utilsDll/MessageBox.h>

#include <QMetaEnum>

namespace
{

QString nameOf(QMessageBox::StandardButton answer)
{
    return QString::fromLatin1(QMetaEnum::fromType<QMessageBox::StandardButtons>().valueToKey(answer));
}

template <void (*show)(QWidget*, const QString&, int)>
QString simple(QWidget* parent, const QString& text, int height)
{
    show(parent, text, height);
    return {};
}

template <QMessageBox::StandardButton (*ask)(QWidget*, const QString&, int)>
QString question(QWidget* parent, const QString& text, int height)
{
    return nameOf(ask(parent, text, height));
}

QString rotate(QWidget* parent, const QString& text, int height)
{
    return CMessageBox::rotateQuestion(parent, text, height) ? QStringLiteral("true")
                                                             : QStringLiteral("false");
}

QString quit(QWidget* parent, const QString& text, int)
{
    return nameOf(CMessageBox::backgroundProcessingCancelMessage(parent, text));
}

} // namespace

const QVector<MessageBoxCall>& messageBoxCalls()
{
    static const QVector<MessageBoxCall> calls{
        {"information", QT_TRANSLATE_NOOP("MessageBoxes", "Information"),
         QT_TRANSLATE_NOOP("MessageBoxes", "The picture was saved. You find it beside the original."),
         &simple<&CMessageBox::information>},
        {"warning", QT_TRANSLATE_NOOP("MessageBoxes", "Warning"),
         QT_TRANSLATE_NOOP("MessageBoxes",
                           "No lens profile was found for this picture. Distortion is not corrected."),
         &simple<&CMessageBox::warning>},
        {"critical", QT_TRANSLATE_NOOP("MessageBoxes", "Error"),
         QT_TRANSLATE_NOOP("MessageBoxes", "The picture could not be saved, because the disk is full."),
         &simple<&CMessageBox::critical>},
        {"yes-no", QT_TRANSLATE_NOOP("MessageBoxes", "Yes or no"),
         QT_TRANSLATE_NOOP("MessageBoxes",
                           "A picture of this name is there already. Do you want to replace it?"),
         &question<&CMessageBox::yesNoMessage>},
        {"save-discard-cancel", QT_TRANSLATE_NOOP("MessageBoxes", "Save, discard, cancel"),
         QT_TRANSLATE_NOOP("MessageBoxes", "The picture was changed. Do you want to save your corrections?"),
         &question<&CMessageBox::saveDiscardCancelMessage>},
        {"rotate", QT_TRANSLATE_NOOP("MessageBoxes", "Rotate"),
         QT_TRANSLATE_NOOP("MessageBoxes", "The camera was held upright. Do you want to rotate the picture?"),
         &rotate},
        {"quit", QT_TRANSLATE_NOOP("MessageBoxes", "Quit during work"),
         QT_TRANSLATE_NOOP("MessageBoxes",
                           "Pictures are still being corrected. What is not finished will be lost."),
         &quit},
    };
    return calls;
}
