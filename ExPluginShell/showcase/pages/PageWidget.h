#pragma once

#include <QWidget>

#include <functional>
#include <map>
#include <vector>

class QFormLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

/// Base of the pages: a column of widgets whose texts follow the language while the showcase runs.
///
/// \code
/// StylePage::StylePage(QWidget* parent) : PageWidget(parent)
/// {
///     addTitle(QT_TR_NOOP("Sliders"));
///     auto* button = new QPushButton(this);
///     const char* const reset = QT_TR_NOOP("Reset");
///     translate(reset, [button](const QString& text) { button->setText(text); });
///     column()->addWidget(button);
/// }
/// \endcode
class PageWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PageWidget(QWidget* parent);

    /// Does the work that a picture of the page should show. Called for pictures only; may turn the event loop.
    virtual void prepareForPicture() {}

protected:
    /// Calls \a apply with the translation of \a source now and whenever the language changes. The context is
    /// the class of the page, so \a source is marked with QT_TR_NOOP; outside of this call, whose name the
    /// tools take for a translation of their own.
    void translate(const char* source, std::function<void(const QString&)> apply);
    /// Shows in \a label what \a text puts together, now and whenever the language changes, until the next
    /// call for this label.
    void say(QLabel* label, std::function<QString()> text);
    /// Where the page's widgets go.
    QVBoxLayout* column() const { return m_column; }

    /// Adds a subheading.
    QLabel* addTitle(const char* source);
    /// Adds a paragraph that wraps.
    QLabel* addText(const char* source);
    /// Makes a button with a translated text that runs \a action; the caller adds it to a layout.
    QPushButton* makeButton(const char* source, std::function<void()> action);
    /// Adds a form with the label column at the left.
    QFormLayout* addForm();
    /// Adds a row of buttons, left-aligned.
    void addButtons(std::initializer_list<QPushButton*> buttons);
    /// Adds a row with a translated label to \a form.
    void addRow(QFormLayout* form, const char* source, QWidget* field);

    /// Adds the line that answer() fills.
    void addAnswer();
    /// What came of the last action; follows the language.
    void answer(std::function<QString()> text);

    /// Called after every change of the language, for texts that are put together.
    virtual void languageChanged() {}
    void changeEvent(QEvent* event) override;

private:
    struct Text {
        const char* source;
        std::function<void(const QString&)> apply;
    };

    void apply(const Text& text) const;

    QVBoxLayout* m_column;
    std::vector<Text> m_texts;
    std::map<QLabel*, std::function<QString()>> m_said;
    QLabel* m_answer = nullptr;
};
