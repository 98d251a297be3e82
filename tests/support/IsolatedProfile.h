#pragma once

#include <QString>
#include <QTemporaryDir>

/// A user profile for one test program. Create it before the application object: no test may read or write the
/// user's settings and folders.
///
/// On Unix, home, data, configuration and temporary folders are redirected into a temporary folder. Windows has
/// no such redirection: there the known folders and the registry belong to the Wine prefix of the build, and the
/// product's branches of the registry are cleared.
class IsolatedProfile
{
public:
    IsolatedProfile();
    ~IsolatedProfile();

    /// Folder for the test's own files; removed by the destructor.
    QString path() const { return m_root.path(); }

    /// Removes every value that the product or its family keeps in the native settings stores.
    static void clearStores();

private:
    QTemporaryDir m_root;
};
