#pragma once

#include "PageWidget.h"

#include <utilsDll/soap/qtsoap.h>

class LengthService;
class QComboBox;
class QLabel;
class QPlainTextEdit;
class QSpinBox;

/// Asks a small service of the showcase's own, and shows the request and the answer as they travel.
class WebServicePage : public PageWidget
{
    Q_OBJECT

public:
    explicit WebServicePage(QWidget* parent);

    void prepareForPicture() override;

protected:
    void languageChanged() override;

private:
    void addQuestion();
    void addMessages();
    QPlainTextEdit* addView(const char* title, QLabel* note, int stretch);
    static QString readable(const TOLVAN_NAMESPACE::QtSoapMessage& message);
    void showRequest();
    void ask();
    void showAnswer(const TOLVAN_NAMESPACE::QtSoapMessage& answer);
    void showResult();

    LengthService* m_service;
    TOLVAN_NAMESPACE::QtSoapHttpTransport m_transport;
    QSpinBox* m_amount = nullptr;
    QComboBox* m_unit = nullptr;
    QLabel* m_result = nullptr;
    QPlainTextEdit* m_request = nullptr;
    QPlainTextEdit* m_answer = nullptr;
};
