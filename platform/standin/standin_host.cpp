#include "standin_host.h"

#include <ktut.h>

#include "standin_facets.h"

CStandinHost::CStandinHost(CWinApp& application) : m_facets(std::make_unique<StandinFacets>(application)) {
    m_facets->formerServices = oddbHostApplicationServices();
    oddbSetHostApplicationServices(&m_facets->services);
    m_former = CKhSystem::install(this);
    const bool chinese = PRIMARYLANGID(LANGIDFROMLCID(::GetThreadLocale())) == LANG_CHINESE;
    ktutSetLanguage(chinese ? KtutLanguage::kChinese : KtutLanguage::kEnglish);
}

CStandinHost::~CStandinHost() {
    CKhSystem::install(m_former);
    oddbSetHostApplicationServices(m_facets->formerServices);
}

CKhServiceManager* CStandinHost::serviceManager() { return &m_facets->serviceManager; }
CKhRuntimeHost* CStandinHost::runtimeHost() { return &m_facets->runtime; }
CKhProductInfo* CStandinHost::productInfo() { return &m_facets->product; }
CKhProfileStore* CStandinHost::profileStore() { return &m_facets->profile; }
CKhDocumentServices* CStandinHost::documentServices() { return &m_facets->documents; }
CKhColorServices* CStandinHost::colorServices() { return m_facets->colorsInForce; }
CKhUiHost* CStandinHost::uiHost() { return m_facets->uiInForce; }
CKhPaletteHost* CStandinHost::paletteHost() { return &m_facets->palettes; }

void CStandinHost::SetCurrentDocument(KtApDocument* document) {
    m_facets->documents.m_document = document;
    m_facets->services.setWorkingDatabase(document != nullptr ? document->database() : nullptr);
}

void CStandinHost::SetSupportDirectories(std::vector<CString> folders) {
    m_facets->runtime.setSupportFolders(std::move(folders));
}

void CStandinHost::SetPathVariable(const wchar_t* name, const wchar_t* value) {
    m_facets->ui.m_pathVariables[name] = value;
}

void CStandinHost::SetService(const wchar_t* name, CKhService* service) {
    m_facets->serviceManager.m_services[name] = service;
}

void CStandinHost::ReplaceUiHost(CKhUiHost* facet) { m_facets->uiInForce = facet; }
void CStandinHost::ReplaceColorServices(CKhColorServices* facet) { m_facets->colorsInForce = facet; }

void CStandinHost::RestoreFacets() {
    m_facets->uiInForce = &m_facets->ui;
    m_facets->colorsInForce = &m_facets->colors;
}
