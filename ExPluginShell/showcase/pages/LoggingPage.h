#pragma once

#include "PageWidget.h"

class QLineEdit;

/// The log of this process as it grows, and lines sent by hand at the four levels.
class LoggingPage : public PageWidget
{
    Q_OBJECT

public:
    explicit LoggingPage(QWidget* parent);

private:
    void addSender();
    void addLog();

    QLineEdit* m_message = nullptr;
};
