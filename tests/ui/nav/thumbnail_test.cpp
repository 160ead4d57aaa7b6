// Previews of files: whom they come from, what the shell is asked step by step, and the pixels that are
// painted.
#include <ktui/nav/thumbnail.h>
#include <ktui/nav/thumbnail_ctrl.h>

#include <shlobj.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "canvas.h"
#include "leak_count.h"
#include "preview_bytes.h"
#include "replaced_import.h"
#include "ui_test.h"

namespace {

constexpr COLORREF kGrey = RGB(0x55, 0x55, 0x55);
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr GUID kExtractImage = {0xBB2E617C, 0x0920, 0x11D1, {0x9A, 0x0B, 0x00, 0xC0, 0x4F, 0xC2, 0xD6, 0xC1}};

/// What the shell is asked, in order, and which step fails or gives nothing; the steps count from 1.
struct Record {
    std::vector<std::wstring> calls;
    int failing = 0, empty = 0, steps = 0;
    int references = 0;
    HBITMAP bitmap = nullptr;

    HRESULT step(const std::wstring& call) {
        calls.push_back(call);
        return ++steps == failing ? E_FAIL : S_OK;
    }
    /// Whether the step that was just taken gives nothing and says that all is well.
    bool isEmpty() const { return steps == empty; }
} record;

std::wstring idText(PCUIDLIST_RELATIVE list) {
    return list != nullptr ? std::to_wstring(list->mkid.cb) : L"none";
}

template <class Interface>
class Counted : public Interface {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++record.references); }
    ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--record.references); }
};

class Extractor : public Counted<IExtractImage> {
public:
    HRESULT STDMETHODCALLTYPE GetLocation(LPWSTR path, DWORD room, DWORD* priority, const SIZE* size,
                                          DWORD depth, DWORD* flags) override {
        path[room - 1] = 0;
        return record.step(L"location " + std::to_wstring(room) + L" " + std::to_wstring(*priority) + L" " +
                           std::to_wstring(size->cx) + L"x" + std::to_wstring(size->cy) + L" " +
                           std::to_wstring(depth) + L" " + std::to_wstring(*flags));
    }
    HRESULT STDMETHODCALLTYPE Extract(HBITMAP* bitmap) override {
        const HRESULT result = record.step(L"extract");
        if (SUCCEEDED(result)) *bitmap = record.bitmap = ::CreateBitmap(4, 4, 1, 1, nullptr);
        return result;
    }
} extractor;

class Folder : public Counted<IShellFolder> {
public:
    Folder(USHORT number, Folder* inner) : m_number(number), m_inner(inner) {}

