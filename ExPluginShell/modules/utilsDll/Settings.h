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

/// Reads and writes the persistent preferences of the product.
///
/// Normally an instance works on the platform's native store of the current user, organisation "Tolvan",
/// application "Trelio Frame". While a temporary settings object is set with setTemporarySettings() and
/// alive, every instance, old or new, works on that object's file instead, unless its constructor was
/// given \c persistentOnly. The mode is checked in every call.
///
/// \code
/// TOLVAN_NAMESPACE::CSettings settings;
/// settings.setValue(QStringLiteral("showGrid"), true);
/// \endcode
///
/// \par Groups in temporary mode
/// All instances share the file, so its own group is never changed: beginGroup() only stores a prefix in the
/// instance. setValue(), contains() and remove() put the prefix before the key, value() does not: a value
/// written inside a group is read with its full key. Callers rely on this. A prefix begun in temporary mode
/// is kept, and value() applies it in normal mode, until endGroup() is called in temporary mode. Array
/// operations work on the shared file without the prefix.
/// \par Failures
/// A store that can't be written loses the value; no function reports it.
/// \par Threads
/// Instances are cheap; they are constructed on the stack and not shared between threads. Nothing is locked:
/// switch the mode on the main thread before other threads use settings.
class UTILSDLL_EXPORT CSettings : public QObject
{
    Q_OBJECT

public:
    /// \param parent parent of the inner QSettings, which this object holds by value: destroy this object
    ///        before \a parent
    /// \param persistentOnly true to work on the native store in every mode of the process
    explicit CSettings(QObject* parent = nullptr, bool persistentOnly = false);
    /// Writes pending changes of the native store.
    ~CSettings() override;

    /// Value of \a key, or \a defaultValue if there is none. The class description has the rule for groups.
    QVariant value(const QString& key, const QVariant& defaultValue = QVariant()) const;
    /// Sets \a key; in temporary mode the file on disk has the value when the call returns.
    void setValue(const QString& key, const QVariant& value);
    /// Whether \a key is there.
    bool contains(const QString& key) const;
    /// Removes \a key and every key below it; in temporary mode the file on disk follows before the call
    /// returns.
    void remove(const QString& key);
    /// Puts \a prefix before the keys of later calls. In temporary mode it replaces the prefix of before:
    /// groups don't nest.
    void beginGroup(const QString& prefix);
    /// Ends the group.
    void endGroup();
    /// The current group; empty if there is none.
    QString group() const;
    /// Begins reading an array, see QSettings::beginReadArray(); returns its size.
    int beginReadArray(const QString& prefix);
    /// Begins writing an array, see QSettings::beginWriteArray().
    void beginWriteArray(const QString& prefix, int size);
    /// Ends the array begun last.
    void endArray();
    /// Chooses the array entry that the next operations work on.
    void setArrayIndex(int i);
    /// Writes pending changes and reads the changes of other programs.
    void sync();
    /// Whether this instance works on the temporary settings file now.
    bool usingTemporarySettings() const;
    /// \a key with the prefix that this instance stores, "group/key"; \a key alone if there is none.
    QString localKey(const QString& key) const;

    /// Makes \a settings the store of the whole process and logs its path.
    ///
    /// The caller keeps the ownership. When the object is destroyed the process uses the native store again;
    /// instances constructed after this call log that. A reference to an object at a null address ends the
    /// temporary mode; new code calls resetTemporarySettings() for that.
    static void setTemporarySettings(CTemporarySettings& settings);
    /// Ends the temporary mode and logs the change.
    static void resetTemporarySettings();

    /// Reads \a key from the preferences INI file set with CStorageLocation::setPreferencesFilePath(), in
    /// every mode.
    /// \return \a defaultValue if the key is missing or its text is empty
    /// \throws std::runtime_error "Preferences file path not set"
    static QString getStringFromPreferencesFile(const QString& key, const QString& defaultValue);

    /// Language code of the product family: 0 German, 2 English, 5 French, 12 Japanese, 13 Simplified
    /// Chinese.
    /// \return the stored value; 2 if there is none, or if it is none of these, which is logged
    static QVariant getLanguageFromOstraConfiguration();
    /// Stores the language code of the product family, as an integer.
    static void writeLanguageToOstraConfiguration(int language);

    /// Value of \a key in \a group of the user's suite configuration file.
    ///
    /// All groups of that name are searched; the first match in document order counts. Never throws; blocks
    /// while the file is read.
    /// \return \a defaultValue if the file (logged as a warning), the group or the key is missing, and if the
    ///         file can't be read or parsed (logged as an error); "en" if the key has no value
    static QString getSettingFromOstraUserConfigFile(const QString& group, const QString& key,
                                                     const QString& defaultValue);
    /// Like getSettingFromOstraUserConfigFile(), from the machine-wide file.
    static QString getSettingFromOstraGlobalConfigFile(const QString& group, const QString& key,
                                                       const QString& defaultValue);
    /// Sets \a key in \a group of the user's suite configuration file.
    ///
    /// An existing key gets the new value and keeps its type. Otherwise a new group is appended, also if one
    /// of that name exists. A missing file is created, a missing folder is not (see
    /// CStorageLocation::ensureOstraUserConfigFolder()). The file is replaced whole: a reader, a crash or a full
    /// disk leaves the old text or the new. The file keeps its owner, group, mode and access list; it is
    /// overwritten in place where the folder does not allow replacing it. Never throws; blocks until the disk
    /// has the text.
    /// \param type free-form name of the value's type, never interpreted here
    /// \return false, with an error in the log and the file unchanged, if it can't be read, parsed or
    ///         written, and if a text holds a character that XML can't hold
    static bool writeSettingToOstraUserConfigFile(const QString& group, const QString& key,
                                                  const QString& value, const QString& type);
    /// Like writeSettingToOstraUserConfigFile(), for the machine-wide file.
    static bool writeSettingToOstraGlobalConfigFile(const QString& group, const QString& key,
                                                    const QString& value, const QString& type);

protected:
    /// Reads from the file at \a path. \throws std::runtime_error if it can't be opened or parsed
    static QString getSettingFromConfigFile(const QString& path, const QString& group, const QString& key,
                                            const QString& defaultValue);
    /// Reads from a document's text. \throws std::runtime_error if it is not well-formed
    static QString getSettingFromOstraCollectionXML(const QString& xml, const QString& group,
                                                    const QString& key, const QString& defaultValue);
    /// The first matching key element, or a null element.
    static QDomElement searchKeyInXML(QDomDocument& document, const QString& group, const QString& key);
    /// Writes to the file at \a path. \throws std::runtime_error if it can't be read, parsed or written
    static void writeSettingToConfigFile(const QString& path, const QString& group, const QString& key,
                                         const QString& value, const QString& type);
    /// Edits a document's text in place. \throws std::runtime_error if it is not well-formed
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
