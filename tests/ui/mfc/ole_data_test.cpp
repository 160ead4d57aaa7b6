// What a data source offers and a data object finds: kept and rendered data, formats, and what is refused.
#include <afxole.h>

#include <string>
#include <vector>

#include "dragging.h"
#include "ui_test.h"

namespace {

using ui_test::takeText;
using ui_test::textMemory;

struct OleData : ::testing::Test {
    static void SetUpTestSuite() { ASSERT_TRUE(AfxOleInit()); }
    static void TearDownTestSuite() { AfxOleTerm(); }
};

/// Renders a text when it is asked for one.
class Rendering : public COleDataSource {
public:
    std::vector<CLIPFORMAT> asked;
    bool refuses = false;
    BOOL OnRenderGlobalData(LPFORMATETC format, HGLOBAL* memory) override {
        asked.push_back(format->cfFormat);
        if (refuses) return COleDataSource::OnRenderGlobalData(format, memory);
        *memory = textMemory(L"rendered");
        return TRUE;
    }
};

/// Looks at the data object that is dropped on its window.
class Examiner : public COleDropTarget {
public:
    std::function<void(IDataObject*)> look;
    bool isOver = false;
    int drops = 0;
    DROPEFFECT OnDragEnter(CWnd*, COleDataObject*, DWORD, CPoint) override { return DROPEFFECT_COPY; }
    DROPEFFECT OnDragOver(CWnd*, COleDataObject*, DWORD, CPoint) override {
        isOver = true;
        return DROPEFFECT_COPY;
    }
    BOOL OnDrop(CWnd*, COleDataObject* data, DROPEFFECT, CPoint) override {
        ++drops;
        look(data->m_lpDataObject);
        return TRUE;
    }
};

/// Drags a source onto a window, where `look` has its data object.
void examine(COleDataSource& source, std::function<void(IDataObject*)> look) {
    ui_test::ParentWindow window;
    window.SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    Examiner target;
    target.look = std::move(look);
    ASSERT_TRUE(target.Register(&window));
    EXPECT_EQ(ui_test::dragOnto(window, source, [&] { return target.isOver; }),
              static_cast<DROPEFFECT>(DROPEFFECT_COPY));
    EXPECT_EQ(target.drops, 1);
    target.Revoke();
}

FORMATETC format_of(CLIPFORMAT format, DWORD medium = TYMED_HGLOBAL, DWORD aspect = DVASPECT_CONTENT) {
    return {format, nullptr, aspect, -1, medium};
}

}  // namespace

TEST_F(OleData, ThingsThatAreKeptAreGivenAsCopies) {
    COleDataSource source;
    source.CacheGlobalData(CF_UNICODETEXT, textMemory(L"kept"));
    examine(source, [&](IDataObject* dropped) {
        COleDataObject object;
        object.Attach(dropped, FALSE);
        EXPECT_TRUE(object.IsDataAvailable(CF_UNICODETEXT));
        EXPECT_FALSE(object.IsDataAvailable(CF_TEXT));
        EXPECT_EQ(takeText(object.GetGlobalData(CF_UNICODETEXT)), L"kept");
        EXPECT_EQ(takeText(object.GetGlobalData(CF_UNICODETEXT)), L"kept") << "as often as one likes";
        EXPECT_EQ(object.GetGlobalData(CF_TEXT), nullptr);
        STGMEDIUM medium = {};
        ASSERT_TRUE(object.GetData(CF_UNICODETEXT, &medium));
        EXPECT_EQ(medium.tymed, static_cast<DWORD>(TYMED_HGLOBAL));
        EXPECT_STREQ(static_cast<const wchar_t*>(::GlobalLock(medium.hGlobal)), L"kept");
        ::GlobalUnlock(medium.hGlobal);
        ::ReleaseStgMedium(&medium);
        EXPECT_FALSE(object.GetData(CF_TEXT, &medium));
        object.Release();
        EXPECT_FALSE(object.IsDataAvailable(CF_UNICODETEXT)) << "nothing is attached";
        EXPECT_EQ(object.GetGlobalData(CF_UNICODETEXT), nullptr);
        EXPECT_FALSE(object.GetData(CF_UNICODETEXT, &medium));
        FORMATETC format;
        object.BeginEnumFormats();
        EXPECT_FALSE(object.GetNextFormat(&format));
    });
}

