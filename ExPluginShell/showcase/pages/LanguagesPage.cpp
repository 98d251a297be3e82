#include "Pages.h"
#include "PageWidget.h"
#include "Report.h"
#include "StoredLanguage.h"

#include <utilsDll/LanguageManager.h>

using TOLVAN_NAMESPACE::CLanguageManager;

/// The languages on offer, and what changes with them.
class LanguagesPage : public PageWidget
{
    Q_OBJECT

public:
    explicit LanguagesPage(QWidget* parent)
        : PageWidget(parent)
        , m_table(new QTableView(this))
    {
        m_table->setModel(CLanguageManager::instance()->model());
        prepareTable(m_table);
        m_table->setSelectionMode(QAbstractItemView::SingleSelection);
        m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
        m_table->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
        m_table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        connect(m_table, &QTableView::activated, this,
                [this](const QModelIndex& index) { use(index.row()); });
        column()->addWidget(m_table);
        addButtons(
            {makeButton(QT_TR_NOOP("Use this language"), [this] { use(m_table->currentIndex().row()); })});
        column()->addWidget(makeAnswer());
        addTitle(QT_TR_NOOP("What follows the language"));
        auto* const form = addForm();
        addFact(form, QT_TR_NOOP("A date"),
                [] { return QLocale().toString(QDate(2026, 3, 14), QLocale::LongFormat); });
        addFact(form, QT_TR_NOOP("A number"), [] { return QLocale().toString(1234567.89, 'f', 2); });
        addFact(form, QT_TR_NOOP("A button of Qt"),
                [] { return QCoreApplication::translate("QPlatformTheme", "Discard"); });
        column()->addStretch();
        languageChanged();
    }

protected:
    void languageChanged() override
    {
        const QStringList headers{tr("Language"), tr("Number"), tr("Catalogue"), tr("Abbreviation")};
        auto* const languages = CLanguageManager::instance();
        for (int i = 0; i < headers.size(); ++i) {
            languages->model()->setHeaderData(i, Qt::Horizontal, headers.at(i));
        }
        m_table->selectRow(languages->currentLanguageIndex());
        m_table->resizeRowsToContents();
        m_table->setFixedHeight(m_table->horizontalHeader()->sizeHint().height() +
                                m_table->verticalHeader()->length() + 2 * m_table->frameWidth());
    }

private:
    //! [code]
    void use(int row)
    {
        auto* const languages = CLanguageManager::instance();
        const bool changed = languages->changeLanguage(row);
        const QString name = languages->model()->index(row, 0).data().toString();
        answer([=] { return changed ? tr("Now in use: %1").arg(name) : tr("Already in use: %1").arg(name); });
    }
    //! [code]

    QTableView* m_table;
};

QWidget* makeLanguagesPage(QWidget* parent)
{
    return new LanguagesPage(parent);
}

void walkLanguages(Report& report)
{
    const StoredLanguage storedLanguage;
    CLanguageManager& languages = *CLanguageManager::instance();
    QElapsedTimer timer;
    timer.start();
    languages.loadLanguageForApp();
    report.check("languages found",
                 QStringLiteral("%1 in %2 µs").arg(languages.langCount()).arg(timer.nsecsElapsed() / 1000),
                 languages.langCount() == 5);
    const int stored = languages.currentLanguageIndex();
    for (int row = 0; row < languages.langCount(); ++row) {
        languages.changeLanguage(row);
        const QString name = languages.model()->index(row, 0).data().toString();
        report.check(QStringLiteral("changed to %1").arg(languages.currentLanguageAbbrv()),
                     QStringLiteral("%1: \"%2\", %3")
                         .arg(name, QObject::tr("Error"), QLocale().toString(12345.6, 'f', 1)),
                     languages.loadedLanguageID() == languages.getLangIdFromIndex(row) &&
                         languages.settingsAbbrv() == languages.currentLanguageAbbrv());
    }
    languages.changeLanguage(stored);
    report.check("back to the stored language", languages.currentLanguageAbbrv(),
                 languages.currentLanguageIndex() == stored);
    report.check("a change to the same language", QStringLiteral("nothing happens"),
                 !languages.changeLanguage(stored));
}

#include "LanguagesPage.moc"
