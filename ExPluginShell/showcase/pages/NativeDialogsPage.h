#pragma once

#include "PageWidget.h"

class QPlainTextEdit;

/// The system's dialogs for files and folders.
class NativeDialogsPage : public PageWidget
{
    Q_OBJECT

public:
    explicit NativeDialogsPage(QWidget* parent);

private:
    void answer(const QStringList& paths);

    QPlainTextEdit* m_answer;
};
