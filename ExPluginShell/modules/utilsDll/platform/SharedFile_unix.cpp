#include "platform/FileReplacement.h"
#include "platform/SharedFile.h"

namespace TOLVAN_NAMESPACE::Platform
{

bool openSharedFile(QFile& file, QIODevice::OpenMode mode)
{
    return file.open(mode | QIODevice::ExistingOnly);
}

bool replaceSharedFile(const QString& path, const QByteArray& text)
{
    return replaceFile(path, text);
}

} // namespace TOLVAN_NAMESPACE::Platform
