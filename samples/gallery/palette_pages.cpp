// Palettes and bars in a small frame of their own.
#include "gallery_page.h"

#include <afxcontrolbars.h>
#include <afxglobals.h>

namespace {

/// A palette with a list in it.
class CSamplePalette : public CKbUiPalette {
public:
    CSamplePalette(const CString& name, std::initializer_list<CString> rows) : m_rows(rows) { SetName(name); }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create) {
        if (CKbUiPalette::OnCreate(create) == -1) return -1;
        if (!m_list.Create(WS_CHILD | WS_VISIBLE | LBS_NOINTEGRALHEIGHT, CRect(0, 0, 0, 0), this, 1))
            return -1;
        m_list.SetFont(&afxGlobalData.fontRegular);
        for (const CString& row : m_rows) m_list.AddString(row);
        return 0;
    }
    afx_msg void OnSize(UINT type, int cx, int cy) {
        CKbUiPalette::OnSize(type, cx, cy);
        m_list.MoveWindow(0, 0, cx, cy);
    }
    DECLARE_MESSAGE_MAP()

private:
    std::vector<CString> m_rows;
    CKbUiListBox m_list;
};

BEGIN_MESSAGE_MAP(CSamplePalette, CKbUiPalette)
    ON_WM_CREATE()
    ON_WM_SIZE()
END_MESSAGE_MAP()

/// What a page shows its bars in; deletes itself with its window.
class CSampleFrame : public CFrameWndEx {};

/// A page with such a frame.
class CFramePage : public CGalleryPage {
protected:
    CSampleFrame& addFrame(int height) {
        m_frame = new CSampleFrame;
        m_frame->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_BORDER, Room(height),
                        this);
        m_frame->EnableDocking(CBRS_ALIGN_ANY);
        m_frame->EnableAutoHidePanes(CBRS_ALIGN_ANY);
        AtEnd([this] {
            KbUiLockPanel(false, false);
            m_frame->DestroyWindow();
        });
        return *m_frame;
    }
    void dock(CKbUiPaletteSet& set, const CString& name, DWORD side, int id, int width, int height) {
        set.Create(name, WS_CHILD | WS_VISIBLE | CBRS_FLOAT_MULTI | side, CRect(0, 0, width, height), m_frame,
                   0);
        set.SetDlgCtrlID(id);
        set.EnableDocking(CBRS_ALIGN_ANY);
        m_frame->DockPane(&set);
    }
    static void addPalettes(CKbUiPaletteSet& set) {
        set.AddPalette(
            new CSamplePalette(Both(L"Blocks", L"块"), {Both(L"Door", L"门"), Both(L"Window", L"窗")}));
        set.AddPalette(
            new CSamplePalette(Both(L"Layers", L"图层"),
                               {Both(L"Walls", L"墙"), Both(L"Axes", L"轴线"), Both(L"Doors", L"门")}));
        set.AddPalette(new CSamplePalette(
            Both(L"Properties", L"特性"),
            {Both(L"Color: ByLayer", L"颜色：随层"), Both(L"Linetype: Center", L"线型：点划线")}));
        set.SetActivePalette(set.GetPalette(0));
    }
    CSampleFrame* m_frame = nullptr;
};

class CPaletteSetPage : public CFramePage {
    void Build() override {
        addFrame(120);
        dock(m_set, Both(L"Tools", L"工具"), CBRS_RIGHT, 4001, 190, 180);
        addPalettes(m_set);
        Command(Both(L"Add a palette", L"添加选项板"), [this] {
            m_set.AddPalette(new CSamplePalette(Both(L"Notes", L"注释"), {Both(L"Empty", L"空")}));
            m_set.SetActivePalette(m_set.GetPalette(0));
            return number(m_set.GetPaletteCount());
        });
        Command(Both(L"Remove the active one", L"移除活动选项板"), [this]() -> CString {
            std::unique_ptr<CKbUiPalette> removed(m_set.GetActivePalette());
            const int result = m_set.RemovePalette(removed.get());
            m_set.SetActivePalette(m_set.GetPalette(0));
            return number(result);
        });
        Command(Both(L"Rename it", L"重命名"), [this]() -> CString {
            if (CKbUiPalette* active = m_set.GetActivePalette()) active->EditName();
            return {};
        });
        Say(Both(L"Click a tab to choose, double-click it to rename, right-click it for its menu.",
                 L"单击标签以选择，双击以重命名，右击以显示菜单。"));
    }
    static CString number(int value) {
        CString text;
        text.Format(L"%d", value);
        return text;
    }
    CKbUiPaletteSet m_set{2};
};

