#include "platform/RegularFile.h"

#include <QFile>

#include <filesystem>

namespace TOLVAN_NAMESPACE::Platform
{

bool openRegularFile(QFile& file)
{
    // Qt takes a shortcut for what it leads to; its own content is meant.
    const std::filesystem::path path(file.fileName().toStdU16String());
    std::error_code error;
    return std::filesystem::is_regular_file(std::filesystem::symlink_status(path, error)) &&
           file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

} // namespace TOLVAN_NAMESPACE::Platform
