#include "platform/KnownFolders.h"

#include <initguid.h>
#include <knownfolders.h>
#include <shlobj.h>
#include <windows.h>

#include <memory>

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

QString pathOf(REFKNOWNFOLDERID id)
{
    PWSTR buffer = nullptr;
    const HRESULT result = SHGetKnownFolderPath(id, 0, nullptr, &buffer);
    // The buffer has to be freed also when the call failed.
    const std::unique_ptr<wchar_t, decltype(&CoTaskMemFree)> owner(buffer, &CoTaskMemFree);
    return SUCCEEDED(result) ? QString::fromWCharArray(buffer) : QString();
}

QString commonPictures()
{
    wchar_t buffer[MAX_PATH + 1] = {};
    return SHGetSpecialFolderPathW(nullptr, buffer, CSIDL_COMMON_PICTURES, TRUE)
               ? QString::fromWCharArray(buffer)
               : QString();
}

} // namespace

QString knownFolder(KnownFolder folder)
{
    switch (folder) {
    case KnownFolder::LocalAppData:
        return pathOf(FOLDERID_LocalAppData);
    case KnownFolder::ProgramData:
        return pathOf(FOLDERID_ProgramData);
    case KnownFolder::CommonPictures:
        return commonPictures();
    }
    return {};
}

QString machineWideConfigBase()
{
    return QStringLiteral("C:/ProgramData");
}

} // namespace TOLVAN_NAMESPACE::Platform