    HRESULT STDMETHODCALLTYPE ParseDisplayName(HWND, LPBC, LPOLESTR name, ULONG*, PIDLIST_RELATIVE* list,
                                               ULONG*) override {
        const HRESULT result = record.step(L"parse " + std::wstring(name));
        if (FAILED(result)) return result;
        *list = static_cast<PIDLIST_RELATIVE>(::CoTaskMemAlloc(sizeof(ITEMIDLIST)));
        (*list)->mkid.cb = m_number;
        return result;
    }
    HRESULT STDMETHODCALLTYPE BindToObject(PCUIDLIST_RELATIVE list, LPBC, REFIID id, void** object) override {
        const HRESULT result =
            record.step(L"bind " + idText(list) + (id == IID_IShellFolder ? L" folder" : L" other"));
        if (FAILED(result) || record.isEmpty()) return result;
        m_inner->AddRef();
        *object = m_inner;
        return result;
    }
    HRESULT STDMETHODCALLTYPE GetUIObjectOf(HWND, UINT count, PCUITEMID_CHILD_ARRAY lists, REFIID id, UINT*,
                                            void** object) override {
        const HRESULT result = record.step(L"object " + std::to_wstring(count) + L" " + idText(lists[0]) +
                                           (id == kExtractImage ? L" extractor" : L" other"));
        if (FAILED(result) || record.isEmpty()) return result;
        extractor.AddRef();
        *object = static_cast<IExtractImage*>(&extractor);
        return result;
    }
    HRESULT STDMETHODCALLTYPE EnumObjects(HWND, SHCONTF, IEnumIDList**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE BindToStorage(PCUIDLIST_RELATIVE, LPBC, REFIID, void**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CompareIDs(LPARAM, PCUIDLIST_RELATIVE, PCUIDLIST_RELATIVE) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateViewObject(HWND, REFIID, void**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetAttributesOf(UINT, PCUITEMID_CHILD_ARRAY, SFGAOF*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetDisplayNameOf(PCUITEMID_CHILD, SHGDNF, STRRET*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetNameOf(HWND, PCUITEMID_CHILD, LPCOLESTR, SHGDNF, PITEMID_CHILD*) override {
        return E_NOTIMPL;
    }

private:
    USHORT m_number;
    Folder* m_inner;
};

Folder folder(22, nullptr);
Folder desktop(11, &folder);

class Allocator : public Counted<IMalloc> {
public:
    void* STDMETHODCALLTYPE Alloc(SIZE_T) override { return nullptr; }
    void* STDMETHODCALLTYPE Realloc(void*, SIZE_T) override { return nullptr; }
    void STDMETHODCALLTYPE Free(void* block) override {
        record.calls.push_back(L"free " + idText(static_cast<PCUIDLIST_RELATIVE>(block)));
        ::CoTaskMemFree(block);
    }
    SIZE_T STDMETHODCALLTYPE GetSize(void*) override { return 0; }
    int STDMETHODCALLTYPE DidAlloc(void*) override { return 1; }
    void STDMETHODCALLTYPE HeapMinimize() override {}
} allocator;

HRESULT WINAPI getDesktop(IShellFolder** found) {
    const HRESULT result = record.step(L"desktop");
    *found = nullptr;
    if (FAILED(result) || record.isEmpty()) return result;
    desktop.AddRef();
    *found = &desktop;
    return result;
}

HRESULT WINAPI getAllocator(IMalloc** found) {
    allocator.AddRef();
    *found = &allocator;
    return S_OK;
}

class Thumbnail : public ::testing::Test {
protected:
    Thumbnail()
        : m_folder(std::filesystem::temp_directory_path() / L"ktui thumbnails"),
          m_desktop(::GetModuleHandleW(L"ktui.dll"), "SHGetDesktopFolder", &getDesktop),
          m_allocator(::GetModuleHandleW(L"ktui.dll"), "SHGetMalloc", &getAllocator) {
        std::filesystem::create_directories(m_folder);
        record = Record();
        EXPECT_TRUE(m_desktop.isThere() && m_allocator.isThere());
    }
    ~Thumbnail() override {
        std::filesystem::remove_all(m_folder);
        EXPECT_EQ(record.references, 0);
    }
    std::wstring file(const wchar_t* name, const std::string& bytes) {
        const std::filesystem::path path = m_folder / name;
        std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return path.wstring();
    }
    std::wstring drawing(const wchar_t* name, std::uint32_t width, std::uint32_t height) {
        return file(name, preview_bytes::dwgWith(preview_bytes::greyDib(width, height)));
    }
    std::wstring folderText() const { return m_folder.wstring(); }
    /// The size of what is answered; the bitmap is deleted.
    static std::wstring sizeOf(HBITMAP bitmap) {
        if (bitmap == nullptr) return L"none";
        BITMAP info = {};
        EXPECT_NE(::GetObjectW(bitmap, sizeof info, &info), 0);
        EXPECT_TRUE(::DeleteObject(bitmap));
        return std::to_wstring(info.bmWidth) + L"x" + std::to_wstring(info.bmHeight);
    }

private:
    std::filesystem::path m_folder;
    ui_test::ReplacedImport m_desktop, m_allocator;
};

/// The rectangle that the pixels other than the ground fill, and that they fill it.
CRect painted(const ui_test::Canvas& canvas, int width, int height) {
    CRect area(width, height, 0, 0);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            if (canvas.at(x, y) == kGrey)
                area.SetRect(std::min<int>(area.left, x), std::min<int>(area.top, y),
                             std::max<int>(area.right, x + 1), std::max<int>(area.bottom, y + 1));
    EXPECT_EQ(canvas.count(kGrey), area.right > area.left ? area.Width() * area.Height() : 0);
    EXPECT_EQ(canvas.count(kGrey) + canvas.count(kWhite), width * height);
    return area;
}

}  // namespace

TEST_F(Thumbnail, OfADrawingIsItsOwn) {
    EXPECT_EQ(sizeOf(ktuiGetThumbnail(drawing(L"a.dwg", 30, 20).c_str(), 5, 5)), L"30x20");
    EXPECT_EQ(sizeOf(ktuiGetThumbnail(drawing(L"a.DWS", 3, 2).c_str(), 5, 5)), L"3x2");
    EXPECT_EQ(sizeOf(ktuiGetThumbnail(drawing(L"a.b.Dwt", 3, 4).c_str(), 5, 5)), L"3x4");
    EXPECT_TRUE(record.calls.empty());
}

TEST_F(Thumbnail, IsNoneForWhatIsNoFile) {
    EXPECT_EQ(ktuiGetThumbnail(nullptr, 9, 9), nullptr);
    EXPECT_EQ(ktuiGetThumbnail(L"", 9, 9), nullptr);
    EXPECT_EQ(ktuiGetThumbnail((folderText() + L"\\gone.dwg").c_str(), 9, 9), nullptr);
    EXPECT_EQ(ktuiGetThumbnail(folderText().c_str(), 9, 9), nullptr);
    std::filesystem::create_directories(folderText() + L"\\folder.dwg");
    EXPECT_EQ(ktuiGetThumbnail((folderText() + L"\\folder.dwg").c_str(), 9, 9), nullptr);
    EXPECT_TRUE(record.calls.empty());
}

TEST_F(Thumbnail, OfAnotherFileIsAskedOfTheShell) {
    const std::wstring path = file(L"a picture.png", "x");
    EXPECT_EQ(sizeOf(ktuiGetThumbnail(path.c_str(), 70, 50)), L"4x4");
    EXPECT_EQ(record.calls,
              (std::vector<std::wstring>{L"desktop", L"parse " + folderText() + L"\\", L"bind 11 folder",
                                         L"free 11", L"parse a picture.png", L"object 1 22 extractor",
                                         L"free 22", L"location 520 0 70x50 24 32", L"extract"}));
}

TEST_F(Thumbnail, OnlyTheLastEndingMakesADrawing) {
    EXPECT_EQ(sizeOf(ktuiGetThumbnail(drawing(L"a.dwg.bak", 30, 20).c_str(), 5, 5)), L"4x4");
    EXPECT_EQ(record.calls.size(), 9u);
    std::filesystem::create_directories(folderText() + L"\\in.dwg");
    record = Record();
    EXPECT_EQ(sizeOf(ktuiGetThumbnail(drawing(L"in.dwg\\dwg", 30, 20).c_str(), 5, 5)), L"4x4");
    EXPECT_EQ(sizeOf(ktuiGetThumbnail(drawing(L"a.dxf", 30, 20).c_str(), 5, 5)), L"4x4");
}

TEST_F(Thumbnail, OfADrawingWithoutOneIsAskedOfTheShell) {
    EXPECT_EQ(sizeOf(ktuiGetThumbnail(file(L"a.dwg", "AC1015").c_str(), 5, 5)), L"4x4");
    EXPECT_EQ(record.calls.size(), 9u);
}

/// What the provider of a test was asked, and its answer for names that begin with "mine".
std::vector<std::wstring> asked;
HBITMAP providePreview(const wchar_t* path, int width, int height) {
    const std::wstring name = std::filesystem::path(path).filename().wstring();
    asked.push_back(name + L" " + std::to_wstring(width) + L"x" + std::to_wstring(height));
    return name.rfind(L"mine", 0) == 0 ? ::CreateBitmap(7, 8, 1, 1, nullptr) : nullptr;
}

TEST_F(Thumbnail, AHostsOwnComesFirst) {
    asked.clear();
    EXPECT_EQ(KtUiSetThumbnailProvider(&providePreview), nullptr);
    EXPECT_EQ(sizeOf(ktuiGetThumbnail(drawing(L"mine.dwg", 30, 20).c_str(), 70, 50)), L"7x8");
    EXPECT_EQ(sizeOf(ktuiGetThumbnail(file(L"mine.png", "x").c_str(), 5, 6)), L"7x8");
    EXPECT_TRUE(record.calls.empty());
    EXPECT_EQ(sizeOf(ktuiGetThumbnail(drawing(L"other.dwg", 30, 20).c_str(), 5, 5)), L"30x20");
    EXPECT_EQ(sizeOf(ktuiGetThumbnail(file(L"other.png", "x").c_str(), 5, 5)), L"4x4");
    EXPECT_EQ(ktuiGetThumbnail((folderText() + L"\\mine.gone").c_str(), 5, 5), nullptr);
    EXPECT_EQ(ktuiGetThumbnail(folderText().c_str(), 5, 5), nullptr);
    EXPECT_EQ(asked, (std::vector<std::wstring>{L"mine.dwg 70x50", L"mine.png 5x6", L"other.dwg 5x5",
                                                L"other.png 5x5"}));
    EXPECT_EQ(KtUiSetThumbnailProvider(nullptr), &providePreview);
    EXPECT_EQ(sizeOf(ktuiGetThumbnail(drawing(L"mine.dwg", 30, 20).c_str(), 5, 5)), L"30x20");
    EXPECT_EQ(asked.size(), 4u);
}

TEST_F(Thumbnail, IsNoneWhereAStepFailsAndNothingIsLeft) {
    const std::wstring path = file(L"a.png", "x");
    // Calls up to each failing step, with the lists that are given back behind it.
    const std::size_t calls[] = {1, 2, 4, 5, 7, 8, 9};
    for (int step = 1; step <= 7; ++step) {
        record = Record();
        record.failing = step;
        EXPECT_EQ(ktuiGetThumbnail(path.c_str(), 5, 5), nullptr) << step;
        EXPECT_EQ(record.calls.size(), calls[step - 1]) << step;
        EXPECT_EQ(record.references, 0) << step;
    }
}

TEST_F(Thumbnail, IsNoneWhereAStepGivesNothingAndSaysThatAllIsWell) {
    const std::wstring path = file(L"a.png", "x");
    for (const int step : {1, 3, 5}) {
        record = Record();
        record.empty = step;
        EXPECT_EQ(ktuiGetThumbnail(path.c_str(), 5, 5), nullptr) << step;
        EXPECT_EQ(record.steps, step);
        EXPECT_EQ(record.references, 0) << step;
    }
}

TEST_F(Thumbnail, IsMadeSmallerToFitAndCentred) {
    const struct {
        std::uint32_t width, height;
        CRect shown;
    } cases[] = {{100, 50, {0, 12, 50, 37}},
                 {50, 100, {12, 0, 37, 50}},
                 {51, 50, {0, 0, 50, 49}},
                 {50, 51, {0, 0, 49, 50}},
                 {75, 60, {0, 5, 50, 45}}};
    for (const auto& one : cases) {
        ui_test::Canvas canvas(60, 60);
        EXPECT_TRUE(
            ktuiDisplayThumbnail(drawing(L"a.dwg", one.width, one.height).c_str(), canvas.dc.m_hDC, 50, 50));
        EXPECT_EQ(painted(canvas, 60, 60), one.shown) << one.width << " by " << one.height;
    }
}

TEST_F(Thumbnail, PaintingLeavesNoContextBehind) {
    ui_test::Canvas canvas(60, 60);
    const std::wstring path = drawing(L"a.dwg", 100, 50);
    const auto paint = [&] { EXPECT_TRUE(ktuiDisplayThumbnail(path.c_str(), canvas.dc.m_hDC, 50, 50)); };
    paint();
    const int before = count_held_objects().gdiObjects;
    for (int i = 0; i < 20; ++i) paint();
    EXPECT_EQ(count_held_objects().gdiObjects, before);
}

TEST_F(Thumbnail, IsNeverMadeLarger) {
    ui_test::Canvas canvas(60, 60);
    EXPECT_TRUE(ktuiDisplayThumbnail(drawing(L"a.dwg", 11, 4).c_str(), canvas.dc.m_hDC, 50, 41));
    EXPECT_EQ(painted(canvas, 60, 60), CRect(19, 18, 30, 22));
    ui_test::Canvas exact(60, 60);
    EXPECT_TRUE(ktuiDisplayThumbnail(drawing(L"b.dwg", 50, 50).c_str(), exact.dc.m_hDC, 50, 50));
    EXPECT_EQ(painted(exact, 60, 60), CRect(0, 0, 50, 50));
}

TEST_F(Thumbnail, PaintsNothingWithoutOne) {
    ui_test::Canvas canvas(20, 20);
    EXPECT_FALSE(ktuiDisplayThumbnail(L"", canvas.dc.m_hDC, 20, 20));
    EXPECT_FALSE(ktuiDisplayThumbnail(drawing(L"a.dwg", 5, 5).c_str(), nullptr, 20, 20));
    EXPECT_TRUE(canvas.isAll(kWhite));
}

TEST_F(Thumbnail, TheShellIsAskedForTheAreasSize) {
    ui_test::Canvas canvas(20, 20);
    EXPECT_TRUE(ktuiDisplayThumbnail(file(L"a.png", "x").c_str(), canvas.dc.m_hDC, 17, 13));
    EXPECT_EQ(record.calls[7], L"location 520 0 17x13 24 32");
    // The bitmap is gone.
    EXPECT_EQ(::GetObjectType(record.bitmap), 0u);
}

TEST_F(Thumbnail, ThePaneShowsTheFileOfItsPathAtEachPainting) {
    ui_test::ParentWindow parent;
    CThumbnailCtrl pane;
    ASSERT_TRUE(pane.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 40, 30), &parent));
    EXPECT_TRUE(pane.m_path.IsEmpty());
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    const auto look = [&](int x, int y) {
        pane.Invalidate(FALSE);
        pane.UpdateWindow();
        CClientDC dc(&pane);
        return dc.GetPixel(x, y);
    };
    EXPECT_EQ(look(20, 15), face);
    const std::wstring path = drawing(L"a.dwg", 20, 10);
    pane.m_path = path.c_str();
    EXPECT_EQ(look(20, 15), kGrey);
    EXPECT_EQ(look(9, 15), face);
    EXPECT_EQ(look(10, 10), kGrey);
    EXPECT_EQ(look(20, 9), face);
    // Nothing is kept: another picture in the same file, then none.
    drawing(L"a.dwg", 40, 30);
    EXPECT_EQ(look(1, 1), kGrey);
    std::filesystem::remove(path);
    EXPECT_EQ(look(1, 1), face);
    EXPECT_EQ(look(39, 29), face);
}
