#pragma once

#include "PageWidget.h"

#include <memory>

class CTemporarySettings;
class QComboBox;
class QLabel;
class QLineEdit;

/// Switches of the product, values by key, and the file that the product family shares.
class SettingsPage : public PageWidget
{
    Q_OBJECT

public:
    explicit SettingsPage(QWidget* parent);
    ~SettingsPage() override;

    void prepareForPicture() override;

protected:
    void languageChanged() override;

private:
    void addMode();
    void addSwitches();
    void addValues();
    void addSuiteFile();
    void setTemporary(bool on);
    void readValue();
    void write();
    void writeSuiteValue();

    std::unique_ptr<CTemporarySettings> m_temporary;
    QComboBox* m_level = nullptr;
    QLineEdit* m_key = nullptr;
    QLineEdit* m_value = nullptr;
    QLineEdit* m_suiteValue = nullptr;
};
