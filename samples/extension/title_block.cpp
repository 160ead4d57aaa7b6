// The title block extension: a page in the drafter's options, and a palette, that fill the texts of a title
// block.
#include <memory>

#include <ktui/ktui.h>
#include <od_db.h>

#include "drafter/extension_api.h"
#include "resource.h"
#include "title_fields.h"
#include "title_palette.h"

namespace {

AFX_EXTENSION_MODULE module = {};

class Page : public CKtUiTabChildDialog {
public:
    Page() {
        SetDialogName(L"Title Block");
        SetDialogHelpTag(L"TitleBlock");
    }

    BOOL PreTranslateMessage(MSG* message) override {
        if (m_tab != nullptr && KtUiTurnTabByKey(*m_tab, *message)) return TRUE;
        return CKtUiTabChildDialog::PreTranslateMessage(message);
    }

protected:
    BOOL OnInitDialog() override {
        const BOOL result = CKtUiTabChildDialog::OnInitDialog();
        ShowTitleFields(*this);
        return result;
    }
    void DoDataExchange(CDataExchange* exchange) override {
        if (exchange->m_bSaveAndValidate && !accept()) exchange->Fail();
    }
    int OnTabChanging() override { return accept(); }
    void OnMainDialogApply() override { fill(); }
    void OnMainDialogOK() override { fill(); }

private:
    bool accept() {
        const int bad = BadTitleField(*this);
        if (bad == 0) return true;
        // OK and Apply ask the page behind the others as well.
        if (m_tab != nullptr) m_tab->SetActiveTab(GetTabIndex());
        GotoDlgCtrl(GetDlgItem(bad));
        return false;
    }
    void fill() { FillFromTitleFields(*this); }
};

std::unique_ptr<Page> page;

}  // namespace

extern "C" __declspec(dllexport) int drafterExtensionVersion() { return kDrafterExtensionVersion; }

extern "C" __declspec(dllexport) void drafterExtensionAddTabs(CKbUiTabExtensionManager& manager) {
    if (CString(manager.GetDialogName()) != L"Options") return;
    page = std::make_unique<Page>();
    manager.AddTab(module.hModule, IDD_TITLE_BLOCK, TitleText(IDS_TITLE_PAGE), page.get());
}

extern "C" __declspec(dllexport) bool drafterExtensionAddPalettes(CKbUiPaletteSet& set,
                                                                  CDrafterServices& services) {
    auto palette = std::make_unique<CTitlePalette>(module.hModule, services);
    if (set.AddPalette(palette.get()) != 0) return false;
    palette.release();  // the set's now
    return true;
}

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) return AfxInitExtensionModule(module, instance);
    if (reason == DLL_PROCESS_DETACH) AfxTermExtensionModule(module);
    return TRUE;
}
