#pragma once

#include "PageWidget.h"

class QPlainTextEdit;
class QPushButton;
class QSpinBox;

/// Every message box with a text of the user's choice, and the About dialogs.
class MessageBoxPage : public PageWidget
{
    Q_OBJECT

public:
    explicit MessageBoxPage(QWidget* parent);

protected:
    void languageChanged() override;

private:
    void addFields();
    void addBoxes();
    void addAbout();
    void showBox(int kind);

    QVector<QPushButton*> m_buttons;
    QPlainTextEdit* m_text = nullptr;
    QSpinBox* m_height = nullptr;
};
