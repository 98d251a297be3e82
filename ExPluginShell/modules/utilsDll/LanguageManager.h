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
/// The language is stored as a number, which CSettings keeps for the whole product family: 0 German, 2
/// English, 5 French, 12 Japanese, 13 Simplified Chinese. A missing or invalid number means English.
/// The manager finds the available languages by listing ":/translations/": a new language needs only a
/// new translation file.
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
/// The table has one row for each language, and each cell is a text under Qt::DisplayRole. Column 0 is the
/// name of the language in that language, column 1 its number as decimal text, column 2 the resource path of
/// its file, column 3 its abbreviation. The order of the rows is not defined: look up a row by its number.
/// The table is filled once and does not change afterwards.
/// \par Threads
/// Main thread only. The operations read settings or resources and may block on disk access.
class UTILSDLL_EXPORT CLanguageManager : public QObject
{
    Q_OBJECT

public:
    /// Creates a manager with an empty table. Most callers use instance() instead.
    explicit CLanguageManager(QObject* parent = nullptr);
    /// The installed translators stay: the application object owns them.
    ~CLanguageManager() override;

    /// The instance of the process, created by the first call and kept until the library unloads. The first
    /// call is not thread-safe.
    static CLanguageManager* instance();

    /// The language table, owned by the manager. Empty before loadLanguages().
    QStandardItemModel* model();
    /// Number of rows of the table.
    int langCount() const;

    /// Fills the table from the catalogues under ":/translations/". Does nothing if it is already filled.
    ///
    /// Files without the messages "language name" and "ostra language number" of the context
    /// "CLanguageManager", such as Qt's own catalogues, are skipped without a log line.
    void loadLanguages();

    /// Installs the translators of the stored language and makes its locale the default one. In an
    /// application with a user interface the fonts of Japanese or Chinese become substitutes
    /// (QFont::insertSubstitutions()) of the product's fonts and of the application font.
    ///
    /// Installs the product's catalogue and, if the resources hold one (all languages but English), Qt's. The
    /// next call removes only the translator that was installed last; the other one stays installed and is
    /// freed with the application object. A stored number without a row in the table changes nothing.
    void loadLanguageForApp();

    /// Row of the language with the number \a id. Logs an error and returns -1 if the table has no such row.
    int getLanguageIndexFromID(unsigned id) const;
    /// Number of the language in row \a index; 0 if the row does not exist.
    unsigned getLangIdFromIndex(int index) const;
    /// Row of the stored language, see getLanguageIndexFromID().
    int currentLanguageIndex() const;

    /// Abbreviation of the stored language from the table; empty if the table has no row for it.
    QString currentLanguageAbbrv();
    /// Abbreviation of the stored language from the fixed list of numbers; needs no table. Logs a line and
    /// returns "en" for a number that is not in the list.
    QString settingsAbbrv();
    /// Abbreviation for the language number \a code, from the fixed list.
    /// \throws std::invalid_argument "The argument CODE does not refer to a valid language"
    static QString stringFromCodeLanguage(unsigned code);

    /// The number that loadLanguageForApp() has applied last; 0xFFFFFFFF before that.
    unsigned loadedLanguageID() const;
    /// The stored number, read from the settings at each call; 2 if none or an invalid one is stored.
    static unsigned currentLanguageNumber();

public Q_SLOTS:
    /// Stores and applies the language in row \a index and emits languageChanged().
    /// \param index row of the table; a row that does not exist counts as number 0
    /// \return false, with nothing done, if this language is already stored
    bool changeLanguage(int index);

Q_SIGNALS:
    /// changeLanguage() has changed the language and installed the new translators.
    void languageChanged();

protected:
    /// Stores \a number and reloads nothing.
    static void setCurrentLanguageNumber(unsigned number);
    /// Fills the table with one row for each name. Does nothing if it is already filled, or if the first
    /// three lists differ in length; \a abbreviations may be shorter or longer.
    void createLanguageModel(const QStringList& names, const QStringList& numbers, const QStringList& paths,
                             const QStringList& abbreviations);

private:
    bool isFilled() const;
    int rowOfNumber(unsigned number) const;
    QString textAt(int row, int column) const;
    QTranslator* installTranslator(const QString& path);
    void releaseCurrentTranslator();

    QStandardItemModel m_model;
    // The application object deletes its translators, and the manager may outlive it.
    QPointer<QTranslator> m_currentTranslator;
    quint32 m_loadedLanguageID = 0xFFFFFFFF;
};

} // namespace TOLVAN_NAMESPACE
