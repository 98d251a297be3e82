#pragma once

#include "PageWidget.h"

class QLabel;
class QLineEdit;

/// Switches of the product, values by key, and the file that the product family shares.
class SettingsPage : public PageWidget
{
    Q_OBJECT

public:
    explicit SettingsPage(QWidget* parent);

protected:
    void languageChanged() override;

private:
    void addSwitches();
    void addValues();
    void addSuiteFile();
    void readValue();
    void writeSuiteValue();

    QLabel* m_store = nullptr;
    QLineEdit* m_key = nullptr;
    QLineEdit* m_value = nullptr;
    QLineEdit* m_suiteValue = nullptr;
};
