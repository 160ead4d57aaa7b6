#include <ktui/nav/combo_dir.h>

#include <ktui/host/string_resources.h>
#include <ktui/nav/find_terms.h>
#include <ktui/nav/shell_places.h>
#include <ktdsres/find_file_ids.h>

BEGIN_MESSAGE_MAP(CComBoDir, CComboBoxEx)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace {

/// The icon of a location; of the first path, where the value is a list of them.
std::optional<int> iconOf(const CString& value) {
    std::optional<int> icon = ShellIcon(value);
    if (icon.value_or(0) != 0) return icon;
    std::optional<CString> first = FirstQuotedPiece(value);
    if (!first) return icon;
    if (first->Right(1) != L"\\") *first += L"\\";
    return ShellIcon(*first);
}

}  // namespace

CComBoDir::CComBoDir() : m_history(L"-Find", L"LocationMRU%d") {}

CComBoDir::~CComBoDir() {
    // The window's end still stores the locations.
    DestroyWindow();
}

void CComBoDir::PreSubclassWindow() {
    CComboBoxEx::PreSubclassWindow();
    m_shellImages = std::make_unique<CImageList>();
    m_shellImages->Attach(ShellSmallIcons());
    SetImageList(m_shellImages.get());
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    if (::GetComboBoxInfo(reinterpret_cast<HWND>(SendMessage(CBEM_GETCOMBOCONTROL)), &info)) {
        m_list = std::make_unique<CListBoxDir>(m_names);
        m_list->SubclassWindow(info.hwndList);
    }
    addComputer();
    addDrives();
    addChildrenOfComputer();
    m_history.Load();
    for (int i = 0; i < m_history.m_items.GetSize(); ++i)
        AddLocation(m_history.m_items[i], m_history.m_items[i]);
}

void CComBoDir::addFixed(const CString& name, const CString& value) {
    const INT_PTR before = m_values.GetSize();
    AddLocation(name, value);
    if (m_values.GetSize() > before) ++m_fixedCount;
}

void CComBoDir::addComputer() {
    if (const auto computer = ComputerPlace()) addFixed(computer->name, computer->value);
}

void CComBoDir::addDrives() {
    CString names, values;
    for (wchar_t letter = L'A'; letter <= L'Z'; ++letter) {
        const CString drive = CString(letter, 1) + L":";
        if (::GetDriveTypeW(drive) != DRIVE_FIXED) continue;
        names += (names.IsEmpty() ? L"" : L",") + drive;
        values += L"\"" + drive + L"\"";
    }
    if (names.IsEmpty()) return;
    CString name;
    name.Format(LoadToolkitString(IDS_FIND_LOCAL_DRIVES, L"本地硬盘驱动器(%s)"), names.GetString());
    addFixed(name, values);
}

void CComBoDir::addChildrenOfComputer() {
    for (const ShellPlace& place : PlacesInComputer()) addFixed(place.name, place.value);
}

int CComBoDir::AddLocation(const CString& name, const CString& value) {
    if (name.IsEmpty() || value.IsEmpty()) return -1;
    for (int i = 0; i < m_values.GetSize(); ++i)
        if (m_values[i].Compare(value) == 0) return i;
    const std::optional<int> icon = iconOf(value);
    if (!icon) return -1;
    COMBOBOXEXITEMW item = {};
    item.mask = CBEIF_TEXT | CBEIF_IMAGE | CBEIF_SELECTEDIMAGE;
    item.iItem = -1;
    item.pszText = const_cast<wchar_t*>(name.GetString());
    item.iImage = item.iSelectedImage = *icon;
    m_names.Add(name);
    m_values.Add(value);
    return InsertItem(&item);
}

CString CComBoDir::SelectedValue() const {
    const int selected = GetCurSel();
    if (selected < 0 || selected >= m_values.GetSize()) return {};
    return CString(m_values[selected]).Trim();
}

void CComBoDir::SelectFirst() { SetCurSel(GetCount() > 1 ? 1 : 0); }

void CComBoDir::ShowBeginning() {
    const HWND edit = reinterpret_cast<HWND>(SendMessage(CBEM_GETEDITCONTROL));
    if (edit == nullptr) return;
    ::SendMessageW(edit, EM_SETSEL, 0, 0);
    ::SendMessageW(edit, EM_SCROLLCARET, 0, 0);
}

void CComBoDir::TakeTypedText() {
    const HWND edit = reinterpret_cast<HWND>(SendMessage(CBEM_GETEDITCONTROL));
    if (edit == nullptr) return;
    CString text;
    const int length = ::GetWindowTextLengthW(edit);
    ::GetWindowTextW(edit, text.GetBuffer(length), length + 1);
    text.ReleaseBuffer();
    text.Trim();
    const int selected = GetCurSel();
    const bool isChosen =
        selected >= 0 && selected < m_names.GetSize() && CString(m_names[selected]).Trim() == text;
    if (text.IsEmpty() || isChosen) return;
    SetCurSel(AddLocation(text, text));
}

BOOL CComBoDir::PreTranslateMessage(MSG* message) {
    if (message->message == WM_MOUSEMOVE) showTip();
    return CComboBoxEx::PreTranslateMessage(message);
}

void CComBoDir::showTip() {
    constexpr int kEdge = 2;  // pixels
    const HWND edit = reinterpret_cast<HWND>(SendMessage(CBEM_GETEDITCONTROL));
    const int selected = GetCurSel();
    CRect place;
    GetClientRect(&place);
    const int room = place.Width() - kDirIconWidth - ::GetSystemMetrics(SM_CXVSCROLL) - kEdge;
    const bool isTyping = edit != nullptr && ::GetFocus() == edit;
    if (isTyping || selected < 0 || selected >= m_names.GetSize() ||
        WidthOfText(*this, m_names[selected]) <= room) {
        if (m_tip) m_tip->Hide();
        return;
    }
    if (!m_tip) m_tip = std::make_unique<CToolTip>(*this);
    CPoint point(kDirIconWidth, 0);
    ClientToScreen(&point);
    m_tip->Show(point, m_names[selected]);
}

void CComBoDir::OnDestroy() {
    m_tip.reset();
    m_history.m_items.RemoveAll();
    for (INT_PTR i = m_fixedCount; i < m_values.GetSize(); ++i) m_history.m_items.Add(m_values[i]);
    m_history.Save();
    CComboBoxEx::OnDestroy();
    if (m_shellImages) m_shellImages->Detach();
}
