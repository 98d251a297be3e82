#include "platform/SharedFile.h"

#include <QSaveFile>

namespace TOLVAN_NAMESPACE
{
namespace Platform
{

bool openSharedFile(QFile& file, QIODevice::OpenMode mode)
{
    return file.open(mode | QIODevice::ExistingOnly);
}

bool replaceSharedFile(const QString& path, const QByteArray& text)
{
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        return false;
    }
    file.write(text);
    return file.commit();
}

} // namespace Platform
} // namespace TOLVAN_NAMESPACE
