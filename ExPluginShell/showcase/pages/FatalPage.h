#pragma once

#include "PageWidget.h"

#include <utilsDll/ErrStrings.h>

/// The fatal messages of the product, each shown as it would be in trouble.
class FatalPage : public PageWidget
{
    Q_OBJECT

public:
    explicit FatalPage(QWidget* parent);

protected:
    void languageChanged() override;

private:
    void addMessage(const char* title, const char* reason,
                    void (TOLVAN_NAMESPACE::CErrStrings::*message)() const);

    TOLVAN_NAMESPACE::CErrStrings m_messages;
};
