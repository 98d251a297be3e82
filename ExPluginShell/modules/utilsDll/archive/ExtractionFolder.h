#pragma once

#include <QFile>
#include <QSet>
#include <QString>
#include <QStringList>

namespace TOLVAN_NAMESPACE
{

/// The folder that an archive is unpacked into, and the folders below it. Makes them one by one and lets no
/// link lead outside. Internal.
class ExtractionFolder
{
public:
    /// \param path the folder; made with all missing parents by the first enter()
    explicit ExtractionFolder(const QString& path);

    /// Goes to the folder with these parts below the root, making what is missing.
    /// \return false when a part can't be made, is a file, or is a link that leads outside
    bool enter(const QStringList& parts);

    /// The folder that was entered last, absolute, without a separator at its end.
    const QString& currentPath() const { return m_current; }
    /// Parts of that folder below the root once its links are resolved.
    QStringList currentRealParts() const;
    /// Gives that folder permissions of an archive; its owner can always use it. Has no effect without
    /// permissions, and for a folder of another user.
    void setPermissions(QFile::Permissions permissions) const;

private:
    bool step(const QString& path);

    const QString m_given;
    QString m_root; ///< canonical, empty until the folder exists
    QString m_current;
    QSet<QString> m_known;
};

} // namespace TOLVAN_NAMESPACE
