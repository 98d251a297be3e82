#pragma once

#include "PageWidget.h"

class QLabel;

/// What the product keeps about its launches, and the process.
class StatePage : public PageWidget
{
    Q_OBJECT

public:
    explicit StatePage(QWidget* parent);

private:
    void addFact(class QFormLayout* form, const char* name, std::function<QString()> value);
    void addCrashCounter();

    QLabel* m_crashes = nullptr;
};
