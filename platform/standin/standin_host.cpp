#include "standin_host.h"

#include <ktut.h>

#include "screen_scene.h"
#include "standin_facets.h"

CStandinHost::CStandinHost(CWinApp& application) : m_facets(std::make_unique<StandinFacets>(application)) {
    m_facets->formerServices = oddbHostApplicationServices();
    oddbSetHostApplicationServices(&m_facets->services);
    m_former = CKhSystem::install(this);
    const bool chinese = PRIMARYLANGID(LANGIDFROMLCID(::GetThreadLocale())) == LANG_CHINESE;
    ktutSetLanguage(chinese ? KtutLanguage::kChinese : KtutLanguage::kEnglish);
}

CStandinHost::~CStandinHost() {
    ::SetShapeFontInPlace({});
    CKhSystem::install(m_former);
    oddbSetHostApplicationServices(m_facets->formerServices);
}

CKhServiceManager* CStandinHost::serviceManager() { return m_facets->inForce.services; }
CKhRuntimeHost* CStandinHost::runtimeHost() { return m_facets->inForce.runtime; }
CKhProductInfo* CStandinHost::productInfo() { return m_facets->inForce.product; }
CKhProfileStore* CStandinHost::profileStore() { return m_facets->inForce.profile; }
CKhDocumentServices* CStandinHost::documentServices() { return m_facets->inForce.documents; }
CKhColorServices* CStandinHost::colorServices() { return m_facets->inForce.colors; }
CKhUiHost* CStandinHost::uiHost() { return m_facets->inForce.ui; }
CKhPaletteHost* CStandinHost::paletteHost() { return m_facets->inForce.palettes; }

void CStandinHost::SetCurrentDocument(KtApDocument* document) {
    m_facets->documents.m_document = document;
    m_facets->plotting.forgetWindow();
    m_facets->services.setWorkingDatabase(document != nullptr ? document->database() : nullptr);
}

void CStandinHost::SetSupportDirectories(std::vector<CString> folders) {
    m_facets->runtime.setSupportFolders(std::move(folders));
}

void CStandinHost::SetShapeFontInPlace(const wchar_t* file) {
    ::SetShapeFontInPlace(file != nullptr ? OdString(file) : OdString());
}

void CStandinHost::SetPathVariable(const wchar_t* name, const wchar_t* value) {
    m_facets->ui.m_pathVariables[name] = value;
}

void CStandinHost::SetService(const wchar_t* name, CKhService* service) {
    m_facets->serviceManager.m_services[name] = service;
}

void CStandinHost::SetProduct(StandinProduct product) { m_facets->product.m_product = std::move(product); }

void CStandinHost::SetSaveFormats(std::vector<StandinSaveFormat> formats) {
    m_facets->documents.m_formats = std::move(formats);
}

void CStandinHost::SetColorScheme(StandinColorScheme scheme) { m_facets->colors.m_scheme = scheme; }

void CStandinHost::SetHelpFolder(const wchar_t* folder) { m_facets->ui.m_help.m_folder = folder; }

void CStandinHost::SetHelpOpener(std::function<bool(const CString& page)> opener) {
    m_facets->ui.m_help.m_opener = std::move(opener);
}

void CStandinHost::SetHelpTopic(unsigned helpId, const wchar_t* topic) {
    m_facets->ui.m_help.m_ids[helpId] = topic;
}

void CStandinHost::SetPlotView(StandinPlotView* view) { m_facets->plotting.m_view = view; }

bool CStandinHost::ExportDrawing(const wchar_t* path, CString& message) {
    return m_facets->plotting.exportDrawing(path, message);
}

void CStandinHost::SetExportPatience(unsigned milliseconds) { m_facets->plotting.m_patience = milliseconds; }

void CStandinHost::SetExportOpener(std::function<bool(const CString& path)> opener) {
    m_facets->plotting.m_opener = std::move(opener);
}

namespace {

/// Puts `facet` in force, or the host's own in the place of null.
template <class Facet, class Own>
void replaceFacet(Facet*& inForce, Facet* facet, Own& own) {
    inForce = facet != nullptr ? facet : &own;
}

}  // namespace

void CStandinHost::ReplaceServiceManager(CKhServiceManager* facet) {
    replaceFacet(m_facets->inForce.services, facet, m_facets->serviceManager);
}
void CStandinHost::ReplaceRuntimeHost(CKhRuntimeHost* facet) {
    replaceFacet(m_facets->inForce.runtime, facet, m_facets->runtime);
}
void CStandinHost::ReplaceProductInfo(CKhProductInfo* facet) {
    replaceFacet(m_facets->inForce.product, facet, m_facets->product);
}
void CStandinHost::ReplaceProfileStore(CKhProfileStore* facet) {
    replaceFacet(m_facets->inForce.profile, facet, m_facets->profile);
}
void CStandinHost::ReplaceDocumentServices(CKhDocumentServices* facet) {
    replaceFacet(m_facets->inForce.documents, facet, m_facets->documents);
}
void CStandinHost::ReplacePaletteHost(CKhPaletteHost* facet) {
    replaceFacet(m_facets->inForce.palettes, facet, m_facets->palettes);
}
void CStandinHost::ReplaceColorServices(CKhColorServices* facet) { m_facets->inForce.colors = facet; }
void CStandinHost::ReplaceUiHost(CKhUiHost* facet) { m_facets->inForce.ui = facet; }

void CStandinHost::RestoreFacets() { m_facets->inForce = m_facets->own(); }
