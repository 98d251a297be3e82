#pragma once

#include <utilsDll/MessageBox.h>

#include <QVector>

#include <functional>
#include <type_traits>

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

using Show = std::function<int(QWidget* parent, const QString& text)>;

/// One function of the box.
struct Kind {
    const char* name;
    Show show;
    Show showFitting; // the variant that fits its text, if there is one
    const char* icon;
    const char* accessibleName;
    QVector<Button> buttons; // from left to right
    int defaultButton = 0;
    int otherwise = nothing; // without a choice
    int height = usualHeight;
};

template <class Result, class... Height>
Show calling(Result (*function)(QWidget*, const QString&, Height...), Height... height)
{
    return [=](QWidget* parent, const QString& text) {
        if constexpr (std::is_void_v<Result>) {
            function(parent, text, height...);
            return nothing;
        } else {
            return int(function(parent, text, height...));
        }
    };
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
    using Box = CMessageBox;
    // A program that takes the address of a function names no type, so no name has two overloads.
    static const QVector<Kind> all{
        Kind{"information", calling(&Box::information, usualHeight), calling(&Box::fittingInformation), info,
             "Information", ok},
        Kind{"warning", calling(&Box::warning, usualHeight), calling(&Box::fittingWarning), alert, "Warning",
             close},
        Kind{"critical", calling(&Box::critical, usualHeight), calling(&Box::fittingCritical), alert, "Error",
             close},
        Kind{"yes or no", calling(&Box::yesNoMessage, usualHeight), calling(&Box::fittingYesNoMessage),
             question, "Question", yesNo, 0, 0x10000},
        Kind{"save, discard, cancel", calling(&Box::saveDiscardCancelMessage, usualHeight),
             calling(&Box::fittingSaveDiscardCancelMessage), question, "Question", save, 1, 0x400000},
        Kind{"rotate", calling(&Box::rotateQuestion, usualHeight), calling(&Box::fittingRotateQuestion),
             question, "Question", rotate, 0, 0},
        Kind{"quit", calling(&Box::backgroundProcessingCancelMessage), Show(), alert, "Warning", quit, 1,
             0x400000, 165},
    };
    return all;
}

} // namespace BoxKinds
