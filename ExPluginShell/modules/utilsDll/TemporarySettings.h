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

/// A temporary settings file, for a run that must not read or change the user's own preferences.
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
/// The start-up code of the host owns the object and deletes it at the end of the run. The destructor removes
/// the folder, also if writes were pending.
/// \par Failures
/// Without a seed file the settings start empty. Without a usable temporary folder an assertion report is
/// logged and the object is constructed; its writes are lost. No function reports a write error.
/// \par Threads
/// Use it on the main thread of the host; nothing is locked.
class UTILSDLL_EXPORT CTemporarySettings : public QObject
{
    Q_OBJECT

public:
    /// \param programPath the running program or module, whose folder holds the seed file, in the system's
    ///        8-bit encoding for file names; null for no seed file
    explicit CTemporarySettings(const char* programPath);
    ~CTemporarySettings() override;

    /// The path set with setSharedSettingsPath(); if there is none, the file of the object that was
    /// constructed last in this process, which need not be this object's own. Native separators.
    const QString& tempSettingsPath() const;
    /// Changes what tempSettingsPath() returns. This object keeps working on its own file.
    void setSharedSettingsPath(const QString& path);

    /// Value of \a key, or \a defaultValue if there is none.
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
    /// Writes pending changes to the file and reads the changes of other programs.
    void sync();

    /// Sets \a key; the file on disk has the value when the call returns.
    void setValue(const QString& key, const QVariant& value);
    /// Removes \a key and every key below it; the file on disk follows before the call returns.
    void remove(const QString& key);
    /// Removes every key; the file on disk follows before the call returns.
    void clear();

private:
    friend class TOLVAN_NAMESPACE::CSettings; // works on the shared QSettings itself

    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<QTemporaryDir> m_tempDir;
    QString m_sharedSettingsPath;
};
