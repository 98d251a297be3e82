#pragma once

#include <QSettings>
#include <QVariant>

/// Keeps the language that the product family has stored, or that it has stored none, and puts it back at the
/// end of its life: for a walk through all languages, each of which is stored as it is chosen.
class StoredLanguage
{
public:
    StoredLanguage() = default;
    ~StoredLanguage()
    {
        if (m_language.isValid()) {
            m_family.setValue(m_key, m_language);
        } else {
            m_family.remove(m_key);
        }
    }
    Q_DISABLE_COPY(StoredLanguage)

private:
    const QString m_key = QStringLiteral("currentLanguage");
    QSettings m_family{QStringLiteral("Tolvan"), QStringLiteral("Ostra Collection")};
    const QVariant m_language = m_family.value(m_key);
};
