// The XML form of a bar's places, in documents of the system's own parser.
#include <ktui/docking/dock_bar_xml.h>

#include <comdef.h>
#include <msxml.h>

#include <string>

#include "docking_fixture.h"

namespace {

_COM_SMARTPTR_TYPEDEF(IXMLDOMNode, IID_IXMLDOMNode);
_COM_SMARTPTR_TYPEDEF(IXMLDOMElement, IID_IXMLDOMElement);
_COM_SMARTPTR_TYPEDEF(IXMLDOMDocument, IID_IXMLDOMDocument);

const CLSID kDocument = {0x2933BF90, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};

struct DockBarXml : ::testing::Test {
    HRESULT com = ::CoInitialize(nullptr);
    IXMLDOMDocumentPtr document = parse(L"<bars/>");
    bool allowDocking = true;
    CRect floating{1, 2, 3, 4}, docking{5, 6, 7, 8};
    unsigned flags = 0x1000002;
    std::vector<unsigned> orientations;

    ~DockBarXml() override {
        document = nullptr;
        if (SUCCEEDED(com)) ::CoUninitialize();
    }
    static IXMLDOMDocumentPtr parse(const wchar_t* text) {
        IXMLDOMDocumentPtr made;
        EXPECT_EQ(made.CreateInstance(kDocument), S_OK);
        VARIANT_BOOL loaded = VARIANT_FALSE;
        made->put_async(VARIANT_FALSE);
        made->loadXML(_bstr_t(text), &loaded);
        EXPECT_TRUE(loaded) << "not parsed";
        return made;
    }
    IXMLDOMElementPtr root() {
        IXMLDOMElementPtr element;
        document->get_documentElement(&element);
        return element;
    }
    int load(IUnknown* node) {
        return LoadDockBar(node, {[this](unsigned orientation) { orientations.push_back(orientation); },
                                  allowDocking, floating, docking, flags});
    }
    int loadText(const std::wstring& inside) {
        document = parse((L"<bars>" + inside + L"</bars>").c_str());
        return load(root());
    }
    std::wstring attribute(const wchar_t* path) {
        IXMLDOMNodePtr found;
        document->selectSingleNode(_bstr_t(path), &found);
        if (found == nullptr) return L"(none)";
        _variant_t value;
        found->get_nodeValue(&value);
        return value.bstrVal;
    }
    std::wstring names(const wchar_t* path) {
        IXMLDOMNodePtr found;
        document->selectSingleNode(_bstr_t(path), &found);
        std::wstring all;
        IXMLDOMNodePtr child;
        for (found->get_firstChild(&child); child != nullptr;) {
            BSTR name = nullptr;
            child->get_nodeName(&name);
            all += std::wstring(name) + L" ";
            ::SysFreeString(name);
            IXMLDOMNodePtr next;
            child->get_nextSibling(&next);
            child = next;
        }
        return all;
    }
};

const std::wstring kFloat = L"<FloatInfo Left='-10' Top='20' Width='300' Height='200'/>";
const std::wstring kDock = L"<DockInfo Left='1' Top='2' Width='30' Height='40' MRUDockID='16384'/>";
std::wstring bar(const std::wstring& attributes, const std::wstring& inside) {
    return L"<CAdUiDockControlBar " + attributes + L">" + inside + L"</CAdUiDockControlBar>";
}
const std::wstring kBoth = L"Orientation='32768' AllowDocking='0'";

TEST_F(DockBarXml, WritesTheBarItsFloatingAndItsDockedPlace) {
    EXPECT_EQ(
        SaveDockBar(root(), {false, true, CRect(-10, 20, 290, 220), CRect(1, -2, 31, 38), CBRS_ALIGN_RIGHT}),
        1);
    EXPECT_EQ(names(L"/bars"), L"CAdUiDockControlBar ");
    EXPECT_EQ(names(L"//CAdUiDockControlBar"), L"FloatInfo DockInfo ");
    EXPECT_EQ(attribute(L"//CAdUiDockControlBar/@Orientation"), L"16384");
    EXPECT_EQ(attribute(L"//CAdUiDockControlBar/@AllowDocking"), L"1");
    EXPECT_EQ(attribute(L"//FloatInfo/@Left"), L"-10");
    EXPECT_EQ(attribute(L"//FloatInfo/@Top"), L"20");
    EXPECT_EQ(attribute(L"//FloatInfo/@Width"), L"300");
    EXPECT_EQ(attribute(L"//FloatInfo/@Height"), L"200");
    EXPECT_EQ(attribute(L"//DockInfo/@Left"), L"1");
    EXPECT_EQ(attribute(L"//DockInfo/@Top"), L"-2");
    EXPECT_EQ(attribute(L"//DockInfo/@Width"), L"30");
    EXPECT_EQ(attribute(L"//DockInfo/@Height"), L"40");
    EXPECT_EQ(attribute(L"//DockInfo/@MRUDockID"), L"16384");
}

TEST_F(DockBarXml, WritesAllOnesForAFloatingBar) {
    EXPECT_EQ(SaveDockBar(root(), {true, false, CRect(), CRect(), 0}), 1);
    EXPECT_EQ(attribute(L"//CAdUiDockControlBar/@Orientation"), L"4294967295");
    EXPECT_EQ(attribute(L"//CAdUiDockControlBar/@AllowDocking"), L"0");
}

TEST_F(DockBarXml, WritesSizesWithoutASignAndCornersWithOne) {
    SaveDockBar(root(), {false, true, CRect(-5, -6, -9, -10), CRect(), 0});
    EXPECT_EQ(attribute(L"//FloatInfo/@Left"), L"-5");
    EXPECT_EQ(attribute(L"//FloatInfo/@Top"), L"-6");
    EXPECT_EQ(attribute(L"//FloatInfo/@Width"), L"4294967292");
    EXPECT_EQ(attribute(L"//FloatInfo/@Height"), L"4294967292");
}

TEST_F(DockBarXml, WithoutANodeNothingIsWrittenOrRead) {
    EXPECT_EQ(SaveDockBar(nullptr, {}), 0);
    EXPECT_EQ(load(nullptr), 0);
}

/// Knows no interface but IUnknown, or fails otherwise.
struct Stranger : IUnknown {
    explicit Stranger(HRESULT result) : answer(result) {}
    HRESULT answer;
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override {
        *object = nullptr;
        return answer;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
};

TEST_F(DockBarXml, WhatIsNoNodeGivesNothing) {
    Stranger stranger(E_NOINTERFACE);
    EXPECT_EQ(SaveDockBar(&stranger, {}), 0);
    EXPECT_EQ(load(&stranger), 0);
}

TEST_F(DockBarXml, AnotherFailureOfComIsThrown) {
    Stranger broken(E_OUTOFMEMORY);
    EXPECT_THROW(SaveDockBar(&broken, {}), _com_error);
    try {
        load(&broken);
        ADD_FAILURE() << "nothing was thrown";
    } catch (const _com_error& error) {
        EXPECT_EQ(error.Error(), E_OUTOFMEMORY);
    }
}

TEST_F(DockBarXml, ReadsWhatIsThere) {
    EXPECT_EQ(loadText(bar(kBoth, kFloat + kDock)), 1);
    EXPECT_EQ(orientations, std::vector<unsigned>{0x8000});
    EXPECT_FALSE(allowDocking);
    EXPECT_TRUE(floating == CRect(-10, 20, 290, 220));
    EXPECT_EQ(flags, 0x4000u) << "the whole word";
}

TEST_F(DockBarXml, MeasuresTheDockedSizeFromTheFloatingCorner) {
    loadText(bar(kBoth, kFloat + kDock));
    EXPECT_TRUE(docking == CRect(1, 2, 30 - 10, 40 + 20));
}

TEST_F(DockBarXml, AnyAllowanceButZeroAllows) {
    allowDocking = false;
    loadText(bar(L"Orientation='0' AllowDocking='7'", L""));
    EXPECT_TRUE(allowDocking);
}

TEST_F(DockBarXml, WithoutABarNothingIsRead) {
    EXPECT_EQ(loadText(L"<Other/>"), 0);
    EXPECT_TRUE(orientations.empty());
}

TEST_F(DockBarXml, WithoutAFloatingPlaceTheBarsOwnAttributesAreRead) {
    EXPECT_EQ(loadText(bar(kBoth, kDock)), 0);
    EXPECT_EQ(orientations.size(), 1u);
    EXPECT_FALSE(allowDocking);
    EXPECT_TRUE(floating == CRect(1, 2, 3, 4));
    EXPECT_TRUE(docking == CRect(5, 6, 7, 8));
}

TEST_F(DockBarXml, WithoutADockedPlaceTheFloatingOneIsRead) {
    EXPECT_EQ(loadText(bar(kBoth, kFloat)), 0);
    EXPECT_TRUE(floating == CRect(-10, 20, 290, 220));
    EXPECT_TRUE(docking == CRect(5, 6, 7, 8));
    EXPECT_EQ(flags, 0x1000002u);
}

TEST_F(DockBarXml, AMissingAttributeIsThrownAndWhatWasReadStays) {
    EXPECT_THROW(loadText(bar(L"Orientation='16384'", kFloat + kDock)), _com_error);
    EXPECT_EQ(orientations, std::vector<unsigned>{0x4000});
    EXPECT_TRUE(allowDocking);
    EXPECT_THROW(loadText(bar(L"AllowDocking='1'", kFloat + kDock)), _com_error);
    EXPECT_EQ(orientations.size(), 1u);
    EXPECT_THROW(loadText(bar(kBoth, L"<FloatInfo Left='9' Top='8' Height='3'/>" + kDock)), _com_error);
    EXPECT_TRUE(floating == CRect(9, 8, 3, 4)) << "up to the missing width";
    EXPECT_THROW(loadText(bar(kBoth, kFloat + L"<DockInfo Left='1' Top='2' Width='30' Height='40'/>")),
                 _com_error);
    EXPECT_TRUE(docking == CRect(1, 2, 20, 60));
    EXPECT_EQ(flags, 0x1000002u);
}

TEST_F(DockBarXml, AMalformedAttributeIsThrown) {
    EXPECT_THROW(loadText(bar(L"Orientation='left' AllowDocking='1'", kFloat + kDock)), _com_error);
    EXPECT_THROW(loadText(bar(kBoth, L"<FloatInfo Left='4294967295' Top='0' Width='1' Height='1'/>")),
                 _com_error)
        << "corners have a sign";
    floating = CRect(1, 2, 3, 4);
    EXPECT_THROW(loadText(bar(kBoth, L"<FloatInfo Left='5' Top='6' Width='wide' Height='1'/>")), _com_error);
    EXPECT_TRUE(floating == CRect(5, 6, 3, 4));
}

TEST_F(DockBarXml, OrientationsBecomeAlignments) {
    const DWORD style = CBRS_ALIGN_BOTTOM | CBRS_BORDER_3D;
    for (const unsigned floats : {0u, 1u, 0xFFFFFFFFu})
        EXPECT_EQ(AlignmentOfOrientation(floats, style), CBRS_BORDER_3D | 1u) << floats;
    for (const unsigned side : {0x2000u, 0x4000u, 0x8000u})
        EXPECT_EQ(AlignmentOfOrientation(side, style), CBRS_BORDER_3D | side) << side;
    for (const unsigned other : {2u, 0x1000u, 0x3000u, 0xF000u})
        EXPECT_EQ(AlignmentOfOrientation(other, style), CBRS_BORDER_3D | 0x1000u) << other;
}

}  // namespace
