#pragma once

#include "PageWidget.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QTabWidget;

/// What the library carries: icons to look at and copy the path of, fonts, countries, rules, style sheets.
class ResourcesPage : public PageWidget
{
    Q_OBJECT

public:
    explicit ResourcesPage(QWidget* parent);

    void prepareForPicture() override;

protected:
    void languageChanged() override;

private:
    void addTab(QWidget* tab, const char* title);
    QWidget* makeIcons();
    QWidget* makeFonts();
    QWidget* makeCountries();
    QWidget* makeRules();
    QWidget* makeSheets();
    void listIcons();
    void copyPath();

    QTabWidget* m_tabs;
    QListWidget* m_folders = nullptr;
    QListWidget* m_icons = nullptr;
    QComboBox* m_state = nullptr;
    QComboBox* m_scale = nullptr;
    QComboBox* m_ground = nullptr;
    QLineEdit* m_path = nullptr;
    QLabel* m_answer = nullptr;
};
