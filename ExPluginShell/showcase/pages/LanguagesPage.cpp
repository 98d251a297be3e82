#include "LanguagesPage.h"

#include "Pages.h"

#include <utilsDll/LanguageManager.h>

#include <QCoreApplication>
#include <QDate>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

using TOLVAN_NAMESPACE::CLanguageManager;

QWidget* makeLanguagesPage(QWidget* parent)
{
    return new LanguagesPage(parent);
}

LanguagesPage::LanguagesPage(QWidget* parent)
    : PageWidget(parent)
{
    addTable();
    addSamples();
    column()->addStretch();
    languageChanged();
}

void LanguagesPage::addTable()
{
    auto* const languages = CLanguageManager::instance();
    m_table = new QTableView(this);
    m_table->setModel(languages->model());
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->setWordWrap(false);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(m_table, &QTableView::activated, this, [this](const QModelIndex& index) { use(index.row()); });
    column()->addWidget(m_table);
    addButtons({makeButton(QT_TR_NOOP("Use this language"), [this] { use(m_table->currentIndex().row()); })});
    addAnswer();
}

//! [code]
void LanguagesPage::use(int row)
{
    auto* const languages = CLanguageManager::instance();
    const bool changed = languages->changeLanguage(row);
    const QString name = languages->model()->index(row, 0).data().toString();
    answer([=] { return changed ? tr("Now in use: %1").arg(name) : tr("Already in use: %1").arg(name); });
}
//! [code]

void LanguagesPage::addSamples()
{
    addTitle(QT_TR_NOOP("What follows the language"));
    m_date = new QLabel(this);
    m_number = new QLabel(this);
    m_button = new QLabel(this);
    auto* const form = addForm();
    addRow(form, QT_TR_NOOP("A date"), m_date);
    addRow(form, QT_TR_NOOP("A number"), m_number);
    addRow(form, QT_TR_NOOP("A button of Qt"), m_button);
}

void LanguagesPage::languageChanged()
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
    const QLocale locale;
    m_date->setText(locale.toString(QDate(2026, 3, 14), QLocale::LongFormat));
    m_number->setText(locale.toString(1234567.89, 'f', 2));
    m_button->setText(QCoreApplication::translate("QPlatformTheme", "Discard"));
}