TEST_F(OleData, MediaOfOtherKindsAreKeptToo) {
    COleDataSource source;
    const CLIPFORMAT own = static_cast<CLIPFORMAT>(::RegisterClipboardFormatW(L"ktui test format"));
    STGMEDIUM medium = {};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = textMemory(L"medium");
    source.CacheData(own, &medium);
    FORMATETC thumbnail = format_of(own, TYMED_HGLOBAL, DVASPECT_THUMBNAIL);
    STGMEDIUM small = {};
    small.tymed = TYMED_HGLOBAL;
    small.hGlobal = textMemory(L"small");
    source.CacheData(own, &small, &thumbnail);
    examine(source, [&](IDataObject* dropped) {
        COleDataObject object;
        object.Attach(dropped, FALSE);
        EXPECT_EQ(takeText(object.GetGlobalData(own)), L"medium");
        EXPECT_EQ(takeText(object.GetGlobalData(own, &thumbnail)), L"small") << "by its aspect";
        FORMATETC icon = format_of(own, TYMED_HGLOBAL, DVASPECT_ICON);
        EXPECT_FALSE(object.IsDataAvailable(own, &icon));
        FORMATETC stream = format_of(own, TYMED_ISTREAM);
        EXPECT_FALSE(object.IsDataAvailable(own, &stream)) << "not as a stream";
        std::vector<std::pair<CLIPFORMAT, DWORD>> formats;
        FORMATETC next = {};
        object.BeginEnumFormats();
        while (object.GetNextFormat(&next)) formats.emplace_back(next.cfFormat, next.dwAspect);
        EXPECT_EQ(formats, (std::vector<std::pair<CLIPFORMAT, DWORD>>{{own, DVASPECT_CONTENT},
                                                                      {own, DVASPECT_THUMBNAIL}}));
        object.BeginEnumFormats();
        EXPECT_TRUE(object.GetNextFormat(&next)) << "from the first again";
    });
}

TEST_F(OleData, LateDataIsRenderedWhenItIsAskedFor) {
    Rendering source;
    source.DelayRenderData(CF_UNICODETEXT);
    examine(source, [&](IDataObject* dropped) {
        COleDataObject object;
        object.Attach(dropped, FALSE);
        EXPECT_TRUE(object.IsDataAvailable(CF_UNICODETEXT));
        EXPECT_TRUE(source.asked.empty()) << "not before";
        EXPECT_EQ(takeText(object.GetGlobalData(CF_UNICODETEXT)), L"rendered");
        EXPECT_EQ(source.asked, std::vector<CLIPFORMAT>{CF_UNICODETEXT});
        source.refuses = true;
        EXPECT_EQ(object.GetGlobalData(CF_UNICODETEXT), nullptr);
        EXPECT_EQ(source.asked.size(), 2U);
    });
}

TEST_F(OleData, WhatADataSourceDoesNotOfferIsRefused) {
    COleDataSource source;
    source.CacheGlobalData(CF_UNICODETEXT, textMemory(L"kept"));
    examine(source, [&](IDataObject* object) {
        FORMATETC text = format_of(CF_UNICODETEXT), other = format_of(CF_TEXT), same = {};
        STGMEDIUM medium = {};
        EXPECT_EQ(object->QueryGetData(&text), S_OK);
        EXPECT_EQ(object->QueryGetData(&other), DV_E_FORMATETC);
        EXPECT_EQ(object->GetData(&other, &medium), DV_E_FORMATETC);
        EXPECT_EQ(object->GetDataHere(&text, &medium), E_NOTIMPL);
        same.ptd = reinterpret_cast<DVTARGETDEVICE*>(1);
        EXPECT_EQ(object->GetCanonicalFormatEtc(&text, &same), DATA_S_SAMEFORMATETC);
        EXPECT_EQ(same.ptd, nullptr);
        EXPECT_EQ(object->SetData(&text, &medium, FALSE), E_NOTIMPL);
        DWORD connection = 0;
        IEnumSTATDATA* advises = nullptr;
        EXPECT_EQ(object->DAdvise(&text, 0, nullptr, &connection), OLE_E_ADVISENOTSUPPORTED);
        EXPECT_EQ(object->DUnadvise(connection), OLE_E_ADVISENOTSUPPORTED);
        EXPECT_EQ(object->EnumDAdvise(&advises), OLE_E_ADVISENOTSUPPORTED);
        void* found = nullptr;
        EXPECT_EQ(object->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
        EXPECT_EQ(object->QueryInterface(IID_IPersist, &found), E_NOINTERFACE);
        EXPECT_EQ(found, nullptr);
        ASSERT_EQ(object->QueryInterface(IID_IDataObject, &found), S_OK);
        EXPECT_EQ(found, object);
        object->Release();
    });
}
