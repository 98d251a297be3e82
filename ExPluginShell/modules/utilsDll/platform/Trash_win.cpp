#include "platform/Trash.h"

#include <windows.h>

#include <shellapi.h>

#include <string>

namespace TOLVAN_NAMESPACE::Platform
{

bool moveToRecycleBin(const QString& path)
{
    std::wstring names = path.toStdWString();
    names.push_back(L'\0'); // the shell reads a list, which a second zero ends

    SHFILEOPSTRUCTW operation = {};
    operation.wFunc = FO_DELETE;
    operation.pFrom = names.c_str();
    operation.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
    return SHFileOperationW(&operation) == 0;
}

} // namespace TOLVAN_NAMESPACE::Platform
