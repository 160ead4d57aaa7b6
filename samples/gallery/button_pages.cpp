// Buttons that draw themselves, drop sites, and the group controls.
#include "gallery_page.h"

namespace {

constexpr int kButtonRow = 16;   // dialog units
constexpr int kPictureRow = 26;  // the same, for pictures of the size of icons

/// A button with a picture of the toolkit's own; its size is that of its row.
template <class Button>
class CPicturePage : public CGalleryPage {
protected:
    Button& add(const CString& label, const wchar_t* picture, DWORD style = 0) {
        Button& button = ShowTall<Button>(label, BS_OWNERDRAW | style, kPictureRow);
        button.SetAutoSizeToBitmap(1);
        if (!button.LoadBitmapW(picture)) Tell(label + L": -");
        button.SizeToBitmap();
        button.SetWindowText(label);
        return button;
    }
    virtual const wchar_t* picture() const { return L"PICK"; }
    void Build() override {
        m_button = &add(Both(L"Normal", L"正常"), picture());
        add(Both(L"Disabled", L"禁用"), picture(), WS_DISABLED);
        Switch(Both(L"Enabled", L"启用"), true, [this](bool on) { m_button->EnableWindow(on); });
        Switch(Both(L"Tool button", L"工具按钮"), m_button->GetIsToolButton() != 0, [this](bool on) {
            m_button->SetIsToolButton(on);
            m_button->Invalidate();
        });
        Switch(Both(L"Static", L"静态"), m_button->GetIsStatic() != 0, [this](bool on) {
            m_button->SetIsStatic(on);
            m_button->Invalidate();
        });
        Switch(Both(L"Takes dropped files", L"接受拖放文件"), m_button->GetEnableDragDrop() != 0,
               [this](bool on) { m_button->SetEnableDragDrop(on); });
        Command(Both(L"Another picture", L"更换图片"), [this]() -> CString {
            m_button->LoadBitmapW(L"PICKSET");
            m_button->Invalidate();
            return {};
        });
    }
    void Pose() override { PoseFocus(*m_button); }
    Button* m_button = nullptr;
};

class CBitmapButtonPage : public CPicturePage<CKtUiBitmapButton> {};
class CToolButtonPage : public CPicturePage<CKtUiToolButton> {};
class CBitmapStaticPage : public CPicturePage<CKtUiBitmapStatic> {
    const wchar_t* picture() const override { return L"WARNINGBMP"; }
};

/// Tells which files were dropped.
class CTellingDropSite : public CKtUiDropSite {
public:
    explicit CTellingDropSite(std::function<void(const CString&)> tell) : m_tell(std::move(tell)) {}
    void OnDragDrop(HDROP files) override {
        const UINT count = ::DragQueryFileW(files, 0xFFFFFFFF, nullptr, 0);
        for (UINT i = 0; i < count; ++i) {
            wchar_t path[MAX_PATH] = {};
            ::DragQueryFileW(files, i, path, MAX_PATH);
            m_tell(path);
        }
    }

private:
    std::function<void(const CString&)> m_tell;
};

class CDropSitePage : public CGalleryPage {
    void Build() override {
        auto& site = ShowTall<CTellingDropSite>(Both(L"Drop files here", L"将文件拖到此处"), BS_OWNERDRAW, 40,
                                                [this](const CString& path) { Tell(path); });
        site.LoadBitmapW(L"PICKSET");
        site.SetWindowText(Both(L"Drop files here", L"将文件拖到此处"));
        auto& closed = ShowTall<CTellingDropSite>(Both(L"Disabled", L"禁用"), BS_OWNERDRAW | WS_DISABLED, 40,
                                                  [](const CString&) {});
        closed.LoadBitmapW(L"PICKSET");
        Switch(Both(L"Takes dropped files", L"接受拖放文件"), true,
               [&site](bool on) { site.SetEnableDragDrop(on); });
    }
};

/// A button as it is and disabled, with a sentence about it.
template <class Button>
class CPairPage : public CGalleryPage {
protected:
    virtual Button& add(const CString& label, DWORD style) = 0;
    void showPair(const CString& sentence) {
        m_button = &add(Both(L"Normal", L"正常"), 0);
        add(Both(L"Disabled", L"禁用"), WS_DISABLED);
        Say(sentence);
        Switch(Both(L"Enabled", L"启用"), true, [this](bool on) { m_button->EnableWindow(on); });
    }
    void Pose() override { PoseFocus(*m_button); }
    Button* m_button = nullptr;
};

/// A button that goes through an editor command at a press.
template <class Button>
class CPickPage : public CPairPage<Button> {
    Button& add(const CString& label, DWORD style) override {
        Button& button = this->template ShowTall<Button>(label, BS_OWNERDRAW | style, kButtonRow);
        button.SetWindowText(L"|" + label);
        button.AutoLoad();
        return button;
    }
    void Build() override {
        this->showPair(
            Both(L"At a press its owner calls BeginEditorCommand, lets the user pick, and then "
                 L"CompleteEditorCommand: the dialogs go away meanwhile.",
                 L"按下后，所有者调用 BeginEditorCommand，让用户拾取，然后调用 "
                 L"CompleteEditorCommand：其间对话框隐藏。"));
    }
};

class CDrawnButtonPage : public CGalleryPage {
    void Build() override {
        m_button =
            &ShowTall<CKtUiOwnerDrawButton>(Both(L"Owner-drawn", L"自绘按钮"), BS_OWNERDRAW, kButtonRow);
        ShowTall<CKtUiOwnerDrawButton>(Both(L"Disabled", L"禁用"), BS_OWNERDRAW | WS_DISABLED, kButtonRow);
        auto& tool = ShowTall<CKtUiOwnerDrawButton>(Both(L"As a tool button", L"作为工具按钮"), BS_OWNERDRAW,
                                                    kButtonRow);
        tool.SetIsToolButton(1);
        ShowTall<CButton>(Both(L"Split button", L"拆分按钮"), BS_SPLITBUTTON, kButtonRow);
        Switch(Both(L"Enabled", L"启用"), true, [this](bool on) { m_button->EnableWindow(on); });
        Switch(Both(L"Tells the pointer", L"通知指针"), false,
               [this](bool on) { m_button->SetEnablePointedAt(on); });
    }
    void Pose() override { PoseFocus(*m_button); }
    CKtUiOwnerDrawButton* m_button = nullptr;
};

/// A track button of its own looks: the class paints nothing, so a subclass does.
class CTrackedSwatch : public CKbUiTrackButton {
protected:
    afx_msg void OnPaint() {
        CPaintDC dc(this);
        CRect area;
        GetClientRect(&area);
        const bool isOn = IsWindowEnabled() != FALSE;
        dc.FillSolidRect(area, ::GetSysColor(GetIsPointedAt() ? COLOR_HIGHLIGHT : COLOR_BTNSHADOW));
        area.DeflateRect(1, 1);
        dc.FillSolidRect(area, ::GetSysColor(COLOR_BTNFACE));
        area.DeflateRect(2, 2);
        dc.FillSolidRect(CRect(area.left, area.top, area.left + area.Height() * 2, area.bottom),
                         isOn ? RGB(0, 112, 192) : ::GetSysColor(COLOR_GRAYTEXT));
        area.left += area.Height() * 2 + 4;
        CString caption;
        GetWindowText(caption);
        CFont* former = dc.SelectObject(GetFont());
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(::GetSysColor(isOn ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
        dc.DrawText(caption, &area, DT_SINGLELINE | DT_VCENTER);
        dc.SelectObject(former);
    }
    afx_msg void OnEnable(BOOL) { Invalidate(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CTrackedSwatch, CKbUiTrackButton)
    ON_WM_PAINT()
    ON_WM_ENABLE()
END_MESSAGE_MAP()

class CTrackButtonPage : public CPairPage<CTrackedSwatch> {
    CTrackedSwatch& add(const CString& label, DWORD style) override {
        auto& button = ShowTall<CTrackedSwatch>(label, BS_OWNERDRAW | style, kButtonRow);
        button.SetWindowText(label);
        return button;
    }
    void Build() override {
        showPair(
            Both(L"A track button paints nothing; one that is to be seen is a subclass with a painting of "
                 L"its own, like these.",
                 L"跟踪按钮自身不绘制；需要显示时从它派生并自行绘制，如本页所示。"));
        Switch(Both(L"Tells the pointer", L"通知指针"), m_button->GetEnablePointedAt() != 0,
               [this](bool on) { m_button->SetEnablePointedAt(on); });
    }
};

/// Two lists that a coupled group shows one at a time, in a frame that they fill.
class CCoupledPage : public CGalleryPage {
    void addList(CListBox& list, const CRect& place, const wchar_t* first, const wchar_t* second) {
        list.Create(WS_CHILD | WS_VISIBLE | WS_BORDER | WS_VSCROLL | WS_TABSTOP | LBS_NOINTEGRALHEIGHT, place,
                    &m_frame, m_nextList++);
        list.SetFont(GetFont());
        list.AddString(first);
        list.AddString(second);
    }
    void Build() override {
        m_frame.Create(L"", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, Room(64), this);
        CRect area;
        m_frame.GetClientRect(&area);
        const int middle = area.Height() / 2;
        addList(m_top, CRect(0, 0, area.right, middle - 2), L"Walls", L"Doors");
        addList(m_bottom, CRect(0, middle + 2, area.right, area.bottom), L"Continuous", L"Center");
        m_group.AddCouple(&m_top, &m_bottom);
        m_group.SetTopToWholeRatio(0.5);
        Say(
            Both(L"Two windows above each other. A coupled group keeps them, the ratio and the splitter for "
                 L"a host that draws them.",
                 L"上下两个窗口。耦合组只保存窗口、比例与拆分条设置，由宿主绘制。"));
        Switch(Both(L"Splitter", L"拆分条"), m_group.GetSplitterEnabled(),
               [this](bool on) { m_group.SetSplitterEnabled(on); });
        Command(Both(L"Maximize both", L"两者最大化"), [this]() -> CString {
            m_group.MinMaxOneChild(&m_top, false);
            return {};
        });
        Command(Both(L"As they were", L"还原"), [this]() -> CString {
            for (CListBox* each : {&m_top, &m_bottom}) each->ShowWindow(SW_RESTORE);
            return {};
        });
        Command(Both(L"Ratio 0.7", L"比例 0.7"), [this]() -> CString {
            m_group.SetTopToWholeRatio(0.7);
            CString text;
            text.Format(L"%g", m_group.GetTopToWholeRatio());
            return text;
        });
    }
    CStatic m_frame;
    CListBox m_top, m_bottom;
    CKbUiCoupledGroupCtrl m_group;
    UINT m_nextList = 4900;
};

/// A group of its own looks: a header with the title, and a frame unless it is minimized.
class CPaintedGroup : public CKbUiGroupCtrl {
public:
    void SetMinimized(bool minimized) override {
        CKbUiGroupCtrl::SetMinimized(minimized);
        Invalidate();
    }

protected:
    afx_msg void OnPaint() {
        CPaintDC dc(this);
        CRect area;
        GetClientRect(&area);
        dc.FillSolidRect(area, ::GetSysColor(COLOR_3DFACE));
        if (!m_minimized) dc.Draw3dRect(area, ::GetSysColor(COLOR_BTNSHADOW), ::GetSysColor(COLOR_BTNSHADOW));
        if (m_hideGroupHeader) return;
        CFont* former = dc.SelectObject(GetFont());
        CRect header = area;
        header.bottom = header.top + dc.GetTextExtent(L"A").cy * 3 / 2;
        dc.FillSolidRect(header, ::GetSysColor(m_active ? COLOR_ACTIVECAPTION : COLOR_INACTIVECAPTION));
        header.DeflateRect(6, 0);
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(::GetSysColor(m_active ? COLOR_CAPTIONTEXT : COLOR_INACTIVECAPTIONTEXT));
        dc.DrawText((m_minimized ? L"+  " : L"-  ") + m_title, &header, DT_SINGLELINE | DT_VCENTER);
        dc.SelectObject(former);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPaintedGroup, CKbUiGroupCtrl)
    ON_WM_PAINT()
END_MESSAGE_MAP()

class CGroupPage : public CGalleryPage {
    void Build() override {
        auto& group = ShowTall<CPaintedGroup>(Both(L"Group", L"组"), 0, 40);
        group.SetTitle("Layers");
        Say(
            Both(L"A group control holds its settings and paints nothing; one that is to be seen is a "
                 L"subclass with a painting of its own, like this one.",
                 L"组控件只保存设置，自身不绘制；需要显示时从它派生并自行绘制，如本页所示。"));
        group.SetActive(true);
        Switch(Both(L"Active", L"活动"), true, [&group](bool on) {
            group.SetActive(on);
            group.Invalidate();
        });
        Switch(Both(L"Header hidden", L"隐藏标题"), group.GetHideGroupHeader(), [&group](bool on) {
            group.SetHideGroupHeader(on);
            group.Invalidate();
        });
        Switch(Both(L"Minimized", L"最小化"), group.GetMinimized(),
               [&group](bool on) { group.SetMinimized(on); });
    }
};

}  // namespace

std::vector<GalleryEntry> ButtonPages() {
    constexpr const wchar_t *kFamily = L"Buttons", *kChinese = L"按钮";
    return {
        {kFamily, kChinese, L"Bitmap button", L"位图按钮", MakePage<CBitmapButtonPage>,
         L"CKtUiBitmapButton m_open;\n\n// caption in the template: \"OPENBMP|&Open\"\n"
         L"m_open.SubclassDlgItem(IDC_OPEN, this);\nm_open.AutoLoad();\n\n// or by name\n"
         L"m_open.LoadBitmapW(L\"OPENBMP\");\nm_open.SizeToBitmap();"},
        {kFamily, kChinese, L"Tool button", L"工具按钮", MakePage<CToolButtonPage>,
         L"CKtUiToolButton m_tool;\n\nm_tool.SubclassDlgItem(IDC_TOOL, this);\nm_tool.AutoLoad();"},
        {kFamily, kChinese, L"Bitmap static", L"位图静态控件", MakePage<CBitmapStaticPage>,
         L"CKtUiBitmapStatic m_sign;\n\nm_sign.SubclassDlgItem(IDC_SIGN, this);\nm_sign.AutoLoad();"},
        {kFamily, kChinese, L"Pick button", L"拾取按钮", MakePage<CPickPage<CKtUiPickButton>>,
         L"CKtUiPickButton m_pick;\n\nm_pick.SubclassDlgItem(IDC_PICK, this);\nm_pick.AutoLoad();\n\n"
         L"void OnPick() {\n    BeginEditorCommand();\n    pickPoints([this](Points points) {\n"
         L"        CompleteEditorCommand(TRUE);\n        show(points);\n    });\n}"},
        {kFamily, kChinese, L"Select button", L"选择按钮", MakePage<CPickPage<CKtUiSelectButton>>,
         L"CKtUiSelectButton m_select;\n\nm_select.SubclassDlgItem(IDC_SELECT, "
         L"this);\nm_select.AutoLoad();\n\n"
         L"void OnSelect() {\n    BeginEditorCommand();\n    pickObjects([this](Objects objects) {\n"
         L"        CompleteEditorCommand(TRUE);\n        show(objects);\n    });\n}"},
        {kFamily, kChinese, L"Drop site", L"拖放区", MakePage<CDropSitePage>,
         L"class CLayerDrop : public CKtUiDropSite {\n    void OnDragDrop(HDROP files) override {\n"
         L"        wchar_t path[MAX_PATH];\n        DragQueryFileW(files, 0, path, MAX_PATH);\n"
         L"        takeLayers(path);\n    }\n};\nm_drop.SubclassDlgItem(IDC_DROP, this);"},
        {kFamily, kChinese, L"Drawn buttons", L"自绘按钮", MakePage<CDrawnButtonPage>,
         L"class CSwatch : public CKtUiOwnerDrawButton {\n    void DrawButton(CDC& dc, int width, int "
         L"height,\n"
         L"                    int isDefault, int isDisabled,\n                    int isPressed, int "
         L"hasFocus)\n"
         L"        override {\n        dc.FillSolidRect(4, 4, width - 8,\n                         "
         L"height - 8, m_color);\n"
         L"    }\n};"},
        {kFamily, kChinese, L"Track button", L"跟踪按钮", MakePage<CTrackButtonPage>,
         L"class CSwatch : public CKbUiTrackButton {\n    afx_msg void OnPaint() {\n        CPaintDC "
         L"dc(this);\n        paintSwatch(dc, GetIsPointedAt());\n    }\n    DECLARE_MESSAGE_MAP()\n};\n\n"
         L"m_swatch.SubclassDlgItem(IDC_SWATCH, this);"},
        {kFamily, kChinese, L"Group", L"组", MakePage<CGroupPage>,
         L"CKbUiGroupCtrl m_group;\n\nm_group.Create(L\"\", WS_CHILD | WS_VISIBLE,\n               "
         L"place, this);\n"
         L"m_group.SetTitle(\"Layers\");\nm_group.AddWnd(&m_list, L\"List\", L\"LISTBMP\");"},
        {kFamily, kChinese, L"Coupled group", L"耦合组", MakePage<CCoupledPage>,
         L"CKbUiCoupledGroupCtrl m_couple;\n\nm_couple.AddCouple(&m_layers, &m_linetypes);\n"
         L"m_couple.SetTopToWholeRatio(0.5);\nm_couple.SetSplitterEnabled(true);\n"
         L"m_couple.MinMaxOneChild(&m_layers, false);"}};
}
