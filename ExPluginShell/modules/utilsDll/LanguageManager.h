#pragma once

#include "utilsdll_global.h"

#include <QObject>
#include <QPointer>
#include <QStandardItemModel>
#include <QString>
#include <QStringList>
#include <QTranslator>

namespace TOLVAN_NAMESPACE
{

/// Decides the language of the user interface and installs its translators into the running application.
///
/// The choice itself is the suite-wide language number, which CSettings stores for the whole product family:
/// 0 German, 2 English, 5 French, 12 Japanese, 13 Simplified Chinese. English stands in for a number that is
/// missing or is no number. The languages on offer are found by listing ":/translations/": adding a language
/// means adding a translation file and nothing else.
///
/// \code
/// auto* languages = TOLVAN_NAMESPACE::CLanguageManager::instance();
/// languages->loadLanguageForApp();
/// comboBox->setModel(languages->model());
/// comboBox->setCurrentIndex(languages->currentLanguageIndex());
/// QObject::connect(comboBox, SIGNAL(activated(int)), languages, SLOT(changeLanguage(int)));
/// \endcode
///
/// \par The table
/// One row a language, every cell a text under Qt::DisplayRole: column 0 the language's name in itself, 1 its
/// suite number as decimal text, 2 the resource path of its file, 3 its abbreviation. Rows come in the order
/// of the listing, so look a row up by its number and never remember it. The table is filled once and stays
/// as it is.
/// \par Threads
/// Main thread only. Every operation here reads settings or resources and may block for as long as the disk
/// does.
class UTILSDLL_EXPORT CLanguageManager : public QObject
{
    Q_OBJECT

public:
    /// A manager with an empty table of its own; most callers want instance().
    explicit CLanguageManager(QObject* parent = nullptr);
    /// Leaves the installed translators in place: they belong to the application.
    ~CLanguageManager() override;

    /// The instance of the process, made on first call and kept until the library unloads. First calls from
    /// several threads at once are not guarded against.
    static CLanguageManager* instance();

    /// The language table; stays owned by the manager. Empty before loadLanguages().
    QStandardItemModel* model();
    /// Number of rows of the table.
    int langCount() const;

    /// Fills the table from the catalogues under ":/translations/". Does nothing when it is filled.
    ///
    /// A file without the messages "language name" and "ostra language number" of the context
    /// "CLanguageManager", such as the toolkit's own catalogues, is left out in silence.
    void loadLanguages();

    /// Installs the translators of the stored language and makes its locale the default one.
    ///
    /// Two are installed where the toolkit has a catalogue of that language (all but English), else one. The
    /// one installed last is removed again by the next call; the product's own catalogue then stays installed
    /// beneath the new one and is freed with the application. A stored number without a row in the table
    /// changes nothing.
    void loadLanguageForApp();

    /// Row of the language with the suite number \a id; -1, with an error in the log, when there is none.
    int getLanguageIndexFromID(unsigned id) const;
    /// Suite number of the language in row \a index; 0 for a row that does not exist.
    unsigned getLangIdFromIndex(int index) const;
    /// Row of the stored language, see getLanguageIndexFromID().
    int currentLanguageIndex() const;

    /// Abbreviation of the stored language as the table has it; empty when the table does not know its
    /// number.
    QString currentLanguageAbbrv();
    /// Abbreviation of the stored language by the fixed numbers of the suite; needs no table. "en", with a
    /// line in the log, for a number that is none of them.
    QString settingsAbbrv();
    /// Abbreviation that the suite fixed for \a code.
    /// \throws std::invalid_argument "The argument CODE does not refer to a valid language"
    static QString stringFromCodeLanguage(unsigned code);

    /// The number that the last effective loadLanguageForApp() applied; 0xFFFFFFFF before it.
    unsigned loadedLanguageID() const;
    /// The stored suite number, read from the settings at each call; 2 when that is no number.
    static unsigned currentLanguageNumber();

public Q_SLOTS:
    /// Stores and applies the language in row \a index and announces it.
    /// \return false, with nothing done, when it is the stored language already. A row that does not exist
    ///         counts as number 0.
    bool changeLanguage(int index);

Q_SIGNALS:
    /// The language has been changed by changeLanguage(); the new translators are installed.
    void languageChanged();

protected:
    /// Stores \a number; nothing is reloaded.
    static void setCurrentLanguageNumber(unsigned number);
    /// Fills the table with one row for each name. Without effect when it is filled, or when the first three
    /// lists differ in length; \a abbreviations may be shorter or longer.
    void createLanguageModel(const QStringList& names, const QStringList& numbers, const QStringList& paths,
                             const QStringList& abbreviations);

private:
    bool isFilled() const;
    int rowOfNumber(unsigned number) const;
    QString textAt(int row, int column) const;
    QTranslator* installTranslator(const QString& path);
    void releaseCurrentTranslator();

    QStandardItemModel m_model;
    // The application deletes its translators with itself; the manager may outlive it.
    QPointer<QTranslator> m_currentTranslator;
    quint32 m_loadedLanguageID = 0xFFFFFFFF;
};

} // namespace TOLVAN_NAMESPACE
