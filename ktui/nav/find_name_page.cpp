#include <ktui/nav/find_name_page.h>

#include <shlobj.h>

#include <ktdsres/find_file_ids.h>
#include <ktui/host/appearance.h>
#include <ktui/nav/find_terms.h>
#include <ktui/nav/item_id_list.h>

BEGIN_MESSAGE_MAP(CDlgFindPage1, FindPage)
    ON_COMMAND(IDC_FIND_BROWSE, &CDlgFindPage1::OnBrowse)
    ON_WM_SIZE()
END_MESSAGE_MAP()

namespace {

constexpr int kGap = 10;  // pixels

CRect placeOf(const CWnd& page, const CWnd& control) {
    CRect place;
    control.GetWindowRect(&place);
    page.ScreenToClient(&place);
    return place;
}

/// Stretches a box up to `right`; the list that it drops keeps its height.
void stretchBox(const CWnd& page, CComboBox& box, int right) {
    CRect place = placeOf(page, box), dropped;
    box.GetDroppedControlRect(&dropped);
    box.SetWindowPos(nullptr, 0, 0, right - place.left, dropped.Height(),
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void addAll(const std::vector<CString>& texts, CStringArray& array) {
    for (const CString& text : texts) array.Add(text);
}

}  // namespace

CDlgFindPage1::CDlgFindPage1() : m_name(L"-Find", L"FileNameMRU%d") {}

void CDlgFindPage1::DoDataExchange(CDataExchange* exchange) {
    FindPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_FIND_LOCATION, m_location);
    DDX_Control(exchange, IDC_FIND_NAME, m_name);
}

BOOL CDlgFindPage1::OnInitDialog() {
    FindPage::OnInitDialog();
    CheckDlgButton(IDC_FIND_SUBFOLDERS, BST_CHECKED);
    addTip(IDC_FIND_NAME, IDS_FIND_NAME_TIP,
           L"指定搜索的全部或部分文件名。输入多个文件名时，将每个文件名用引号引起来。");
    addTip(IDC_FIND_TYPE, IDS_FIND_TYPE_TIP,
           L"指定要搜索的文件类型。可用文件类型限于特定的标准文件选择对话框所支持的文件类型。");
    addTip(
        IDC_FIND_LOCATION, IDS_FIND_LOCATION_TIP,
        L"指定搜索的位置。输入位置、从列表中选择位置或选择“浏览”以确定位置。输入多个位置名时，将每个位置用引"
        L"号引起来。");
    addTip(IDC_FIND_BROWSE, IDS_FIND_BROWSE_TIP, L"显示“浏览文件夹”对话框，从中可以浏览到要搜索的位置。");
    addTip(IDC_FIND_SUBFOLDERS, IDS_FIND_SUBFOLDERS_TIP, L"搜索“搜索”位置中的所有子文件夹。");
    return TRUE;
}

void CDlgFindPage1::FillTypes(const wchar_t* filter, int index) {
    auto* const box = static_cast<CComboBox*>(GetDlgItem(IDC_FIND_TYPE));
    const std::vector<FindFileType> types = FileTypesOf(filter);
    for (const FindFileType& type : types) {
        const int row = box->InsertString(-1, type.description);
        box->SetItemData(row, reinterpret_cast<DWORD_PTR>(type.patterns));
    }
    const bool isThere = index >= 1 && index <= static_cast<int>(types.size());
    box->SetCurSel(isThere ? index - 1 : 0);
}

CString CDlgFindPage1::selectedType() const {
    auto* const box = static_cast<CComboBox*>(GetDlgItem(IDC_FIND_TYPE));
    const int row = box->GetCurSel();
    return row >= 0 ? static_cast<const wchar_t*>(box->GetItemDataPtr(row)) : nullptr;
}

void CDlgFindPage1::SelectLocation(const CString& folder) {
    m_location.SetCurSel(m_location.AddLocation(folder, folder));
    m_location.ShowBeginning();
}

void CDlgFindPage1::GetFolders(CStringArray& folders) {
    m_location.TakeTypedText();
    if (m_location.SelectedValue().IsEmpty()) m_location.SelectFirst();
    addAll(FoldersNamedBy(m_location.SelectedValue()), folders);
}

void CDlgFindPage1::GetPatterns(CStringArray& patterns) {
    CString name;
    m_name.GetWindowText(name);
    m_name.AddText(name);
    addAll(PatternsFor(name, selectedType()), patterns);
}

bool CDlgFindPage1::IncludesSubfolders() const {
    return IsDlgButtonChecked(IDC_FIND_SUBFOLDERS) == BST_CHECKED;
}

void CDlgFindPage1::Reset() {
    m_name.SetCurSel(-1);
    m_name.SetWindowText(L"");
    m_location.SelectFirst();
    m_location.ShowBeginning();
}

void CDlgFindPage1::EnableControls(bool enable) {
    for (int id = IDC_FIND_NAME; id <= IDC_FIND_SUBFOLDERS; ++id) GetDlgItem(id)->EnableWindow(enable);
    m_location.ShowBeginning();
}

void CDlgFindPage1::OnBrowse() {
    BROWSEINFOW info = {};
    info.hwndOwner = m_hWnd;
    info.ulFlags = BIF_RETURNONLYFSDIRS | BIF_RETURNFSANCESTORS;
    const LPITEMIDLIST chosen = ::SHBrowseForFolderW(&info);
    if (chosen == nullptr) return;
    wchar_t path[MAX_PATH] = {};
    if (::SHGetPathFromIDListW(chosen, path)) SelectLocation(path);
    FreeItemIdList(chosen);
}

void CDlgFindPage1::OnSize(UINT type, int cx, int cy) {
    FindPage::OnSize(type, cx, cy);
    CWnd* const browse = GetDlgItem(IDC_FIND_BROWSE);
    if (browse == nullptr || m_location.m_hWnd == nullptr || m_name.m_hWnd == nullptr) return;
    const int gap = KtUiAppearancePixels(m_hWnd, kGap), right = cx - gap;
    stretchBox(*this, *static_cast<CComboBox*>(GetDlgItem(IDC_FIND_TYPE)), right);
    stretchBox(*this, m_name, right);
    const CRect place = placeOf(*this, *browse);
    browse->SetWindowPos(nullptr, right - place.Width(), place.top, 0, 0,
                         SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    stretchBox(*this, m_location, right - place.Width() - gap);
    m_location.ShowBeginning();
}
