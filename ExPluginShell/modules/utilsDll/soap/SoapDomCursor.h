#pragma once

#include "SoapXmlCursor.h"

namespace TOLVAN_NAMESPACE
{

/// Internal: walks a tree without recursion. Elements made without a namespace are known by their tag names.
class SoapDomCursor : public SoapXmlCursor
{
public:
    /// Walks \a root, which is an element or a document; anything else is an error.
    explicit SoapDomCursor(const QDomNode& root, const QtSoapLimits& limits = QtSoapLimits());

    Token next() override;
    QString text() const override { return m_text; }
    QDomElement takeElement() override;

private:
    Token start(const QDomElement& element);

    QDomNode m_root;
    QDomNode m_current; ///< where the cursor stands; null before the start
    QString m_text;
    bool m_inside = false; ///< the next token is the first child of the current node
    bool m_finished = false;
};

} // namespace TOLVAN_NAMESPACE
