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

/// A button that goes through an editor command at a press.
template <class Button>
class CPickPage : public CGalleryPage {
    Button& add(const CString& label, DWORD style = 0) {
        Button& button = ShowTall<Button>(label, BS_OWNERDRAW | style, kButtonRow);
        button.SetWindowText(L"|" + label);
        button.AutoLoad();
        return button;
    }
    void Build() override {
        m_button = &add(Both(L"Normal", L"正常"));
        add(Both(L"Disabled", L"禁用"), WS_DISABLED);
        Say(
            Both(L"At a press its owner calls BeginEditorCommand, lets the user pick, and then "
                 L"CompleteEditorCommand: the dialogs go away meanwhile.",
                 L"按下后，所有者调用 BeginEditorCommand，让用户拾取，然后调用 "
                 L"CompleteEditorCommand：其间对话框隐藏。"));
        Switch(Both(L"Enabled", L"启用"), true, [this](bool on) { m_button->EnableWindow(on); });
    }
    void Pose() override { PoseFocus(*m_button); }
    Button* m_button = nullptr;
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

class CGroupPage : public CGalleryPage {
    void Build() override {
        auto& group = ShowTall<CKbUiGroupCtrl>(Both(L"Group", L"组"), WS_BORDER, 40);
        // It never ends a painting, so the system would ask for one for ever.
        group.ShowWindow(SW_HIDE);
        Say(
            Both(L"Group controls keep their interface for hosts that draw them; here they hold their "
                 L"settings and draw nothing.",
                 L"组控件仅是接口：只保存设置，不绘制也不添加内容。这里的组控件已隐藏。"));
        Switch(Both(L"Active", L"活动"), group.GetActive(), [&group](bool on) { group.SetActive(on); });
        Switch(Both(L"Header hidden", L"隐藏标题"), group.GetHideGroupHeader(),
               [&group](bool on) { group.SetHideGroupHeader(on); });
        Command(Both(L"Minimize", L"最小化"), [&group]() -> CString {
            group.SetMinimized(true);
            return group.GetMinimized() ? L"1" : L"0";
        });
    }
};

}  // namespace

std::vector<GalleryEntry> ButtonPages() {
    constexpr const wchar_t *kFamily = L"Buttons", *kChinese = L"按钮";
    return {{kFamily, kChinese, L"Bitmap button", L"位图按钮", MakePage<CBitmapButtonPage>,
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
            {kFamily, kChinese, L"Group", L"组", MakePage<CGroupPage>,
             L"CKbUiGroupCtrl m_group;\n\nm_group.Create(L\"\", WS_CHILD | WS_VISIBLE,\n               "
             L"place, this);\n"
             L"m_group.SetTitle(\"Layers\");\nm_group.AddWnd(&m_list, L\"List\", L\"LISTBMP\");"}};
}
