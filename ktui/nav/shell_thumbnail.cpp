#include <ktui/nav/shell_thumbnail.h>

#include <afxwin.h>

#include <shlobj.h>

#include <ktui/host/com_reference.h>
#include <ktui/nav/item_id_list.h>

namespace {

// Of IExtractImage, which the headers here declare without its number's definition.
constexpr GUID kExtractImage = {0xBB2E617C, 0x0920, 0x11D1, {0x9A, 0x0B, 0x00, 0xC0, 0x4F, 0xC2, 0xD6, 0xC1}};
constexpr int kLocationRoom = 520;
constexpr DWORD kColorDepth = 24;

/// The identifier list of `name` in `folder`, given back at the end; none if it has none.
class ItemId {
public:
    ItemId(IShellFolder& folder, CString name) {
        wchar_t* const text = name.GetBuffer();
        if (FAILED(folder.ParseDisplayName(nullptr, nullptr, text, nullptr, &m_list, nullptr)))
            m_list = nullptr;
        name.ReleaseBuffer();
    }
    ~ItemId() { FreeItemIdList(m_list); }
    ItemId(const ItemId&) = delete;
    ItemId& operator=(const ItemId&) = delete;
    PIDLIST_RELATIVE list() const { return m_list; }

private:
    PIDLIST_RELATIVE m_list = nullptr;
};

bool find_folder(IShellFolder& desktop, const CString& path, ComReference<IShellFolder>& folder) {
    const ItemId item(desktop, path);
    return item.list() != nullptr &&
           SUCCEEDED(desktop.BindToObject(item.list(), nullptr, IID_IShellFolder, folder.anyPlace())) &&
           folder;
}

bool find_extractor(IShellFolder& folder, const CString& name, ComReference<IExtractImage>& extractor) {
    const ItemId item(folder, name);
    PCUITEMID_CHILD list = item.list();
    return list != nullptr &&
           SUCCEEDED(folder.GetUIObjectOf(nullptr, 1, &list, kExtractImage, nullptr, extractor.anyPlace())) &&
           extractor;
}

}  // namespace

HBITMAP ExtractShellThumbnail(const wchar_t* path, int width, int height) {
    ComReference<IShellFolder> desktop, folder;
    if (FAILED(::SHGetDesktopFolder(desktop.place())) || !desktop) return nullptr;
    const CString whole(path);
    const int name = whole.ReverseFind(L'\\') + 1;
    if (!find_folder(*desktop, whole.Left(name), folder)) return nullptr;
    ComReference<IExtractImage> extractor;
    if (!find_extractor(*folder, whole.Mid(name), extractor)) return nullptr;
    wchar_t location[kLocationRoom] = {};
    DWORD priority = 0;
    DWORD flags = IEIFLAG_SCREEN;
    const SIZE size = {width, height};
    if (FAILED(extractor->GetLocation(location, kLocationRoom, &priority, &size, kColorDepth, &flags)))
        return nullptr;
    HBITMAP bitmap = nullptr;
    return SUCCEEDED(extractor->Extract(&bitmap)) ? bitmap : nullptr;
}
