// Lists.
#include "gallery_page.h"

namespace {

class CListPage : public CGalleryPage {
    CKbUiListCtrl& add(const CString& label, DWORD style) {
        auto& list = ShowTall<CKbUiListCtrl>(label, LVS_REPORT | LVS_SHOWSELALWAYS | WS_BORDER | style, 48);
        CRect place;
        list.GetClientRect(&place);
        const wchar_t* columns[] = {L"Layer", L"Linetype", L"Description"};
        const wchar_t* chinese[] = {L"图层", L"线型", L"说明"};
        for (int i = 0; i < 3; ++i)
            list.InsertColumn(i, Both(columns[i], chinese[i]), LVCFMT_LEFT, place.Width() / 3);
        const wchar_t* rows[][3] = {{L"Walls", L"Continuous", L"Outer walls of all storeys, load-bearing"},
                                    {L"Axes", L"Center", L"Axes of the grid"},
                                    {L"Doors", L"Continuous", L"Doors and their swings in plan"}};
        for (int row = 0; row < 3; ++row)
            for (int column = 0; column < 3; ++column)
                if (column == 0)
                    list.InsertItem(row, rows[row][0]);
                else
                    list.SetItemText(row, column, rows[row][column]);
        list.SetItemState(0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        return list;
    }
    void Build() override {
        m_list = &add(Both(L"Hover for tips", L"悬停显示提示"), 0);
        add(Both(L"Disabled", L"禁用"), WS_DISABLED);
        Switch(Both(L"Enabled", L"启用"), true, [this](bool on) { m_list->EnableWindow(on); });
        Switch(Both(L"Whole rows", L"整行选择"), false, [this](bool on) {
            m_list->SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT,
                                on ? LVS_EX_FULLROWSELECT : 0);
        });
    }
    void Pose() override { PoseFocus(*m_list); }
    CKbUiListCtrl* m_list = nullptr;
};

class CListBoxPage : public CGalleryPage {
    CKbUiListBox& add(const CString& label, DWORD style) {
        auto& list = ShowTall<CKbUiListBox>(
            label, LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_BORDER | WS_VSCROLL | style, 48);
        for (const wchar_t* each :
             {L"Walls", L"Doors", L"Windows and their sills, lintels and shutters, in plan", L"Axes",
              L"Dimensions"})
            list.AddString(each);
        list.SetCurSel(1);
        return list;
    }
    void Build() override {
        m_list = &add(Both(L"Hover for tips", L"悬停显示提示"), 0);
        add(Both(L"Disabled", L"禁用"), WS_DISABLED);
        Switch(Both(L"Enabled", L"启用"), true, [this](bool on) { m_list->EnableWindow(on); });
        Command(Both(L"Add an entry", L"添加一项"),
                [this]() -> CString { return CString(m_list->AddString(L"Furniture") >= 0 ? L"+" : L"-"); });
    }
    void Pose() override { PoseFocus(*m_list); }
    CKbUiListBox* m_list = nullptr;
};

/// The list under a picker knows the picker's image column; one without a picker is a list box.
class CPickerListPage : public CGalleryPage {
    void add(const CString& label, DWORD style) {
        auto& list = ShowTall<CKtUiMRUListBox>(
            label, LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_BORDER | WS_VSCROLL | style, 36);
        for (const wchar_t* each :
             {L"ByLayer", L"ByBlock", L"Outer walls of all storeys, load-bearing, as built"})
            list.AddString(each);
        list.SetCurSel(0);
    }
    void Build() override {
        add(Both(L"Alone", L"单独使用"), 0);
        add(Both(L"Disabled", L"禁用"), WS_DISABLED);
        Command(Both(L"Image column", L"图像列"), [this]() -> CString {
            auto* list = dynamic_cast<CKtUiMRUListBox*>(m_picker->GetListBox());
            CString text;
            if (list != nullptr) text.Format(L"%d", list->ExtraWidth());
            return text;
        });
        // The last one, because its list drops over what is below.
        m_picker = &ShowPicker<CKtUiColorComboBox>(Both(L"Under a picker", L"选取框的列表"));
    }
    void Pose() override { PoseOpen(*m_picker); }
    CKtUiColorComboBox* m_picker = nullptr;
};

}  // namespace

std::vector<GalleryEntry> ListPages() {
    constexpr const wchar_t *kFamily = L"Lists", *kChinese = L"列表";
    return {
        {kFamily, kChinese, L"List control", L"列表控件", MakePage<CListPage>,
         L"CKbUiListCtrl m_layers;\n\nDDX_Control(x, IDC_LAYERS, m_layers);\n"
         L"m_layers.InsertColumn(0, L\"Layer\", LVCFMT_LEFT, 90);\nm_layers.InsertItem(0, L\"Walls\");\n\n"
         L"// a text that is cut off shows whole in a tip;\n// widths are kept for the user by\n"
         L"GetColumnSizes(&m_layers);\nSaveColumnSizes(&m_layers);"},
        {kFamily, kChinese, L"List box", L"列表框", MakePage<CListBoxPage>,
         L"CKbUiListBox m_names;\n\nDDX_Control(x, IDC_NAMES, m_names);\nm_names.AddString(L\"Walls\");\n"
         L"m_names.SetCurSel(0);"},
        {kFamily, kChinese, L"List of a picker", L"选取框的列表框", MakePage<CPickerListPage>,
         L"// each picker has one under it\nCKtUiColorComboBox m_colors;\n\n"
         L"auto* list = dynamic_cast<CKtUiMRUListBox*>(\n    m_colors.GetListBox());\n"
         L"// tips begin behind the picker's image\nint column = list->ExtraWidth();"}};
}
