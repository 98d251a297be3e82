#include <utilsDll/LanguageManager.h>

#include <QCoreApplication>
#include <QDebug>
#include <QTranslator>

using TOLVAN_NAMESPACE::CLanguageManager;

/// Keeps the module's own texts in the language of the product.
class ModuleTexts : public QObject
{
    Q_OBJECT

public:
    explicit ModuleTexts(QObject* parent)
        : QObject(parent)
    {
        connect(CLanguageManager::instance(), SIGNAL(languageChanged()), SLOT(follow()));
        follow();
    }

private Q_SLOTS:
    void follow()
    {
        const QString language = CLanguageManager::instance()->currentLanguageAbbrv();
        QCoreApplication::removeTranslator(&m_translator);
        if (m_translator.load(QStringLiteral(":/module/module_%1.qm").arg(language))) {
            QCoreApplication::installTranslator(&m_translator);
        }
    }

private:
    QTranslator m_translator;
};

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    auto* const languages = CLanguageManager::instance();
    languages->loadLanguages();
    languages->loadLanguageForApp();
    const ModuleTexts texts(qApp);

    const int before = languages->currentLanguageIndex();
    languages->changeLanguage(languages->getLanguageIndexFromID(0)); // German
    const QString german = QCoreApplication::translate("Module", "Horizon");
    languages->changeLanguage(before);
    qInfo() << german;
    return german == QLatin1String("Horizont") ? 0 : 1;
}

#include "main.moc"
