// The facets of the stand-in host. Internal to the module.
#pragma once

#include <map>
#include <string>

#include "fonts/font_service.h"
#include "plotting/style_sheets.h"
#include "standin_host.h"

#include <od_tool_tip_setting.h>

class StandinProductInfo final : public CKhProductInfo {
public:
    const wchar_t* companyFullName() override { return L"Quorvex Design Systems"; }
    const wchar_t* companyShortName() override { return L"Quorvex"; }
    const wchar_t* productName() override { return L"Velmora"; }
    const wchar_t* programName() override { return L"Velmora"; }
    /// The name of the application, as the system's own message boxes have it.
    const wchar_t* messageCaption() override { return AfxGetAppName(); }
    const wchar_t* profileVersionKey() override { return L"1.0"; }
};

/// Settings in the registry, a key for each section.
class StandinProfileStore final : public CKhProfileStore {
public:
    bool getProfileInt(const wchar_t* section, const wchar_t* key, int& value, int flags) override;
    bool getProfileString(const wchar_t* section, const wchar_t* key, OdString& value, int flags) override;
    bool setProfileInt(const wchar_t* section, const wchar_t* key, int value, int flags) override;
};

class StandinColorServices final : public CKhColorServices {
public:
    COLORREF colorOfIndex(int index) override;
    int currentColorScheme(int kind) override;
    bool schemeColor(int scheme, int role, COLORREF& color, int flags) override;
};

class StandinServiceManager final : public CKhServiceManager {
public:
    CKhService* getService(const wchar_t* name) override;
    std::map<std::wstring, CKhService*> m_services;
};

/// Paints a linetype's own dashes along the middle of a rectangle.
class StandinLinetypePreview final : public CKhLinetypePreview {
public:
    void drawLinetype(HDC dc, const RECT& rect, const OdDbObjectId& id, COLORREF foreground,
                      COLORREF background) override;
};

class StandinDrawingView final : public CKhDrawingView {
public:
    CKhLinetypePreview* linetypePreview() override { return &m_preview; }

private:
    StandinLinetypePreview m_preview;
};

class StandinDocumentServices final : public CKhDocumentServices {
public:
    KtApDocument* currentDocument() override { return m_document; }
    void pushResourceHandle(HINSTANCE handle) override;
    void popResourceHandle() override;
    int saveFormatCount() override { return 0; }
    bool saveFormatAt(int, int&, OdString&) override { return false; }
    bool saveFormatName(int, OdString&) override { return false; }
    CKhDrawingView* drawingView() override { return &m_view; }

    KtApDocument* m_document = nullptr;

private:
    std::vector<HINSTANCE> m_pushed;
    StandinDrawingView m_view;
};

class StandinRuntimeHost final : public CKhRuntimeHost {
public:
    void findFile(OdString& path, const wchar_t* name, const OdDbDatabase* drawing, int hint) override;
    CKhFontList* shxFontList() override { return m_fonts.list(); }
    int supportDirectories(wchar_t (*buffer)[kKhPathLength], int count) override;

    void setSupportFolders(std::vector<CString> folders);
    void setFontFolders(const std::vector<CString>& folders);
    CKhFontStyle* loadFontFile(const wchar_t* name, CString& message);

    FontService m_fonts;

private:
    std::vector<CString> m_folders;
};

/// The services of the drawing runtime, with the setting that turns tips off: "General", "ToolTips".
class StandinAppServices final : public OdDbHostAppServices, public OdDbToolTipSetting {
public:
    short toolTips() const override;
};

class StandinPaletteSizing final : public CKhPaletteSizing {
public:
    void fillBackground(HDC dc, const RECT& rect) override;
};

class StandinPaletteHost final : public CKhPaletteHost {
public:
    CKhPaletteSizing* sizing() override { return &m_sizing; }

private:
    StandinPaletteSizing m_sizing;
};

class StandinUiHost final : public CKhUiHost {
public:
    StandinUiHost(CWinApp& application, StandinStyleSheets& styleSheets)
        : m_application(application), m_styleSheets(styleSheets) {}

    CWinApp* application() override { return &m_application; }
    CWnd* mainFrame() override { return m_application.m_pMainWnd; }
    bool showColorIndexDialog(int& index, bool allowMeta, int layerIndex) override;
    bool showTrueColorDialog(OdCmColor& color, bool allowMeta, const OdCmColor& layerColor,
                             const std::uint32_t* palette) override;
    bool showPlotStyleDialog(const wchar_t* currentName, bool allowByLayerByBlock,
                             const wchar_t*& chosenName) override;
    bool showLinetypeDialog(const OdDbObjectId& current, OdDbObjectId& chosen, int mode) override;
    void showHelp(const wchar_t* topic) override;
    int getPathVariable(const wchar_t* name, wchar_t (&value)[kKhPathLength]) override;

    std::map<std::wstring, CString> m_pathVariables = {{L"PrinterStyleSheetDir", L"Plot Styles"}};

private:
    CWinApp& m_application;
    StandinStyleSheets& m_styleSheets;
    CString m_chosenPlotStyle;
};

/// Everything that a CStandinHost holds.
struct StandinFacets {
    explicit StandinFacets(CWinApp& application) : ui(application, styleSheets) {
        serviceManager.m_services[kKhPlotStyleService] = &styleSheets;
    }

    StandinAppServices services;
    OdDbHostAppServices* formerServices = nullptr;
    StandinProductInfo product;
    StandinProfileStore profile;
    StandinColorServices colors;
    StandinServiceManager serviceManager;
    StandinStyleSheets styleSheets;
    StandinDocumentServices documents;
    StandinRuntimeHost runtime;
    StandinPaletteHost palettes;
    StandinUiHost ui;
    CKhUiHost* uiInForce = &ui;
    CKhColorServices* colorsInForce = &colors;
};
