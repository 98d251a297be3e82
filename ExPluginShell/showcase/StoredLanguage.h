#pragma once

#include <QSettings>
#include <QVariant>

/// Keeps the language that the product family has stored, or that it has stored none, and puts it back at the
/// end of its life: for a walk through all languages, each of which is stored as it is chosen.
class StoredLanguage
{
public:
    StoredLanguage();
    ~StoredLanguage();
    Q_DISABLE_COPY(StoredLanguage)

private:
    QSettings m_family;
    const QVariant m_language;
};
