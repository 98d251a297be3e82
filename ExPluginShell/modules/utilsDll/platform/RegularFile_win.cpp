#include "platform/RegularFile.h"

#include <QFile>
#include <QFileInfo>

namespace TOLVAN_NAMESPACE::Platform
{

bool openRegularFile(QFile& file)
{
    return QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

} // namespace TOLVAN_NAMESPACE::Platform
