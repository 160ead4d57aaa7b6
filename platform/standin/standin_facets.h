// The facets of the stand-in host. Internal to the module.
#pragma once

#include <map>
#include <set>
#include <string>

#include "fonts/font_service.h"
#include "help/help_service.h"
#include "plotting/plot_service.h"
#include "plotting/style_sheets.h"
#include "security/security_service.h"
#include "standin_host.h"

#include <od_tool_tip_setting.h>

class StandinProductInfo final : public CKhProductInfo {
public:
    const wchar_t* companyFullName() override { return kept(m_product.companyFullName); }
    const wchar_t* companyShortName() override { return kept(m_product.companyShortName); }
    const wchar_t* productName() override { return kept(m_product.productName); }
    const wchar_t* programName() override { return kept(m_product.programName); }
    const wchar_t* messageCaption() override;
    const wchar_t* profileVersionKey() override { return kept(m_product.version); }

    StandinProduct m_product;

private:
    /// The text at an address that stays, also when the names are set anew.
    const wchar_t* kept(const CString& text) { return m_texts.insert(text.GetString()).first->c_str(); }

    std::set<std::wstring> m_texts;
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

    StandinColorScheme m_scheme = StandinColorScheme::kSystem;
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
    int saveFormatCount() override { return static_cast<int>(m_formats.size()); }
    bool saveFormatAt(int index, int& format, OdString& name) override;
    bool saveFormatName(int format, OdString& name) override;
    CKhDrawingView* drawingView() override { return &m_view; }

    KtApDocument* m_document = nullptr;
    std::vector<StandinSaveFormat> m_formats;

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

/// The services of the drawing runtime. Their settings are kept in section "General" of the profile in force:
/// "ToolTips" (0 turns tips off), "Measurement", "LineweightMillimeters", "LineweightDefault".
class StandinAppServices final : public OdDbHostAppServices, public OdDbToolTipSetting {
public:
    short toolTips() const override;
    short measurementInit() const override;
    void setMeasurementInit(short value) override;
    bool lineWeightsInMillimetres() const override;
    void setLineWeightsInMillimetres(bool millimetres) override;
    OdDb::LineWeight defaultLineWeight() const override;
    void setDefaultLineWeight(OdDb::LineWeight weight) override;
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
    StandinUiHost(CWinApp& application, StandinStyleSheets& styleSheets);

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
    HelpService m_help;

private:
    CWinApp& m_application;
    StandinStyleSheets& m_styleSheets;
    CString m_chosenPlotStyle;
};

/// The facets that answer, each the host's own until it is replaced.
struct FacetsInForce {
    CKhServiceManager* services;
    CKhRuntimeHost* runtime;
    CKhProductInfo* product;
    CKhProfileStore* profile;
    CKhDocumentServices* documents;
    CKhColorServices* colors;
    CKhUiHost* ui;
    CKhPaletteHost* palettes;
};

/// Everything that a CStandinHost holds.
struct StandinFacets {
    explicit StandinFacets(CWinApp& application) : ui(application, styleSheets) {
        serviceManager.m_services = {{kKhPlotStyleService, &styleSheets},
                                     {kKhPlotService, &plotting},
                                     {kKhSecurityService, &security}};
    }
    FacetsInForce own() {
        return {&serviceManager, &runtime, &product, &profile, &documents, &colors, &ui, &palettes};
    }

    StandinAppServices services;
    OdDbHostAppServices* formerServices = nullptr;
    StandinProductInfo product;
    StandinProfileStore profile;
    StandinColorServices colors;
    StandinServiceManager serviceManager;
    StandinStyleSheets styleSheets;
    StandinPlotService plotting;
    StandinSecurity security;
    StandinDocumentServices documents;
    StandinRuntimeHost runtime;
    StandinPaletteHost palettes;
    StandinUiHost ui;
    FacetsInForce inForce = own();
};
