#include "OwnTexts.h"

#include <utilsDll/LanguageManager.h>

#include <QCoreApplication>

using TOLVAN_NAMESPACE::CLanguageManager;

OwnTexts::OwnTexts(QObject* parent)
    : QObject(parent)
{
    connect(CLanguageManager::instance(), &CLanguageManager::languageChanged, this, &OwnTexts::follow);
    follow();
}

void OwnTexts::follow()
{
    const QString language = CLanguageManager::instance()->currentLanguageAbbrv();
    QCoreApplication::removeTranslator(&m_translator);
    if (m_translator.load(QStringLiteral(":/showcase/showcase_%1.qm").arg(language))) {
        QCoreApplication::installTranslator(&m_translator);
    }
}
