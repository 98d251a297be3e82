#pragma once

#include <utilsDll/MessageBox.h>

#include <QVector>

#include <functional>

/// The seven functions of the message box with what they show and return.
namespace BoxKinds
{

constexpr int usualHeight = 170;
constexpr int nothing = -1; // stands for a function without a result

struct Button {
    const char* name;
    const char* text;
    int result; // of the box when the button was clicked
};

/// One function of the box.
struct Kind {
    const char* name;
    std::function<int(QWidget* parent, const QString& text)> show;
    const char* icon;
    QVector<Button> buttons; // from left to right
    int defaultButton;
    int otherwise; // without a choice
    int height = usualHeight;
};

template <class Function>
auto notifying(Function function)
{
    return [function](QWidget* parent, const QString& text) {
        function(parent, text, usualHeight);
        return nothing;
    };
}

template <class Function>
auto asking(Function function)
{
    return
        [function](QWidget* parent, const QString& text) { return int(function(parent, text, usualHeight)); };
}

inline int askToQuit(QWidget* parent, const QString& text)
{
    return CMessageBox::backgroundProcessingCancelMessage(parent, text);
}

inline const QVector<Kind>& kinds()
{
    const char* const info = "://icons/messagebox/info_dark_icon.svg";
    const char* const alert = "://icons/messagebox/alert_dark_icon.svg";
    const char* const question = "://icons/messagebox/question_mark_dark_icon.svg";
    const QVector<Button> ok{{"mbSipleButton", "OK", nothing}};
    const QVector<Button> close{{"mbSipleButton", "Close", nothing}};
    const QVector<Button> yesNo{{"yesButton", "Yes", 0x4000}, {"noButton", "No", 0x10000}};
    const QVector<Button> save{{"discardButton", "Don't save", 0x800000},
                               {"saveButton", "Save", 0x800},
                               {"cancelButton", "Cancel", 0x400000}};
    const QVector<Button> rotate{{"rotateButton", "Rotate", 1}, {"cancelButton", "Cancel", 0}};
    const QVector<Button> quit{{"dontQuitButton", "Don't quit", 0x400000},
                               {"quitWithoutSavingButton", "Quit without saving", 0x800000}};
    static const QVector<Kind> all{
        {"information", notifying(&CMessageBox::information), info, ok, 0, nothing},
        {"warning", notifying(&CMessageBox::warning), alert, close, 0, nothing},
        {"critical", notifying(&CMessageBox::critical), alert, close, 0, nothing},
        {"yes or no", asking(&CMessageBox::yesNoMessage), question, yesNo, 0, 0x10000},
        {"save, discard, cancel", asking(&CMessageBox::saveDiscardCancelMessage), question, save, 1,
         0x400000},
        {"rotate", asking(&CMessageBox::rotateQuestion), question, rotate, 0, 0},
        {"quit", &askToQuit, alert, quit, 1, 0x400000, 165},
    };
    return all;
}

} // namespace BoxKinds
