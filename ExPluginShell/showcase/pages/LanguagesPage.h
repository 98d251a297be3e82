#pragma once

#include "PageWidget.h"

class QLabel;
class QTableView;

/// The languages on offer, and what changes with them.
class LanguagesPage : public PageWidget
{
    Q_OBJECT

public:
    explicit LanguagesPage(QWidget* parent);

protected:
    void languageChanged() override;

private:
    void addTable();
    void use(int row);
    void addSamples();

    QTableView* m_table = nullptr;
    QLabel* m_date = nullptr;
    QLabel* m_number = nullptr;
    QLabel* m_button = nullptr;
};
