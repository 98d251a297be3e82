#pragma once

#include "BaseDialog.h"

#include <QList>
#include <QMessageBox>
#include <QScopedPointer>

class QHBoxLayout;
class QIcon;
class QPushButton;

/// The product's own modal message box: 520 pixels wide, with an icon at the left, a word-wrapped text and a
/// row of buttons. The style sheet ":/qss/message_box.qss" addresses the widgets by their names.
///
/// \code
/// const auto answer = CMessageBox::saveDiscardCancelMessage(window, tr("Save the changes?"), 200);
/// if (answer == QMessageBox::Cancel) {
///     return;
/// }
/// \endcode
///
/// \par Blocking
/// Every static function shows a box, runs its own event loop until the user answers, and returns the answer.
/// Timers, sockets and other events are processed meanwhile; other windows take no input. Any object may have
/// been deleted when the call returns, the caller's owner included.
///
/// \par Parent
/// The box appears in the middle of the screen of \a parent, which may be null. If the parent is destroyed
/// while the box is open, the box is destroyed too, and the function returns the answer for "no choice".
///
/// \par Keys and closing
/// Enter clicks the default button. Escape and the window's close button give the answer for "no choice".
///
/// \par Text
/// Text that Qt::mightBeRichText() recognises is shown as rich text. A word that is longer than a line, such
/// as a path, continues in the next line. The user can select text with mouse and keyboard; Ctrl+C copies the
/// selection, or the whole text if nothing is selected.
///
/// \par Height
/// \a height is the height of the box in pixels. If the text needs more, it scrolls, beginning at its top. The
/// functions named "fitting" fit the box to its text, up to four fifths of the screen. With a large system font,
/// buttons that are too wide for one row have two.
///
/// \par Assistive technology
/// A box announces itself as an alert when it is shown. Its accessible name is its kind (for example "Warning"),
/// its description the text.
///
/// \par Failures
/// None are reported. If the icon is missing, its place stays empty.
///
/// \par Threads
/// Main thread only.
class UTILSDLL_EXPORT CMessageBox : public TOLVAN_NAMESPACE::CBaseDialog
{
    Q_OBJECT

public:
    ~CMessageBox() override;

    /// Shows a message with the button "OK".
    static void information(QWidget* parent, const QString& text, int height);
    /// The same in a box that fits its text.
    static void fittingInformation(QWidget* parent, const QString& text);
    /// Shows a warning with the button "Close".
    static void warning(QWidget* parent, const QString& text, int height);
    /// The same in a box that fits its text.
    static void fittingWarning(QWidget* parent, const QString& text);
    /// Reports an error, with the button "Close".
    static void critical(QWidget* parent, const QString& text, int height);
    /// The same in a box that fits its text.
    static void fittingCritical(QWidget* parent, const QString& text);
    /// Asks a question: "Yes" (default) and "No".
    /// \return QMessageBox::Yes or QMessageBox::No; No without a choice
    static QMessageBox::StandardButton yesNoMessage(QWidget* parent, const QString& text, int height);
    /// The same in a box that fits its text.
    static QMessageBox::StandardButton fittingYesNoMessage(QWidget* parent, const QString& text);
    /// Asks what to do with changes: "Don't save", "Save" (default) and "Cancel".
    /// \return QMessageBox::Save, Discard or Cancel; Cancel without a choice
    static QMessageBox::StandardButton saveDiscardCancelMessage(QWidget* parent, const QString& text,
                                                                int height);
    /// The same in a box that fits its text.
    static QMessageBox::StandardButton fittingSaveDiscardCancelMessage(QWidget* parent, const QString& text);
    /// Asks whether to rotate: "Rotate" (default) and "Cancel".
    /// \return whether "Rotate" was chosen
    static bool rotateQuestion(QWidget* parent, const QString& text, int height);
    /// The same in a box that fits its text.
    static bool fittingRotateQuestion(QWidget* parent, const QString& text);
    /// Asks whether to quit while work is running: "Don't quit" and "Quit without saving" (default). The box is
    /// always 165 pixels high.
    /// \return QMessageBox::Discard to quit, otherwise QMessageBox::Cancel; Cancel without a choice
    static QMessageBox::StandardButton backgroundProcessingCancelMessage(QWidget* parent,
                                                                         const QString& text);

protected:
    /// Announces the box to assistive technology.
    void showEvent(QShowEvent* event) override;

private Q_SLOTS:
    void onButtonClicked();

public:
    // Scripts record answers through the meta-object. The functions above do not read the recorded answers:
    // they always show a box.

    /// Records an answer to rotateQuestion().
    Q_INVOKABLE void setRotateQuestion(bool predefinedValue);
    /// Records an answer to yesNoMessage(): "Yes" for true, "No" for false.
    Q_INVOKABLE void setYesNoMessage(bool predefinedButtonPressed);
    /// Does nothing.
    Q_INVOKABLE void setYesNoMessageWithCheckBox(bool predefinedButtonPressed, bool predefinedCheckBox);
    /// Records an answer to saveDiscardCancelMessage().
    /// \param predefinedButton the value of QMessageBox::Save, Discard or Cancel; for any other value an
    ///                         assertion failure is logged and nothing is recorded
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
    void fit(int height);
    QPushButton* addButton(QHBoxLayout* row, const QString& text, const char* name);

    static QScopedPointer<CMessageBox> m_scriptingInstance; // filled by scripts only

    QScopedPointer<Form> m_ui;
    QList<QMessageBox::StandardButton> m_saveDiscardCancelAnswers;
    QList<QMessageBox::StandardButton> m_yesNoAnswers;
    QList<bool> m_rotateAnswers;
    QPushButton* m_clickedButton = nullptr;
};
