// Each facet of the stand-in host can be replaced alone, and comes back.
#include <kh_plot_service.h>

#include "host_fixture.h"

namespace {

struct OtherServices final : CKhServiceManager {
    CKhService* getService(const wchar_t*) override { return nullptr; }
};

struct OtherRuntime final : CKhRuntimeHost {
    void findFile(OdString& path, const wchar_t*, const OdDbDatabase*, int) override { path = L"C:\\other"; }
    CKhFontList* shxFontList() override { return nullptr; }
    int supportDirectories(wchar_t (*)[kKhPathLength], int) override { return 7; }
};

struct OtherProduct final : CKhProductInfo {
    const wchar_t* companyFullName() override { return L"Other"; }
    const wchar_t* companyShortName() override { return L"Other"; }
    const wchar_t* productName() override { return L"Other"; }
    const wchar_t* programName() override { return L"Other"; }
    const wchar_t* messageCaption() override { return L"Other"; }
    const wchar_t* profileVersionKey() override { return L"9"; }
};

struct OtherProfile final : CKhProfileStore {
    bool getProfileInt(const wchar_t*, const wchar_t* key, int& value, int flags) override {
        hadFlags |= flags != 0;
        const auto found = numbers.find(key);
        if (found == numbers.end()) return false;
        value = found->second;
        return true;
    }
    bool getProfileString(const wchar_t*, const wchar_t*, OdString&, int) override { return false; }
    bool setProfileInt(const wchar_t*, const wchar_t* key, int value, int flags) override {
        hadFlags |= flags != 0;
        numbers[key] = value;
        return true;
    }
    std::map<std::wstring, int> numbers;
    bool hadFlags = false;
};

struct OtherDocuments final : CKhDocumentServices {
    KtApDocument* currentDocument() override { return nullptr; }
    void pushResourceHandle(HINSTANCE) override {}
    void popResourceHandle() override {}
    int saveFormatCount() override { return 0; }
    bool saveFormatAt(int, int&, OdString&) override { return false; }
    bool saveFormatName(int, OdString&) override { return false; }
    CKhDrawingView* drawingView() override { return nullptr; }
};

struct OtherColors final : CKhColorServices {
    COLORREF colorOfIndex(int) override { return 0; }
    int currentColorScheme(int) override { return 9; }
    bool schemeColor(int, int, COLORREF&, int) override { return false; }
};

struct OtherUi final : CKhUiHost {
    CWinApp* application() override { return nullptr; }
    CWnd* mainFrame() override { return nullptr; }
    bool showColorIndexDialog(int&, bool, int) override { return false; }
    bool showTrueColorDialog(OdCmColor&, bool, const OdCmColor&, const std::uint32_t*) override {
        return false;
    }
    bool showPlotStyleDialog(const wchar_t*, bool, const wchar_t*&) override { return false; }
    bool showLinetypeDialog(const OdDbObjectId&, OdDbObjectId&, int) override { return false; }
    void showHelp(const wchar_t*) override {}
    int getPathVariable(const wchar_t*, wchar_t (&)[kKhPathLength]) override { return 0; }
};

struct OtherPalettes final : CKhPaletteHost {
    CKhPaletteSizing* sizing() override { return nullptr; }
};

/// The addresses of the eight facets, in the order of their slots.
std::vector<void*> facetsOf(CKhSystem& host) {
    return {host.serviceManager(),   host.runtimeHost(),   host.productInfo(), host.profileStore(),
            host.documentServices(), host.colorServices(), host.uiHost(),      host.paletteHost()};
}

class Facets : public ui_test::HostTest {
protected:
    /// Expects `replace` to exchange the facet `index` for `other`, and no other one.
    template <class Facet>
    void expectReplaced(std::size_t index, void (CStandinHost::*replace)(Facet*), Facet& other) {
        const std::vector<void*> own = facetsOf(host);
        (host.*replace)(&other);
        std::vector<void*> expected = own;
        expected[index] = &other;
        EXPECT_EQ(facetsOf(*CKhSystem::instance()), expected) << index;
        (host.*replace)(nullptr);
        const bool mayBeNull = index == 5 || index == 6;
        expected[index] = mayBeNull ? nullptr : own[index];
        EXPECT_EQ(facetsOf(host), expected) << index;
        (host.*replace)(&other);
        host.RestoreFacets();
        EXPECT_EQ(facetsOf(host), own) << index;
    }
};

}  // namespace

TEST_F(Facets, EachIsThereFromTheStartAndAllDiffer) {
    std::vector<void*> facets = facetsOf(host);
    EXPECT_EQ(std::count(facets.begin(), facets.end(), nullptr), 0);
    std::sort(facets.begin(), facets.end());
    EXPECT_EQ(std::unique(facets.begin(), facets.end()), facets.end());
}

TEST_F(Facets, EachIsReplacedAloneAndComesBack) {
    OtherServices services;
    OtherRuntime runtime;
    OtherProduct product;
    OtherProfile profile;
    OtherDocuments documents;
    OtherColors colors;
    OtherUi ui;
    OtherPalettes palettes;
    expectReplaced<CKhServiceManager>(0, &CStandinHost::ReplaceServiceManager, services);
    expectReplaced<CKhRuntimeHost>(1, &CStandinHost::ReplaceRuntimeHost, runtime);
    expectReplaced<CKhProductInfo>(2, &CStandinHost::ReplaceProductInfo, product);
    expectReplaced<CKhProfileStore>(3, &CStandinHost::ReplaceProfileStore, profile);
    expectReplaced<CKhDocumentServices>(4, &CStandinHost::ReplaceDocumentServices, documents);
    expectReplaced<CKhColorServices>(5, &CStandinHost::ReplaceColorServices, colors);
    expectReplaced<CKhUiHost>(6, &CStandinHost::ReplaceUiHost, ui);
    expectReplaced<CKhPaletteHost>(7, &CStandinHost::ReplacePaletteHost, palettes);
}

TEST_F(Facets, AReplacedProfileServesTheSettingsOfTheDrawingRuntimeAndThePlotService) {
    OtherProfile profile;
    profile.numbers = {{L"Measurement", 0}, {L"LineweightDefault", 50}, {L"ToolTips", 0}};
    host.ReplaceProfileStore(&profile);
    EXPECT_EQ(oddbHostApplicationServices()->measurementInit(), 0);
    EXPECT_EQ(oddbHostApplicationServices()->defaultLineWeight(), OdDb::kLnWt050);
    oddbHostApplicationServices()->setLineWeightsInMillimetres(false);
    static_cast<CKhPlotSvr*>(host.serviceManager()->getService(kKhPlotService))->setFirstSwitch(true);
    EXPECT_EQ(profile.numbers.at(L"LineweightMillimeters"), 0);
    EXPECT_EQ(profile.numbers.at(L"FirstSwitch"), 1);
    EXPECT_EQ(stored(L"General", L"LineweightMillimeters"), -1);
    EXPECT_FALSE(profile.hadFlags);
}

TEST_F(Facets, AHostThatGoesPutsTheFormerOneAndItsServicesBack) {
    OdDbHostAppServices* services = oddbHostApplicationServices();
    {
        CStandinHost inner(*AfxGetApp());
        EXPECT_EQ(CKhSystem::instance(), &inner);
        EXPECT_NE(oddbHostApplicationServices(), services);
    }
    EXPECT_EQ(CKhSystem::instance(), &host);
    EXPECT_EQ(oddbHostApplicationServices(), services);
}
