#include "platform/ShellSelection.h"

#include <QDir>

#include <windows.h>

#include <shlobj.h>

#include <memory>
#include <vector>

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

struct FreeItemList {
    void operator()(ITEMIDLIST* list) const { ILFree(list); }
};
using ItemList = std::unique_ptr<ITEMIDLIST, FreeItemList>;

ItemList itemListOf(const QString& path)
{
    const QString native = QDir::toNativeSeparators(path);
    return ItemList(ILCreateFromPathW(reinterpret_cast<const wchar_t*>(native.utf16())));
}

} // namespace

bool selectInFileBrowser(const QString& folder, const QStringList& files)
{
    const ItemList folderList = itemListOf(folder);
    if (!folderList) {
        return false;
    }
    std::vector<ItemList> owned;
    std::vector<const ITEMIDLIST*> items;
    for (const QString& file : files) {
        if (ItemList item = itemListOf(file)) {
            items.push_back(item.get());
            owned.push_back(std::move(item));
        }
    }
    if (!items.empty()) {
        SHOpenFolderAndSelectItems(folderList.get(), static_cast<UINT>(items.size()), items.data(), 0);
    }
    return true;
}

} // namespace TOLVAN_NAMESPACE::Platform
