// The one door from an extension module to the application.
//
// Whoever needs the application asks CKhSystem::instance() for a facet and uses it at once: facets aren't
// cached, because a host may exchange or withdraw them. A host implements CKhSystem and the facets, installs
// the object before the first control is built and keeps it until the last one is gone. All calls are made on
// the user-interface thread.
//
//     class Host final : public CKhSystem { ... };
//     Host host;
//     CKhSystem* former = CKhSystem::install(&host);
#pragma once

#include "kh_color_services.h"
#include "kh_document_services.h"
#include "kh_drawing_view.h"
#include "kh_font_list.h"
#include "kh_palette_host.h"
#include "kh_product_info.h"
#include "kh_profile_store.h"
#include "kh_runtime_host.h"
#include "kh_service_manager.h"
#include "kh_status.h"
#include "kh_ui_host.h"
#include "kt_ap_document.h"
#include "ktrx_api.h"

class KTRX_API CKhSystem {
public:
    /// The installed host object, or null before a host has installed one.
    static CKhSystem* instance();

    /// Makes `system` the host object (null for none) and answers the one before. The caller keeps ownership
    /// and has to outlive its use, or install something else first.
    static CKhSystem* install(CKhSystem* system);

    /// Optional services by name; never null.
    virtual CKhServiceManager* serviceManager() = 0;
    /// Files, fonts, folders; never null, used without a test.
    virtual CKhRuntimeHost* runtimeHost() = 0;
    /// Product names; never null but for KtUiMessageBox, which tests.
    virtual CKhProductInfo* productInfo() = 0;
    /// Settings; never null, used without a test.
    virtual CKhProfileStore* profileStore() = 0;
    /// Documents and the resource module in force; never null, used without a test.
    virtual CKhDocumentServices* documentServices() = 0;
    /// Colours; null while the application shuts down, and every colour is then 0.
    virtual CKhColorServices* colorServices() = 0;
    /// Windows and dialogs; null while the application shuts down, and dialogs and help are then skipped.
    virtual CKhUiHost* uiHost() = 0;
    /// Look of palettes; never null.
    virtual CKhPaletteHost* paletteHost() = 0;

protected:
    ~CKhSystem() = default;
};
