#include <ktui/nav/dwg_page.h>

#include <od_db_database.h>
#include <od_host_services.h>

#include <ktdsres/save_options_ids.h>

#include <ktui/host/loaded_module.h>
#include <ktui/host/string_resources.h>
#include <ktui/pickers/config_util.h>

IMPLEMENT_DYNAMIC(CDwgPage, CPropertyPage)

namespace {

OdDbDatabase& workingDrawing() { return *oddbHostApplicationServices()->workingDatabase(); }

}  // namespace

CDwgPage::CDwgPage() : CPropertyPage(IDD_DWG_PAGE) { m_psp.hInstance = LoadedToolkit().resourceLibrary; }

CDwgPage::~CDwgPage() = default;

CComboBox& CDwgPage::box(int id) const { return *static_cast<CComboBox*>(GetDlgItem(id)); }

BOOL CDwgPage::OnInitDialog() {
    const BOOL result = CPropertyPage::OnInitDialog();
    CheckDlgButton(IDC_DWG_PROXY_GRAPHICS,
                   workingDrawing().getPROXYGRAPHICS() != 0 ? BST_CHECKED : BST_UNCHECKED);
    fillIndexes();
    fillFormats();
    return result;
}

void CDwgPage::fillIndexes() {
    CComboBox& indexes = box(IDC_DWG_INDEX);
    indexes.AddString(LoadToolkitString(IDS_INDEX_NONE, L"无"));
    indexes.AddString(LoadToolkitString(IDS_INDEX_LAYERS, L"图层"));
    indexes.AddString(LoadToolkitString(IDS_INDEX_SPACES, L"空间"));
    indexes.AddString(LoadToolkitString(IDS_INDEX_BOTH, L"图层和空间"));
    indexes.SetCurSel(workingDrawing().getINDEXCTL());
}

void CDwgPage::fillFormats() {
    CComboBox& formats = box(IDC_DWG_FORMAT);
    OdArray<KtApDocument::SaveFormat> list;
    KhUtConfigUtil::getSaveFormatList(list);
    const KtApDocument::SaveFormat chosen = KhUtConfigUtil::getCurrentSaveFormat();
    int position = -1;
    int index = 0;
    for (const KtApDocument::SaveFormat format : list) {
        if (format == chosen && position < 0) position = index;
        ++index;
        KhUtConfigUtil::SKhSaveInfo info;
        if (!KhUtConfigUtil::getSaveInfoByFormat(format, info)) continue;
        CString text;
        text.Format(L"%s (*%s)", info.description.c_str(), info.extension.c_str());
        formats.SetItemData(formats.AddString(text), static_cast<DWORD_PTR>(format));
    }
    // Kept: the place in the list, which a format without a row of its own shifts against the box.
    if (formats.GetCount() > 0) formats.SetCurSel(position);
}

void CDwgPage::OnOK() {
    workingDrawing().setPROXYGRAPHICS(static_cast<int>(IsDlgButtonChecked(IDC_DWG_PROXY_GRAPHICS)));
    workingDrawing().setINDEXCTL(box(IDC_DWG_INDEX).GetCurSel());
    const CComboBox& formats = box(IDC_DWG_FORMAT);
    const int selected = formats.GetCurSel();
    if (selected != CB_ERR)
        KhUtConfigUtil::setCurrentSaveFormat(
            static_cast<KtApDocument::SaveFormat>(formats.GetItemData(selected)));
    CPropertyPage::OnOK();
}
