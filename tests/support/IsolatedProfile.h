#pragma once

#include <QString>
#include <QTemporaryDir>

/// A user profile of the test program's own. Made before the application object, so that no test ever reads
/// or writes the user's real settings and folders.
///
/// Elsewhere than on Windows, home, data, configuration and temporary folders are redirected into a temporary
/// folder. Windows knows no such redirection: there the known folders and the registry belong to the Wine
/// prefix of the build, and the product's branches of the registry are emptied.
class IsolatedProfile
{
public:
    IsolatedProfile();
    ~IsolatedProfile();

    /// Folder that is the test's to fill; removed at the end.
    QString path() const { return m_root.path(); }

    /// Removes every value that the product or its family keeps in the native settings stores.
    static void clearStores();

private:
    QTemporaryDir m_root;
};
