// A host for tests: complete, small, with answers that a test sets and calls that it reads.
//
// Installed for as long as the object lives; the host before comes back with it.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <afxwin.h>
#include <kh_system.h>
#include <od_cm_color.h>
#include <od_db_object_id.h>
#include <od_string.h>

namespace ui_test {

class TestHost final : public CKhSystem,
                       public CKhServiceManager,
                       public CKhRuntimeHost,
                       public CKhProductInfo,
                       public CKhProfileStore,
                       public CKhDocumentServices,
                       public CKhColorServices,
                       public CKhUiHost,
                       public CKhPaletteHost,
                       public CKhPaletteSizing {
public:
    TestHost();
    ~TestHost();
    TestHost(const TestHost&) = delete;
    TestHost& operator=(const TestHost&) = delete;

    // Answers.
    bool hasColorServices = true;
    bool hasUiHost = true;
    CWnd* frame = nullptr;
    std::map<std::wstring, CKhService*> services;
    std::map<std::wstring, std::wstring> files;  ///< name to full path
    CKhFontList* fonts = nullptr;
    std::vector<std::wstring> supportFolders;
    std::map<std::wstring, int> profileInts;              ///< by "section/key"
    std::map<std::wstring, std::wstring> profileStrings;  ///< by "section/key"
    KtApDocument* document = nullptr;
    CKhDrawingView* view = nullptr;
    std::vector<std::pair<int, std::wstring>> saveFormats;
    std::set<int> unlistedSaveFormats;  ///< codes that saveFormatAt answers false for
    std::function<COLORREF(int)>
        colorOf;  ///< at first: the index in the green byte, its ninth bit in the blue
    std::map<int, COLORREF> roleColors;
    std::map<std::wstring, std::wstring> pathVariables;
    std::function<bool(int& index, bool allowMeta, int layerIndex)> onColorIndexDialog;
    std::function<bool(OdCmColor& color, bool allowMeta, const OdCmColor& layer,
                       const std::uint32_t* palette)>
        onTrueColorDialog;
    std::function<bool(std::wstring current, bool allow, std::wstring& chosen)> onPlotStyleDialog;
    bool plotStyleDialogNamesNone = false;  ///< an accepted dialog leaves the chosen name alone
    std::function<bool(const OdDbObjectId& current, OdDbObjectId& chosen)> onLinetypeDialog;

    // Calls.
    std::vector<int> askedColors;
    std::vector<HINSTANCE> resourceStack;  ///< pushed and not popped
    int pushes = 0;
    int pops = 0;
    int findHint = -1;  ///< the last one that came with a name to find
    int helpCalls = 0;
    int linetypeDialogMode = 0;  ///< as the last call gave it
    int filledBackgrounds = 0;
    HDC filledDc = nullptr;  ///< of the last background
    CRect filledRect{0, 0, 0, 0};

    // CKhSystem
    CKhServiceManager* serviceManager() override { return this; }
    CKhRuntimeHost* runtimeHost() override { return this; }
    CKhProductInfo* productInfo() override { return this; }
    CKhProfileStore* profileStore() override { return this; }
    CKhDocumentServices* documentServices() override { return this; }
    CKhColorServices* colorServices() override { return hasColorServices ? this : nullptr; }
    CKhUiHost* uiHost() override { return hasUiHost ? this : nullptr; }
    CKhPaletteHost* paletteHost() override { return this; }

    // CKhServiceManager, CKhRuntimeHost
    CKhService* getService(const wchar_t* name) override;
    void findFile(OdString& path, const wchar_t* name, const OdDbDatabase* drawing, int hint) override;
    CKhFontList* shxFontList() override { return fonts; }
    int supportDirectories(wchar_t (*buffer)[kKhPathLength], int count) override;

    // CKhProductInfo
    const wchar_t* companyFullName() override { return L"Test Company Incorporated"; }
    const wchar_t* companyShortName() override { return L"Test Company"; }
    const wchar_t* productName() override { return L"Test Product"; }
    const wchar_t* programName() override { return L"Test Program"; }
    const wchar_t* messageCaption() override { return L"Test Caption"; }
    const wchar_t* profileVersionKey() override { return L"9.1"; }

    // CKhProfileStore
    bool getProfileInt(const wchar_t* section, const wchar_t* key, int& value, int flags) override;
    bool getProfileString(const wchar_t* section, const wchar_t* key, OdString& value, int flags) override;
    bool setProfileInt(const wchar_t* section, const wchar_t* key, int value, int flags) override;

    // CKhDocumentServices
    KtApDocument* currentDocument() override { return document; }
    void pushResourceHandle(HINSTANCE handle) override;
    void popResourceHandle() override;
    int saveFormatCount() override { return static_cast<int>(saveFormats.size()); }
    bool saveFormatAt(int index, int& format, OdString& name) override;
    bool saveFormatName(int format, OdString& name) override;
    CKhDrawingView* drawingView() override { return view; }

    // CKhColorServices
    COLORREF colorOfIndex(int index) override;
    int currentColorScheme(int kind) override { return kind; }
    bool schemeColor(int scheme, int role, COLORREF& color, int flags) override;

    // CKhUiHost
    CWinApp* application() override { return AfxGetApp(); }
    CWnd* mainFrame() override { return frame; }
    bool showColorIndexDialog(int& index, bool allowMeta, int layerIndex) override;
    bool showTrueColorDialog(OdCmColor& color, bool allowMeta, const OdCmColor& layerColor,
                             const std::uint32_t* palette) override;
    bool showPlotStyleDialog(const wchar_t* currentName, bool allowByLayerByBlock,
                             const wchar_t*& chosenName) override;
    bool showLinetypeDialog(const OdDbObjectId& current, OdDbObjectId& chosen, int mode) override;
    void showHelp(const wchar_t*) override { ++helpCalls; }
    int getPathVariable(const wchar_t* name, wchar_t (&value)[kKhPathLength]) override;

    // CKhPaletteHost, CKhPaletteSizing
    CKhPaletteSizing* sizing() override { return this; }
    void fillBackground(HDC dc, const RECT& rect) override {
        ++filledBackgrounds;
        filledDc = dc;
        filledRect = rect;
    }

private:
    CKhSystem* m_former;
    std::wstring m_chosenPlotStyle;
    std::vector<HINSTANCE> m_savedHandles;
};

}  // namespace ui_test
