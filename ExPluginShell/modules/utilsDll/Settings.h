#pragma once

#include "utilsdll_global.h"

#include <QDomDocument>
#include <QObject>
#include <QPointer>
#include <QSettings>
#include <QString>
#include <QVariant>

class CTemporarySettings;

namespace TOLVAN_NAMESPACE
{

/// The one facade through which the product reads and writes its persistent preferences.
///
/// Normally an instance works on the platform's native store of the current user, organisation "Tolvan",
/// application "Trelio Frame". While a temporary settings object is set (setTemporarySettings()) and alive,
/// every instance, old or new, works on that object's file instead, unless it was made with \c
/// persistentOnly. The mode is decided afresh at every call.
///
/// \code
/// TOLVAN_NAMESPACE::CSettings settings;
/// settings.setValue(QStringLiteral("showGrid"), true);
/// \endcode
///
/// \par Groups in temporary mode
/// The file is shared by all instances, so its own group is never changed: beginGroup() only notes a prefix
/// in the instance. setValue(), contains() and remove() put it before the key, value() does not: what is
/// written inside a group is read with the full key or after endGroup(). Callers rely on this as it is. A
/// prefix begun in temporary mode stays (and is applied by value() in normal mode) until endGroup() is called
/// in temporary mode. Array operations work on the shared file directly, without the prefix.
/// \par Failures
/// A store that can't be written loses the value in silence.
/// \par Threads
/// Instances are cheap, made on the stack and not shared between threads. The mode is switched once, on the
/// main thread, before other threads use settings; nothing is locked.
class UTILSDLL_EXPORT CSettings : public QObject
{
    Q_OBJECT

public:
    /// \param parent         parent of the inner settings object, not of this one: the facade, which holds
    /// the inner
    ///                       object by value, has to be destroyed before it
    /// \param persistentOnly true to work on the native store whatever the mode of the process
    explicit CSettings(QObject* parent = nullptr, bool persistentOnly = false);
    /// Writes pending changes of the native store.
    ~CSettings() override;

    /// Value of \a key, or \a defaultValue when it is not there. See the class about groups.
    QVariant value(const QString& key, const QVariant& defaultValue = QVariant()) const;
    /// Sets \a key; in temporary mode the file on disk has the value when the call returns.
    void setValue(const QString& key, const QVariant& value);
    /// Whether \a key is there.
    bool contains(const QString& key) const;
    /// Removes \a key and all below it; in temporary mode the file on disk follows at once.
    void remove(const QString& key);
    /// Puts \a prefix before the keys that follow. In temporary mode it replaces an earlier prefix: groups
    /// don't nest.
    void beginGroup(const QString& prefix);
    /// Ends the group.
    void endGroup();
    /// The current group, empty when there is none.
    QString group() const;
    /// Begins reading an array, see QSettings::beginReadArray(); returns its size.
    int beginReadArray(const QString& prefix);
    /// Begins writing an array, see QSettings::beginWriteArray().
    void beginWriteArray(const QString& prefix, int size);
    /// Ends the array begun last.
    void endArray();
    /// Chooses the array entry that the next operations work on.
    void setArrayIndex(int i);
    /// Writes pending changes and reads changes that others made.
    void sync();
    /// Whether this instance works on the temporary settings file at the moment.
    bool usingTemporarySettings() const;
    /// \a key with the prefix that this instance keeps itself, "group/key"; \a key alone when there is none.
    QString localKey(const QString& key) const;

    /// Makes \a settings the store of the whole process and logs its path. The object stays owned by the
    /// caller; when it dies the process is back on the native store, which instances made after this call
    /// log.
    ///
    /// A reference to an object at a null address ends the temporary mode. New code calls
    /// resetTemporarySettings().
    static void setTemporarySettings(CTemporarySettings& settings);
    /// Ends the temporary mode: logs that settings are stored in the system again, and that they are.
    static void resetTemporarySettings();

