#include <ktui/nav/shell_thumbnail.h>

#include <afxwin.h>

namespace {

// Of IExtractImage, which the headers here declare without its number's definition.
constexpr GUID kExtractImage = {0xBB2E617C, 0x0920, 0x11D1, {0x9A, 0x0B, 0x00, 0xC0, 0x4F, 0xC2, 0xD6, 0xC1}};
constexpr int kLocationRoom = 520;
constexpr DWORD kColorDepth = 24;

/// A reference to a COM object, given back at the end.
template <class T>
class Reference {
public:
    Reference() = default;
    ~Reference() {
        if (m_object != nullptr) m_object->Release();
    }
    Reference(const Reference&) = delete;
    Reference& operator=(const Reference&) = delete;
    void** address() { return reinterpret_cast<void**>(&m_object); }
    T* operator->() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }

private:
    T* m_object = nullptr;
};

/// The identifier list of `name` in `folder`, given back at the end; none if it has none.
class ItemId {
public:
    ItemId(IShellFolder& folder, IMalloc& allocator, CString name) : m_allocator(allocator) {
        wchar_t* const text = name.GetBuffer();
        if (FAILED(folder.ParseDisplayName(nullptr, nullptr, text, nullptr, &m_list, nullptr)))
            m_list = nullptr;
        name.ReleaseBuffer();
    }
    ~ItemId() {
        if (m_list != nullptr) m_allocator.Free(m_list);
    }
    ItemId(const ItemId&) = delete;
    ItemId& operator=(const ItemId&) = delete;
    PIDLIST_RELATIVE list() const { return m_list; }

private:
    IMalloc& m_allocator;
    PIDLIST_RELATIVE m_list = nullptr;
};

bool find_folder(IShellFolder& desktop, IMalloc& allocator, const CString& path,
                 Reference<IShellFolder>& folder) {
    const ItemId item(desktop, allocator, path);
    return item.list() != nullptr &&
           SUCCEEDED(desktop.BindToObject(item.list(), nullptr, IID_IShellFolder, folder.address())) &&
           folder;
}

bool find_extractor(IShellFolder& folder, IMalloc& allocator, const CString& name,
                    Reference<IExtractImage>& extractor) {
    const ItemId item(folder, allocator, name);
    PCUITEMID_CHILD list = item.list();
    return list != nullptr &&
           SUCCEEDED(folder.GetUIObjectOf(nullptr, 1, &list, kExtractImage, nullptr, extractor.address())) &&
           extractor;
}

}  // namespace

HBITMAP ExtractShellThumbnail(IShellFolder& desktop, IMalloc& allocator, const wchar_t* path, int width,
                              int height) {
    const CString whole(path);
    const int name = whole.ReverseFind(L'\\') + 1;
    Reference<IShellFolder> folder;
    if (!find_folder(desktop, allocator, whole.Left(name), folder)) return nullptr;
    Reference<IExtractImage> extractor;
    if (!find_extractor(*folder.operator->(), allocator, whole.Mid(name), extractor)) return nullptr;
    wchar_t location[kLocationRoom] = {};
    DWORD priority = 0;
    DWORD flags = IEIFLAG_SCREEN;
    const SIZE size = {width, height};
    if (FAILED(extractor->GetLocation(location, kLocationRoom, &priority, &size, kColorDepth, &flags)))
        return nullptr;
    HBITMAP bitmap = nullptr;
    return SUCCEEDED(extractor->Extract(&bitmap)) ? bitmap : nullptr;
}