class CDockingPage : public CFramePage {
    void Build() override {
        addFrame(118);
        dock(m_left, Both(L"Tools", L"工具"), CBRS_LEFT, 4001, 150, 200);
        addPalettes(m_left);
        dock(m_bottom, Both(L"Messages", L"消息"), CBRS_BOTTOM, 4002, 300, 80);
        m_bottom.AddPalette(
            new CSamplePalette(Both(L"Messages", L"消息"), {Both(L"Nothing to report", L"无消息")}));
        dock(m_tab, Both(L"Sheets", L"图纸"), CBRS_RIGHT, 4003, 130, 200);
        m_tab.AddPalette(new CSamplePalette(Both(L"Sheets", L"图纸"), {L"A-101", L"A-102"}));
        dock(m_other, Both(L"Views", L"视图"), CBRS_RIGHT, 4004, 130, 200);
        m_other.AddPalette(
            new CSamplePalette(Both(L"Views", L"视图"), {Both(L"Plan", L"平面"), Both(L"Section", L"剖面")}));
        m_other.AttachToTabWnd(&m_tab, DM_SHOW);
        Switch(Both(L"Lock docked bars", L"锁定停靠的选项板"), false,
               [this](bool on) { lock(m_docked = on, m_floating); });
        Switch(Both(L"Lock floating bars", L"锁定浮动的选项板"), false,
               [this](bool on) { lock(m_docked, m_floating = on); });
        Command(Both(L"Float the tools", L"浮动工具"), [this]() -> CString {
            floatTools();
            return {};
        });
        Command(Both(L"Dock the tools", L"停靠工具"), [this]() -> CString {
            m_frame->DockPane(&m_left);
            return {};
        });
    }
    static void lock(bool docked, bool floating) { KbUiLockPanel(docked, floating); }
    void floatTools() {
        CPoint place(150, 30);
        m_frame->ClientToScreen(&place);
        m_left.FloatPane(CRect(place, CSize(170, 180)));
    }
    void Pose() override { floatTools(); }
    void EndPose() override { m_frame->DockPane(&m_left); }

    bool m_docked = false, m_floating = false;
    CKbUiPaletteSet m_left{2}, m_bottom{2}, m_tab{2}, m_other{2};
};

class CLayoutsPage : public CFramePage {
    void Build() override {
        addFrame(96);
        dock(m_tools, Both(L"Tools", L"工具"), CBRS_LEFT, 4001, 150, 200);
        addPalettes(m_tools);
        dock(m_sheets, Both(L"Sheets", L"图纸"), CBRS_RIGHT, 4002, 130, 200);
        m_sheets.AddPalette(new CSamplePalette(Both(L"Sheets", L"图纸"), {L"A-101", L"A-102"}));
        m_sheets.SetActivePalette(m_sheets.GetPalette(0));
        m_layouts.Attach(*m_frame, L"GalleryLayouts");
        m_layouts.KeepBuiltIn();
        Command(Both(L"Keep as \"Mine\"", L"保存为“我的”"), [this] { return told(m_layouts.Save(mine())); });
        Command(Both(L"Apply \"Mine\"", L"应用“我的”"), [this] { return told(m_layouts.Apply(mine())); });
        Command(Both(L"Built-in layout", L"内置布局"), [this] { return told(m_layouts.Reset()); });
        Command(Both(L"Tools below", L"工具在下方"), [this]() -> CString {
            toolsBelow();
            return {};
        });
        Command(Both(L"Tabs", L"标签"), [this]() -> CString {
            m_sheets.AttachToTabWnd(&m_tools, DM_SHOW);
            return {};
        });
        Say(Both(L"Move the palettes about, keep that, change it, and apply what was kept.",
                 L"移动选项板并保存，再更改，然后应用已保存的布局。"));
    }
    static CString mine() { return Both(L"Mine", L"我的"); }
    CString told(BOOL succeeded) const { return succeeded ? CString(L"OK") : m_layouts.GetProblem(); }
    void toolsBelow() {
        const CRect size(0, 0, 300, 90);
        m_tools.DockToFrameWindow(CBRS_ALIGN_BOTTOM, &size);
    }
    void Pose() override { toolsBelow(); }
    void EndPose() override { m_layouts.Reset(); }

    CKbUiPaletteSet m_tools{2}, m_sheets{2};
    CKtUiPaletteLayouts m_layouts;
};

}  // namespace

std::vector<GalleryEntry> PalettePages() {
    constexpr const wchar_t *kFamily = L"Palettes", *kChinese = L"选项板";
    return {
        {kFamily, kChinese, L"Palette set", L"选项板集", MakePage<CPaletteSetPage>,
         L"class CLayersPalette : public CKbUiPalette { ... };\nCKbUiPaletteSet m_set{2};\n\n"
         L"m_set.Create(L\"Tools\", WS_CHILD | WS_VISIBLE |\n    CBRS_RIGHT | CBRS_FLOAT_MULTI, rect, this, "
         L"0);\n"
         L"m_set.SetDlgCtrlID(4001);\n\nauto* layers = new CLayersPalette;\nlayers->SetName(L\"Layers\");\n"
         L"m_set.AddPalette(layers);  // the set's from here on\nm_set.SetActivePalette(layers);"},
        {kFamily, kChinese, L"Docking", L"停靠", MakePage<CDockingPage>,
         L"EnableDocking(CBRS_ALIGN_ANY);  // in the frame\n\nm_set.EnableDocking(CBRS_ALIGN_ANY);\n"
         L"m_set.DockControlBar(CBRS_ALIGN_RIGHT, nullptr);\nm_other.AttachToTabWnd(&m_set, DM_SHOW);\n\n"
         L"// docked bars stay where they are\nKbUiLockPanel(true, false);"},
        {kFamily, kChinese, L"Layouts", L"布局", MakePage<CLayoutsPage>,
         L"CKtUiPaletteLayouts m_layouts;\n\nm_layouts.Attach(*this);  // in the "
         L"frame\nm_layouts.KeepBuiltIn();\n\n"
         L"m_layouts.Save(L\"Drafting\");\nif (!m_layouts.Apply(L\"Review\"))\n    KtUiMessageBox(nullptr, "
         L"m_layouts.GetProblem(), MB_OK);\nm_layouts.Reset();\n\nm_layouts.Export(path);\n"
         L"m_layouts.SetKeepReachable(TRUE);"}};
}