    /// Reads \a key from the preferences INI file set with CStorageLocation::setPreferencesFilePath(). The
    /// temporary mode plays no part.
    /// \return \a defaultValue when the key is missing or its text is empty
    /// \throws std::runtime_error "Preferences file path not set"
    static QString getStringFromPreferencesFile(const QString& key, const QString& defaultValue);

    /// Language code of the product family: 0 German, 2 English, 5 French, 12 Japanese, 13 Simplified
    /// Chinese.
    /// \return the value as it is stored; 2 when there is none, or when it is none of these (which is logged)
    static QVariant getLanguageFromOstraConfiguration();
    /// Stores the language code of the product family, as an integer.
    static void writeLanguageToOstraConfiguration(int language);

    /// Value of \a key in \a group of the user's suite configuration file.
    ///
    /// The first match in document order counts, over all groups of that name. Never throws; blocks while the
    /// file is read.
    /// \return \a defaultValue when the file (logged as a warning), the group or the key is missing and when
    ///        the file can't be read or parsed (logged as an error); "en" when the key is there without a
    ///        value
    static QString getSettingFromOstraUserConfigFile(const QString& group, const QString& key,
                                                     const QString& defaultValue);
    /// Like getSettingFromOstraUserConfigFile(), from the machine-wide file.
    static QString getSettingFromOstraGlobalConfigFile(const QString& group, const QString& key,
                                                       const QString& defaultValue);
    /// Sets \a key in \a group of the user's suite configuration file.
    ///
    /// A key that is there gets the new value and keeps its type. Otherwise a whole new group is appended,
    /// also when one of that name exists. A missing file is created, a missing folder is not. The file is
    /// replaced whole: a reader, or a crash at any moment, sees the old text or the new. Never throws; blocks
    /// while the file is written.
    /// \param type free-form name of the value's type, never interpreted here
    /// \return false, with an error in the log and the file untouched, when it can't be read, parsed or
    ///        written, and when a text holds a character that no XML file can hold
    static bool writeSettingToOstraUserConfigFile(const QString& group, const QString& key,
                                                  const QString& value, const QString& type);
    /// Like writeSettingToOstraUserConfigFile(), for the machine-wide file.
    static bool writeSettingToOstraGlobalConfigFile(const QString& group, const QString& key,
                                                    const QString& value, const QString& type);

protected:
    /// Reads from the file at \a path. \throws std::runtime_error when it can't be opened or parsed
    static QString getSettingFromConfigFile(const QString& path, const QString& group, const QString& key,
                                            const QString& defaultValue);
    /// Reads from a document's text. \throws std::runtime_error when it is not well-formed
    static QString getSettingFromOstraCollectionXML(const QString& xml, const QString& group,
                                                    const QString& key, const QString& defaultValue);
    /// The first matching key element, or a null element.
    static QDomElement searchKeyInXML(QDomDocument& document, const QString& group, const QString& key);
    /// Writes to the file at \a path. \throws std::runtime_error when it can't be read, parsed or written
    static void writeSettingToConfigFile(const QString& path, const QString& group, const QString& key,
                                         const QString& value, const QString& type);
    /// Edits a document's text in place. \throws std::runtime_error when it is not well-formed
    static void writeSettingToOstraCollectionXML(const QString& group, const QString& key,
                                                 const QString& value, const QString& type, QString& xml);
    /// Text of a new document that holds one group with one key.
    static QString createOstraCollectionXMLWithGivenSetting(const QString& group, const QString& key,
                                                            const QString& value, const QString& type);
    /// A new group element that holds one key.
    static QDomElement createOstraCollectionGroup(const QString& group, const QString& key,
                                                  const QString& value, const QString& type);

private:
    void connectSlots();
    void logWhenTempSettingsDeleted();
    static void switchTemporarySettings(CTemporarySettings* settings);

    static QPointer<CTemporarySettings> m_tempSettings; // not owned

    QSettings m_settings;
    QString m_group;
    bool m_persistentOnly;
};

} // namespace TOLVAN_NAMESPACE
