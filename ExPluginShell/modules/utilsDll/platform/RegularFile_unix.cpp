#include "platform/RegularFile.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace TOLVAN_NAMESPACE::Platform
{

bool openRegularFile(QFile& file)
{
    const int descriptor =
        open(QFile::encodeName(file.fileName()).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    struct stat status = {};
    if (descriptor < 0) {
        return false;
    }
    if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
        file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)) {
        return true;
    }
    close(descriptor);
    return false;
}

} // namespace TOLVAN_NAMESPACE::Platform
