#pragma once

#include "PageWidget.h"

class QTableWidget;

/// Every folder and file that the product knows, and whether it is there.
class StoragePage : public PageWidget
{
    Q_OBJECT

public:
    explicit StoragePage(QWidget* parent);

protected:
    void languageChanged() override;

private:
    void fill();

    QTableWidget* m_table;
};
