#include "StoredLanguage.h"

namespace
{

const QString languageKey = QStringLiteral("currentLanguage");

} // namespace

StoredLanguage::StoredLanguage()
    : m_family(QStringLiteral("Tolvan"), QStringLiteral("Ostra Collection"))
    , m_language(m_family.value(languageKey))
{
}

StoredLanguage::~StoredLanguage()
{
    if (m_language.isValid()) {
        m_family.setValue(languageKey, m_language);
    } else {
        m_family.remove(languageKey);
    }
}
