#pragma once

#include "BaseDialog.h"

#include <QList>
#include <QMessageBox>
#include <QScopedPointer>

class QHBoxLayout;
class QIcon;
class QPushButton;

/// The product's own modal message box: 520 pixels wide, an icon at the left, a word-wrapped text and a row
/// of buttons. Its look comes from ":/qss/message_box.qss", which addresses the widgets by their names.
///
/// \code
/// const auto answer = CMessageBox::saveDiscardCancelMessage(window, tr("Save the changes?"), 200);
/// if (answer == QMessageBox::Cancel) {
///     return;
/// }
/// \endcode
///
/// \par Blocking
/// Every static function shows a box, runs an event loop of its own until the user answers, and returns the
/// answer. Everything else of the program goes on meanwhile, other windows take no input, and what owns the
/// caller may be gone when the call returns.
///
/// \par Parent
/// The box stands in the middle of the screen of \a parent, which may be null. When the parent dies while the
/// box is open, the box goes with it, and the answer is the one that stands for "no choice".
///
/// \par Keys and closing
/// Enter takes the default button. Escape and the window's close button give the answer that stands for
/// "no choice".
///
/// \par Text
/// Shown as QLabel does by itself: what looks like rich text is shown as such. \a height is that of the box in
/// pixels, and one too small for the text cuts it off.
///
/// \par Failures
/// None are reported. A missing icon leaves its place empty.
///
/// \par Threads
/// Main thread only.
class UTILSDLL_EXPORT CMessageBox : public TOLVAN_NAMESPACE::CBaseDialog
{
    Q_OBJECT

public:
    ~CMessageBox() override;

    /// Tells something: the button "OK".
    static void information(QWidget* parent, const QString& text, int height);
    /// Warns: the button "Close".
    static void warning(QWidget* parent, const QString& text, int height);
    /// Tells of an error: the button "Close".
    static void critical(QWidget* parent, const QString& text, int height);
    /// Asks a question: "Yes" (default) and "No".
    /// \return QMessageBox::Yes, or QMessageBox::No also without a choice
    static QMessageBox::StandardButton yesNoMessage(QWidget* parent, const QString& text, int height);
    /// Asks what to do with changes: "Don't save", "Save" (default) and "Cancel".
    /// \return QMessageBox::Save, Discard, or Cancel also without a choice
    static QMessageBox::StandardButton saveDiscardCancelMessage(QWidget* parent, const QString& text,
                                                                int height);
    /// Asks whether to rotate: "Rotate" (default) and "Cancel".
    /// \return true only when "Rotate" was chosen
    static bool rotateQuestion(QWidget* parent, const QString& text, int height);
    /// Asks whether to quit while work is under way: "Don't quit" and "Quit without saving" (default). The
    /// box is always 165 pixels high.
    /// \return QMessageBox::Discard to quit, or QMessageBox::Cancel also without a choice
    static QMessageBox::StandardButton backgroundProcessingCancelMessage(QWidget* parent,
                                                                         const QString& text);

private Q_SLOTS:
    void onButtonClicked();

public:
    // Scripts record answers through the meta-object. The boxes above are shown all the same and never read
    // what was recorded.

    /// Records an answer to rotateQuestion().
    Q_INVOKABLE void setRotateQuestion(bool predefinedValue);
    /// Records an answer to yesNoMessage(): "Yes" for true, "No" for false.
    Q_INVOKABLE void setYesNoMessage(bool predefinedButtonPressed);
    /// Does nothing.
    Q_INVOKABLE void setYesNoMessageWithCheckBox(bool predefinedButtonPressed, bool predefinedCheckBox);
    /// Records an answer to saveDiscardCancelMessage(): the value of QMessageBox::Save, Discard or Cancel.
    /// Any other is reported in the log and not recorded.
    Q_INVOKABLE void setSaveDiscardCancelMessage(int predefinedButton);

private:
    struct Form;
    class Session;

    explicit CMessageBox(QWidget* parent);

    static void prepareContentWidget(CMessageBox& box, const QString& text);
    static QHBoxLayout* createButtonLayout(CMessageBox& box, bool besideIcon);
    static void showSimpleMessageBox(QWidget* parent, const QString& text, const QIcon& icon,
                                     const QString& buttonText, int height);

    void setIcon(const QIcon& icon);
    QPushButton* addButton(QHBoxLayout* row, const QString& text, const char* name);

    static QScopedPointer<CMessageBox> m_scriptingInstance; // filled by scripts only

    QScopedPointer<Form> m_ui;
    QList<QMessageBox::StandardButton> m_saveDiscardCancelAnswers;
    QList<QMessageBox::StandardButton> m_yesNoAnswers;
    QList<bool> m_rotateAnswers;
    QPushButton* m_clickedButton = nullptr;
};
