#pragma once

#include <QtWidgets>

#include <functional>
#include <map>
#include <vector>

/// Base of the pages: a column of widgets whose texts follow the language while the showcase runs. Brings all
/// of Qt's widgets with it.
///
/// \code
/// StylePage::StylePage(QWidget* parent) : PageWidget(parent)
/// {
///     addTitle(QT_TR_NOOP("Sliders"));
///     column()->addWidget(withText(new QPushButton, QT_TR_NOOP("Reset")));
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
    void translate(const char* source, const std::function<void(const QString&)>& apply);
    /// Keeps a property of \a object, its text if none is named, in the language of the application.
    template <class Object>
    Object* withText(Object* object, const char* source, const char* property = "text");
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
    /// Makes a row of widgets, left-aligned unless one of them is to take what is left.
    static QHBoxLayout* makeRow(std::initializer_list<QWidget*> widgets, int wide = -1);
    /// Adds a row of widgets, left-aligned.
    void addButtons(std::initializer_list<QWidget*> buttons) { column()->addLayout(makeRow(buttons)); }
    /// Adds a row with a translated label to \a form.
    void addRow(QFormLayout* form, const char* source, QWidget* field);
    /// Adds a row with a text that can be selected and follows the language.
    QLabel* addFact(QFormLayout* form, const char* source, std::function<QString()> value);
    /// Sets up \a table for reading: whole rows, no numbers beside them, no editing, Tab leaves it.
    static void prepareTable(QTableView* table);
    /// Renews the texts of \a box; the choice stays.
    static void refill(QComboBox* box, const QStringList& texts);

    /// Makes the label that answer() fills; the caller adds it to a layout.
    QLabel* makeAnswer();
    /// What came of the last action; follows the language.
    void answer(std::function<QString()> text) { say(m_answer, std::move(text)); }

    /// Called after every change of the language, for texts that are put together.
    virtual void languageChanged() {}
    void changeEvent(QEvent* event) override;

private:
    QVBoxLayout* m_column;
    std::vector<std::function<void()>> m_texts;
    std::map<QLabel*, std::function<QString()>> m_said;
    QLabel* m_answer = nullptr;
};

template <class Object>
Object* PageWidget::withText(Object* object, const char* source, const char* property)
{
    translate(source, [object, property](const QString& text) { object->setProperty(property, text); });
    return object;
}
