#include "platform/Modules.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>
#include <link.h>

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

struct ModuleSearch {
    QString baseName;
    QString path;
};

int compareModule(dl_phdr_info* module, std::size_t, void* data)
{
    auto& search = *static_cast<ModuleSearch*>(data);
    const QString path = QFile::decodeName(module->dlpi_name);
    if (QFileInfo(path).fileName() != search.baseName) {
        return 0;
    }
    search.path = path;
    return 1; // ends the walk
}

} // namespace

QString loadedModulePath(const QString& baseName)
{
    ModuleSearch search{baseName, {}};
    if (!baseName.isEmpty()) { // the program itself is listed under an empty name
        dl_iterate_phdr(&compareModule, &search);
    }
    return search.path;
}

QString ownLibraryFolder()
{
    Dl_info info = {};
    if (dladdr(reinterpret_cast<const void*>(&ownLibraryFolder), &info) == 0 || !info.dli_fname) {
        return {};
    }
    return QFileInfo(QFile::decodeName(info.dli_fname)).absolutePath();
}

} // namespace TOLVAN_NAMESPACE::Platform
