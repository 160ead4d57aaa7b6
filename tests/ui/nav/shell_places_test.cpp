// The places that a shell has in the computer: those of the file system, each by its text and its path.
#include <ktui/nav/shell_places.h>

#include <shlobj.h>
#include <shlwapi.h>

#include <string>
#include <vector>

#include "replaced_import.h"
#include "ui_test.h"

namespace {

/// An object of the shell that the test holds itself; its users have to give back what they take.
template <class Kind>
class Held : public Kind {
public:
    virtual ~Held() { EXPECT_EQ(references, 0); }
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references); }
    ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--references); }
    int references = 0;
};

/// An item that says no more than its number.
LPITEMIDLIST newItem(USHORT number) {
    auto* const bytes = static_cast<USHORT*>(::CoTaskMemAlloc(3 * sizeof(USHORT)));
    bytes[0] = 2 * sizeof(USHORT);
    bytes[1] = number;
    bytes[2] = 0;
    return reinterpret_cast<LPITEMIDLIST>(bytes);
}
USHORT numberOf(LPCITEMIDLIST item) { return reinterpret_cast<const USHORT*>(item)[1]; }

/// What the shell says of an item.
struct Child {
    std::wstring name, path;
    HRESULT knows;  ///< whether it tells the attributes
    SFGAOF attributes;
};

class Children final : public Held<IEnumIDList> {
public:
    explicit Children(std::size_t count) : m_count(count) {}
    HRESULT STDMETHODCALLTYPE Next(ULONG, LPITEMIDLIST* items, ULONG*) override {
        if (m_next == m_count) return S_FALSE;
        *items = newItem(static_cast<USHORT>(m_next++));
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Reset() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Clone(IEnumIDList**) override { return E_NOTIMPL; }

private:
    std::size_t m_count, m_next = 0;
};

/// The desktop, and the computer in it.
class ComputerFolder final : public Held<IShellFolder> {
public:
    explicit ComputerFolder(std::vector<Child> all) : m_all(std::move(all)), m_children(m_all.size()) {}
    HRESULT STDMETHODCALLTYPE ParseDisplayName(HWND, LPBC, LPOLESTR, ULONG*, LPITEMIDLIST*, ULONG*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE EnumObjects(HWND, DWORD kinds, IEnumIDList** children) override {
        EXPECT_EQ(kinds, static_cast<DWORD>(SHCONTF_FOLDERS));
        *children = nullptr;
        if (listing != S_OK) return listing;
        m_children.AddRef();
        *children = &m_children;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE BindToObject(LPCITEMIDLIST, LPBC, REFIID, void** folder) override {
        *folder = nullptr;
        if (FAILED(binding)) return binding;
        AddRef();
        *folder = static_cast<IShellFolder*>(this);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE BindToStorage(LPCITEMIDLIST, LPBC, REFIID, void**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CompareIDs(LPARAM, LPCITEMIDLIST, LPCITEMIDLIST) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CreateViewObject(HWND, REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetAttributesOf(UINT, LPCITEMIDLIST* items, SFGAOF* attributes) override {
        const Child& child = m_all[numberOf(*items)];
        *attributes = child.attributes;
        return child.knows;
    }
    HRESULT STDMETHODCALLTYPE GetUIObjectOf(HWND, UINT, LPCITEMIDLIST*, REFIID, UINT*, void**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetDisplayNameOf(LPCITEMIDLIST item, SHGDNF kind, LPSTRRET name) override {
        const Child& child = m_all[numberOf(item)];
        name->uType = STRRET_WSTR;
        return ::SHStrDupW((kind & SHGDN_FORPARSING) ? child.path.c_str() : child.name.c_str(),
                           &name->pOleStr);
    }
    HRESULT STDMETHODCALLTYPE SetNameOf(HWND, LPCITEMIDLIST, LPCOLESTR, SHGDNF, LPITEMIDLIST*) override {
        return E_NOTIMPL;
    }

    HRESULT binding = S_OK, listing = S_OK;  ///< what the folder answers; anything else gives nothing

private:
    std::vector<Child> m_all;
    Children m_children;
};

ComputerFolder* shown = nullptr;

HRESULT WINAPI desktop(IShellFolder** folder) {
    *folder = nullptr;
    if (shown == nullptr) return E_FAIL;
    shown->AddRef();
    *folder = shown;
    return S_OK;
}

std::wstring listed(const std::vector<ShellPlace>& places) {
    std::wstring text;
    for (const ShellPlace& place : places)
        text += std::wstring(place.name.GetString()) + L" = " + place.value.GetString() + L"\n";
    return text;
}

}  // namespace

TEST(ShellPlaces, InTheComputerAreThoseOfTheFileSystem) {
    ComputerFolder folder({{L"System (C:)", L"C:\\", S_OK, SFGAO_FILESYSTEM},
                           {L"Control Panel", L"::{1}", S_OK, 0},
                           {L"Unknown", L"::{2}", E_FAIL, SFGAO_FILESYSTEM},
                           {L"Data (D:)", L"D:\\", S_OK, SFGAO_FILESYSTEM | SFGAO_READONLY}});
    shown = &folder;
    {
        const ui_test::ReplacedImport shell(::GetModuleHandleW(nullptr), "SHGetDesktopFolder", &desktop);
        ASSERT_TRUE(shell.isThere());
        EXPECT_EQ(listed(PlacesInComputer()), L"System (C:) = C:\\\nData (D:) = D:\\\n");
    }
    shown = nullptr;
}

TEST(ShellPlaces, AreNoneWhereTheShellDoesNotListThem) {
    const ui_test::ReplacedImport shell(::GetModuleHandleW(nullptr), "SHGetDesktopFolder", &desktop);
    ASSERT_TRUE(shell.isThere());
    shown = nullptr;
    EXPECT_EQ(listed(PlacesInComputer()), L"");
    EXPECT_FALSE(ComputerPlace());
    const auto listedBy = [](HRESULT binding, HRESULT listing) {
        ComputerFolder folder({{L"System (C:)", L"C:\\", S_OK, SFGAO_FILESYSTEM}});
        folder.binding = binding;
        folder.listing = listing;
        shown = &folder;
        const std::wstring places = listed(PlacesInComputer());
        shown = nullptr;
        return places;
    };
    EXPECT_EQ(listedBy(S_OK, S_OK), L"System (C:) = C:\\\n");
    EXPECT_EQ(listedBy(E_FAIL, S_OK), L"");
    EXPECT_EQ(listedBy(S_OK, E_FAIL), L"");
    EXPECT_EQ(listedBy(S_OK, S_FALSE), L"") << "it says that all is well and has none";
}
