#pragma once

#include <utilsDll/MessageBox.h>

#include <QStringList>
#include <QVector>

#include <functional>

/// The message boxes as their callers know them.
namespace BoxKinds
{

inline const QString text = QStringLiteral("The picture was changed. Do you want to save the changes?");
constexpr int height = 200;

/// One function of the box: its buttons from left to right, and what it returns.
struct Kind {
    const char* name;
    std::function<int(QWidget*)> show;
    const char* icon;
    QStringList buttons; // object names
    QStringList texts;
    int defaultButton;
    QList<int> results; // of the buttons
    int otherwise;      // no choice
    int height;
    bool simple;
};

constexpr int nothing = -1;

template <class Function>
std::function<int(QWidget*)> simple(Function function)
{
    return [function](QWidget* parent) {
        function(parent, text, height);
        return nothing;
    };
}

inline QStringList list(std::initializer_list<const char*> texts)
{
    QStringList result;
    for (const char* const entry : texts) {
        result += QString::fromLatin1(entry);
    }
    return result;
}

inline const QVector<Kind>& kinds()
{
    const char* const alert = "://icons/messagebox/alert_dark_icon.svg";
    const char* const question = "://icons/messagebox/question_mark_dark_icon.svg";
    static const QVector<Kind> all{
        {"information",
         simple(&CMessageBox::information),
         "://icons/messagebox/info_dark_icon.svg",
         list({"mbSipleButton"}),
         list({"OK"}),
         0,
         {nothing},
         nothing,
         height,
         true},
        {"warning",
         simple(&CMessageBox::warning),
         alert,
         list({"mbSipleButton"}),
         list({"Close"}),
         0,
         {nothing},
         nothing,
         height,
         true},
        {"critical",
         simple(&CMessageBox::critical),
         alert,
         list({"mbSipleButton"}),
         list({"Close"}),
         0,
         {nothing},
         nothing,
         height,
         true},
        {"yes or no",
         [](QWidget* parent) { return int(CMessageBox::yesNoMessage(parent, text, height)); },
         question,
         list({"yesButton", "noButton"}),
         list({"Yes", "No"}),
         0,
         {0x4000, 0x10000},
         0x10000,
         height,
         false},
        {"save, discard, cancel",
         [](QWidget* parent) { return int(CMessageBox::saveDiscardCancelMessage(parent, text, height)); },
         question,
         list({"discardButton", "saveButton", "cancelButton"}),
         list({"Don't save", "Save", "Cancel"}),
         1,
         {0x800000, 0x800, 0x400000},
         0x400000,
         height,
         false},
        {"rotate",
         [](QWidget* parent) { return int(CMessageBox::rotateQuestion(parent, text, height)); },
         question,
         list({"rotateButton", "cancelButton"}),
         list({"Rotate", "Cancel"}),
         0,
         {1, 0},
         0,
         height,
         false},
        {"quit",
         [](QWidget* parent) { return int(CMessageBox::backgroundProcessingCancelMessage(parent, text)); },
         alert,
         list({"dontQuitButton", "quitWithoutSavingButton"}),
         list({"Don't quit", "Quit without saving"}),
         1,
         {0x400000, 0x800000},
         0x400000,
         165,
         false},
    };
    return all;
}

} // namespace BoxKinds
