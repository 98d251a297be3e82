#pragma once

#include <QWidget>

class QLabel;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QStackedWidget;
class QVBoxLayout;

/// The host's main window: the list of pages at the left, the chosen page at the right. Its geometry and the
/// page are remembered in the settings.
class ShowcaseWindow : public QWidget
{
    Q_OBJECT

public:
    explicit ShowcaseWindow(QWidget* parent = nullptr);

    /// Shows the page in row \a index of pages().
    void showPage(int index);
    /// The page in view.
    QWidget* currentPage() const;

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* makeNavigation();
    QVBoxLayout* makeLanguageChoice();
    QVBoxLayout* makePageArea();
    void addPages();
    void step(int rows);
    void retranslate();
    void restore();

    QListWidget* m_list = nullptr;
    QLabel* m_heading = nullptr;
    QLabel* m_summary = nullptr;
    QStackedWidget* m_stack = nullptr;
    QPushButton* m_codeButton = nullptr;
    QPlainTextEdit* m_code = nullptr;
    QLabel* m_languageLabel = nullptr;
};
