#pragma once

#include "utilsdll_global.h"

#include <QObject>
#include <QSettings>
#include <QString>
#include <QTemporaryDir>
#include <QVariant>

#include <memory>

namespace TOLVAN_NAMESPACE
{
class CSettings;
}

/// A throw-away settings file, for a run that must not read or change the user's own preferences.
///
/// The object makes a private temporary folder, seeds `TrelioFrame.ini` in it from
/// "DefaultTemporarySettings.ini" beside the given program, and offers the usual settings operations on that
/// file. Handed to TOLVAN_NAMESPACE::CSettings::setTemporarySettings() it becomes the store of every
/// CSettings of the process, until it is destroyed.
///
/// \code
/// CTemporarySettings temporary(argv[0]);
/// TOLVAN_NAMESPACE::CSettings::setTemporarySettings(temporary);
/// \endcode
///
/// \par Ownership
/// The start-up code of the host owns the object and deletes it at the end of the run. When it dies nothing
/// of its folder is left, also when writes were pending.
/// \par Failures
/// Without a seed file the settings start empty. Without a usable temporary folder the failure is logged as a
/// failed assertion, the object is built all the same and writes are lost in silence, like all write errors
/// of the file.
/// \par Threads
/// Made for the main thread of the host; nothing is locked.
class UTILSDLL_EXPORT CTemporarySettings : public QObject
{
    Q_OBJECT

public:
    /// \param programPath a file (the running program or module) in whose folder the seed file lies, in the
    /// system's
    ///        8-bit encoding for file names; null stands for no seed file
    explicit CTemporarySettings(const char* programPath);
    ~CTemporarySettings() override;

    /// The path set with setSharedSettingsPath(), or else the file of the object that was constructed last in
    /// this process (native separators), which need not be this object's own.
    const QString& tempSettingsPath() const;
    /// Changes what tempSettingsPath() reports. This object keeps working on its own file.
    void setSharedSettingsPath(const QString& path);

    /// Value of \a key, or \a defaultValue when it is not there.
    QVariant value(const QString& key, const QVariant& defaultValue = QVariant()) const;
    /// Whether \a key is there.
    bool contains(const QString& key) const;
    /// Begins reading an array, see QSettings::beginReadArray().
    int beginReadArray(const QString& prefix);
    /// Begins writing an array, see QSettings::beginWriteArray().
    void beginWriteArray(const QString& prefix, int size);
    /// Ends the array begun last.
    void endArray();
    /// Chooses the array entry that the next operations work on.
    void setArrayIndex(int i);
    /// Writes pending changes to the file and reads changes that others made.
    void sync();

    /// Sets \a key; the file on disk has the value when the call returns.
    void setValue(const QString& key, const QVariant& value);
    /// Removes \a key and all below it; the file on disk follows at once.
    void remove(const QString& key);
    /// Removes everything; the file on disk follows at once.
    void clear();

private:
    friend class TOLVAN_NAMESPACE::CSettings; // works on the shared QSettings itself

    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<QTemporaryDir> m_tempDir;
    QString m_sharedSettingsPath;
};
