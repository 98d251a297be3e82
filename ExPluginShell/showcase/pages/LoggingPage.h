#pragma once

#include "PageWidget.h"

class LogModel;
class QComboBox;
class QLineEdit;
class QTableView;

/// The log of this process as it grows, and lines sent by hand at the four levels.
class LoggingPage : public PageWidget
{
    Q_OBJECT

public:
    explicit LoggingPage(QWidget* parent);

    void prepareForPicture() override;

protected:
    void languageChanged() override;

private:
    void addSender();
    void addLog();
    void send(char level);

    LogModel* m_model;
    QTableView* m_view = nullptr;
    QComboBox* m_level = nullptr;
    QLineEdit* m_message = nullptr;
};
