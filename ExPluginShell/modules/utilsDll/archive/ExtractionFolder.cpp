#include "ExtractionFolder.h"

#include <QDir>
#include <QFileInfo>

namespace TOLVAN_NAMESPACE
{

namespace
{

bool isInside(const QString& path, const QString& root)
{
    return path == root || path.startsWith(root.endsWith(QLatin1Char('/')) ? root : root + QLatin1Char('/'));
}

} // namespace

ExtractionFolder::ExtractionFolder(const QString& path)
    : m_given(path.isEmpty() ? QStringLiteral(".") : path)
{
}

bool ExtractionFolder::enter(const QStringList& parts)
{
    if (m_root.isEmpty()) {
        QDir().mkpath(m_given);
        m_root = QFileInfo(m_given).canonicalFilePath();
        if (m_root.isEmpty() || !QFileInfo(m_root).isDir()) {
            m_root.clear();
            return false;
        }
    }
    QString path = m_root;
    for (const QString& part : parts) {
        if (!path.endsWith(QLatin1Char('/'))) { // the root of a file system has one
            path += QLatin1Char('/');
        }
        path += part;
        if (!m_known.contains(path)) {
            if (!step(path)) {
                return false;
            }
            m_known.insert(path);
        }
    }
    m_current = path;
    return true;
}

bool ExtractionFolder::step(const QString& path)
{
    const QFileInfo info(path);
    if (info.isSymLink() || info.isJunction()) {
        return info.isDir() && isInside(info.canonicalFilePath(), m_root);
    }
    return info.isDir() || (!info.exists() && QDir().mkdir(path));
}

QStringList ExtractionFolder::currentRealParts() const
{
    const QString real = QFileInfo(m_current).canonicalFilePath();
    return real.mid(m_root.size()).split(QLatin1Char('/'), Qt::SkipEmptyParts);
}

void ExtractionFolder::setPermissions(QFile::Permissions permissions) const
{
    constexpr QFile::Permissions owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    if (permissions) {
        QFile::setPermissions(m_current, permissions | owner);
    }
}

} // namespace TOLVAN_NAMESPACE
