// The title block extension: a page in the drafter's options that fills the texts of a title block.
#include <memory>

#include <ktui/ktui.h>
#include <od_db.h>

#include "drafter/extension_api.h"
#include "resource.h"
#include "title_values.h"

namespace {

constexpr int kLongestField = 80;  // characters

AFX_EXTENSION_MODULE module = {};

/// A string of this module, whichever is the current one.
CString textOf(UINT id) {
    wchar_t text[200] = {};
    ::LoadStringW(module.hModule, id, text, 200);
    return text;
}

/// Keeps what was entered for the user beside the options of the drafter.
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
        for (const Field& field : kFields) {
            CString text;
            GetDialogData(field.name, text);
            SetDlgItemText(field.id, text);
        }
        return result;
    }
    void DoDataExchange(CDataExchange* exchange) override {
        if (exchange->m_bSaveAndValidate && !accept()) exchange->Fail();
    }
    int OnTabChanging() override { return accept(); }
    void OnMainDialogApply() override { fill(); }
    void OnMainDialogOK() override { fill(); }

private:
    struct Field {
        int id;
        const wchar_t* name;
    };
    static constexpr Field kFields[] = {
        {IDC_PROJECT, L"Project"}, {IDC_DRAWN_BY, L"DrawnBy"}, {IDC_CHECKED_BY, L"CheckedBy"}};

    CString text(int id) const {
        CString found;
        GetDlgItemText(id, found);
        return found.Trim();
    }
    bool accept() {
        for (const Field& field : kFields) {
            if (text(field.id).GetLength() <= kLongestField) continue;
            SetDlgItemText(IDC_TITLE_MESSAGE, textOf(IDS_TOO_LONG));
            // OK and Apply ask the page behind the others as well.
            if (m_tab != nullptr) m_tab->SetActiveTab(GetTabIndex());
            GotoDlgCtrl(GetDlgItem(field.id));
            return false;
        }
        SetDlgItemText(IDC_TITLE_MESSAGE, L"");
        return true;
    }
    void fill() {
        for (const Field& field : kFields) SetDialogData(field.name, text(field.id));
        OdDbDatabase* drawing = oddbHostApplicationServices()->workingDatabase();
        if (drawing == nullptr) return;
        FillTitleBlock(*drawing, {OdString(text(IDC_PROJECT)), OdString(text(IDC_DRAWN_BY)),
                                  OdString(text(IDC_CHECKED_BY))});
    }
};

std::unique_ptr<Page> page;

}  // namespace

extern "C" __declspec(dllexport) int drafterExtensionVersion() { return kDrafterExtensionVersion; }

extern "C" __declspec(dllexport) void drafterExtensionAddTabs(CKbUiTabExtensionManager& manager) {
    if (CString(manager.GetDialogName()) != L"Options") return;
    page = std::make_unique<Page>();
    manager.AddTab(module.hModule, IDD_TITLE_BLOCK, textOf(IDS_TITLE_PAGE), page.get());
}

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) return AfxInitExtensionModule(module, instance);
    if (reason == DLL_PROCESS_DETACH) AfxTermExtensionModule(module);
    return TRUE;
}
