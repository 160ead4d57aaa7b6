#include <ktui/nav/shell_places.h>

#include <shlobj.h>
#include <shlwapi.h>

#include <ktui/host/com_reference.h>
#include <ktui/nav/item_id_list.h>

namespace {

/// Owns an item of the shell.
class Item {
public:
    Item() = default;
    ~Item() { FreeItemIdList(m_list); }
    Item(const Item&) = delete;
    Item& operator=(const Item&) = delete;
    LPITEMIDLIST* place() { return &m_list; }
    LPITEMIDLIST get() const { return m_list; }

private:
    LPITEMIDLIST m_list = nullptr;
};

CString nameOf(IShellFolder& folder, LPCITEMIDLIST item, SHGDNF kind) {
    STRRET name = {};
    wchar_t text[MAX_PATH] = {};
    if (FAILED(folder.GetDisplayNameOf(item, kind, &name)) ||
        FAILED(::StrRetToBufW(&name, item, text, MAX_PATH)))
        return {};
    return text;
}

ShellPlace placeOf(IShellFolder& folder, LPCITEMIDLIST item) {
    return {nameOf(folder, item, SHGDN_INFOLDER), nameOf(folder, item, SHGDN_FORPARSING)};
}

bool belongsToFileSystem(IShellFolder& folder, LPCITEMIDLIST item) {
    SFGAOF attributes = SFGAO_FILESYSTEM;
    return SUCCEEDED(folder.GetAttributesOf(1, &item, &attributes)) && (attributes & SFGAO_FILESYSTEM) != 0;
}

/// The folder of all drives as the desktop's child.
bool findComputer(ComReference<IShellFolder>& desktop, Item& computer) {
    return SUCCEEDED(::SHGetDesktopFolder(desktop.place())) &&
           SUCCEEDED(::SHGetSpecialFolderLocation(nullptr, CSIDL_DRIVES, computer.place()));
}

constexpr UINT kSmallIndex = SHGFI_SYSICONINDEX | SHGFI_SMALLICON;

std::optional<int> iconOfItem(LPCITEMIDLIST item) {
    SHFILEINFOW info = {};
    if (!::SHGetFileInfoW(reinterpret_cast<LPCWSTR>(item), 0, &info, sizeof info, kSmallIndex | SHGFI_PIDL))
        return std::nullopt;
    return info.iIcon;
}

}  // namespace

std::optional<ShellPlace> ComputerPlace() {
    ComReference<IShellFolder> desktop;
    Item computer;
    if (!findComputer(desktop, computer)) return std::nullopt;
    return placeOf(*desktop, computer.get());
}

std::vector<ShellPlace> PlacesInComputer() {
    std::vector<ShellPlace> places;
    ComReference<IShellFolder> desktop, folder;
    ComReference<IEnumIDList> children;
    Item computer;
    if (!findComputer(desktop, computer) ||
        FAILED(desktop->BindToObject(computer.get(), nullptr, IID_IShellFolder, folder.anyPlace())) ||
        FAILED(folder->EnumObjects(nullptr, SHCONTF_FOLDERS, children.place())) || !children)
        return places;
    for (;;) {
        Item child;
        if (children->Next(1, child.place(), nullptr) != S_OK) return places;
        if (belongsToFileSystem(*folder, child.get())) places.push_back(placeOf(*folder, child.get()));
    }
}

std::optional<int> ShellIcon(const CString& value) {
    if (value.Find(L"::") >= 0) {
        Item item;
        const HRESULT result = ::SHParseDisplayName(value, nullptr, item.place(), 0, nullptr);
        return SUCCEEDED(result) ? iconOfItem(item.get()) : std::nullopt;
    }
    SHFILEINFOW info = {};
    if (!::SHGetFileInfoW(value, 0, &info, sizeof info, kSmallIndex)) return std::nullopt;
    return info.iIcon;
}

HIMAGELIST ShellSmallIcons() {
    SHFILEINFOW info = {};
    return reinterpret_cast<HIMAGELIST>(::SHGetFileInfoW(L"C:\\", FILE_ATTRIBUTE_DIRECTORY, &info,
                                                         sizeof info, kSmallIndex | SHGFI_USEFILEATTRIBUTES));
}
