// File navigation: the dialog with its options, places, previews, the search for files and the options of
// saving.
#include "gallery_page.h"

#include <ktdsres/nav_file_dialog_ids.h>
#include <ktut.h>

#include "sample_preview.h"

namespace {

constexpr unsigned kLimit = 3000;  // milliseconds
constexpr const wchar_t* kPlacesRoot = L"Software\\Velmora\\Gallery\\";

/// A page whose previews come from the gallery, at once or slowly.
class CPreviewingPage : public CGalleryPage {
protected:
    void AddPreviewSwitches() {
        const KtUiThumbnailProvider former = ShowSamplePreviews(true);
        MakeSamplePreviewsSlow(false);
        AtEnd([former] {
            KtUiSetThumbnailProvider(former);
            KtUiSetNeverBlocked(0);
        });
        Switch(Both(L"Never blocked", L"从不阻塞"), false,
               [](bool on) { KtUiSetNeverBlocked(on ? kLimit : 0); });
        Switch(Both(L"Previews take 10 s", L"预览需要 10 秒"), false, &MakeSamplePreviewsSlow);
    }
};

class CNavigationPage : public CPreviewingPage {
    void Build() override {
        Say(Both(
            L"The system's file dialog with places, previews and ways to open. What is ticked holds from "
            L"the next dialog on.",
            L"带有位置列表、预览和多种打开方式的系统文件对话框。勾选的选项从下一个对话框起生效。"));
        Switch(Both(L"Preview", L"预览"), true, [this](bool on) { m_preview = on; });
        Switch(Both(L"Open read-only", L"以只读方式打开"), true, [this](bool on) { m_readOnly = on; });
        Switch(Both(L"Several files", L"多个文件"), false, [this](bool on) { m_several = on; });
        Switch(Both(L"Options of saving", L"另存为选项"), true, [this](bool on) { m_options = on; });
        Switch(Both(L"Security", L"安全选项"), true, [this](bool on) { m_security = on; });
        AddPreviewSwitches();
        m_posed = Command(Both(L"Open...", L"打开..."), [this] { return ask(Kind::kOpen); });
        Command(Both(L"Save as...", L"另存为..."), [this] { return ask(Kind::kSave); });
        Command(Both(L"Folder...", L"文件夹..."), [this] { return ask(Kind::kFolder); });
    }
    void Pose() override { Press(m_posed); }

    enum class Kind { kOpen, kSave, kFolder };
    CString ask(Kind kind) {
        CNavDataArray chosen;
        CNavFilterArray types;
        CNavFilter& drawings = *types.AddData();
        drawings.SetDescription(Both(L"Drawing", L"图形"));
        drawings.Add(L"*.dxf");
        CNavFilter& all = *types.AddData();
        all.SetDescription(Both(L"All files", L"所有文件"));
        all.Add(L"*.*");
        CKtUiNavDialog dialog(chosen, types);
        constexpr int kSecurityButton = 0x80, kOptionsButton = 0x8000;
        dialog.ConvertFlagsToState((m_options ? kOptionsButton : 0) | (m_security ? kSecurityButton : 0));
        dialog.SetDialogName(L"Gallery Files");
        dialog.SetAppRootKey(kPlacesRoot);
        dialog.SetPreviewVisible(m_preview);
        dialog.SetReadOnlyAllowed(m_readOnly);
        dialog.SetReadOnlyHidden(!m_readOnly);
        dialog.SetMultiSelectAllowed(m_several);
        dialog.SetCreatingFile(kind == Kind::kSave);
        dialog.SetFoldersOnly(kind == Kind::kFolder);
        if (dialog.DoModal() != IDOK) return CString(L"IDCANCEL");
        CString text;
        for (int i = 0; i < chosen.GetCount(); ++i)
            text += (i > 0 ? L", " : L"") + CString(chosen.GetData(i)->GetText());
        return text;
    }

    bool m_preview = true, m_readOnly = true, m_several = false, m_options = true, m_security = true;
    UINT m_posed = 0;
};

class CPreviewPage : public CPreviewingPage {
    CThumbnailCtrl& add(const CString& label, const wchar_t* path) {
        auto& pane = ShowTall<CThumbnailCtrl>(label, SS_NOPREFIX, 40);
        pane.SetWindowText(L"");
        pane.m_path = path;
        m_panes.push_back(&pane);
        return pane;
    }
    void Build() override {
        AddPreviewSwitches();
        Command(Both(L"Read again", L"重新读取"), [this] {
            for (CThumbnailCtrl* pane : m_panes) {
                // Another path in between, since what never blocks reads a file once.
                const CString path = std::exchange(pane->m_path, CString());
                pane->RedrawWindow();
                pane->m_path = path;
                pane->RedrawWindow();
            }
            return CString();
        });
        wchar_t program[MAX_PATH] = {}, folder[MAX_PATH] = {};
        ::GetModuleFileNameW(nullptr, program, MAX_PATH);
        ::GetWindowsDirectoryW(folder, MAX_PATH);
        add(Both(L"Made smaller", L"缩小显示"), program);
        add(Both(L"At its own size", L"按原始大小"), ktutCombinePath(ktutProgramFolder(), L"ktui.dll"));
        add(Both(L"None, for a folder", L"文件夹没有预览"), folder);
    }
    std::vector<CThumbnailCtrl*> m_panes;
};

class CFindPage : public CGalleryPage {
    void Build() override {
        Say(Both(L"Searches folders by name, type and date. It remembers the last ten names and folders.",
                 L"按名称、类型和日期搜索文件夹。记住最近的十个名称和文件夹。"));
        Switch(Both(L"Each folder once", L"每个文件夹只搜索一次"), false,
               [](bool on) { KtUiSetFindFileWalk(on ? kKtUiFindOnce : kKtUiFindSettled); });
        AtEnd([] { KtUiSetFindFileWalk(kKtUiFindSettled); });
        m_posed = Command(Both(L"Find...", L"查找..."), [] {
            CString types = Both(L"Drawings (*.dxf)|*.dxf|All files (*.*)|*.*||",
                                 L"图形 (*.dxf)|*.dxf|所有文件 (*.*)|*.*||");
            for (int i = 0; i < types.GetLength(); ++i)
                if (types[i] == L'|') types.SetAt(i, L'\0');
            OdString folder, file;
            wchar_t start[MAX_PATH] = {};
            ::GetCurrentDirectoryW(MAX_PATH, start);
            if (!ktuiFindFileDialog(types, 1, start, folder, file)) return CString(L"IDCANCEL");
            return CString(ktutCombinePath(folder.c_str(), file.c_str()).c_str());
        });
    }
    void Pose() override { Press(m_posed); }
    UINT m_posed = 0;
};

/// The sheet belongs to the dialog that saves.
class CSaveOptionsPage : public CGalleryPage {
    void Build() override {
        Say(Both(L"The sheet behind the Options button of a dialog that saves: drawings, and exchange files.",
                 L"保存对话框中“选项”按钮打开的属性表：图形和交换文件。"));
        m_posed = Command(Both(L"Save as...", L"另存为..."), [] {
            CNavDataArray chosen;
            CNavFilterArray types;
            CNavFilter& drawings = *types.AddData();
            drawings.SetDescription(Both(L"Drawing", L"图形"));
            drawings.Add(L"*.dxf");
            CKtUiNavDialog dialog(chosen, types);
            constexpr int kSecurityButton = 0x80, kOptionsButton = 0x8000;
            dialog.ConvertFlagsToState(kSecurityButton | kOptionsButton);
            dialog.SetDialogName(L"Gallery Save");
            dialog.SetAppRootKey(kPlacesRoot);
            dialog.SetCreatingFile(1);
            return CString(dialog.DoModal() == IDOK ? L"IDOK" : L"IDCANCEL");
        });
    }
    void Pose() override {
        Press(m_posed);
        page() = this;
        m_timer = ::SetTimer(nullptr, 0, 50, [](HWND, UINT, UINT_PTR timer, DWORD) {
            if (page() == nullptr || page()->m_timer != timer)
                ::KillTimer(nullptr, timer);
            else
                page()->pressOptions();
        });
    }
    void EndPose() override {
        stop();
        CGalleryPage::EndPose();
    }
    /// As soon as the dialog is there.
    void pressOptions() {
        const HWND dialog = ::GetLastActivePopup(::GetAncestor(m_hWnd, GA_ROOT));
        const HWND own = ::FindWindowExW(dialog, nullptr, L"#32770", nullptr);
        if (!::IsWindowVisible(dialog) || ::GetDlgItem(own, IDC_NAV_OPTIONS) == nullptr) return;
        stop();
        ::PostMessageW(own, WM_COMMAND, MAKEWPARAM(IDC_NAV_OPTIONS, BN_CLICKED),
                       reinterpret_cast<LPARAM>(::GetDlgItem(own, IDC_NAV_OPTIONS)));
    }
    void stop() {
        if (m_timer != 0) ::KillTimer(nullptr, m_timer);
        m_timer = 0;
        page() = nullptr;
    }
    static CSaveOptionsPage*& page() {
        static CSaveOptionsPage* one = nullptr;
        return one;
    }
    UINT m_posed = 0;
    UINT_PTR m_timer = 0;
};

/// Places of the gallery's own in the registry, which all its dialogs share.
class CPlacesPage : public CGalleryPage {
    void Build() override {
        Say(Both(
            L"Folders beside the files: dragged into another order, added by dropping them there or by the "
            L"right button, shared by all dialogs.",
            L"文件旁边的文件夹：可拖动排序，可拖放或用右键添加，所有对话框共用。"));
        Switch(Both(L"Two of one's own", L"两个自定义位置"), true, [this](bool on) { m_own = on; });
        m_posed = Command(Both(L"Open...", L"打开..."), [this] {
            store();
            CNavDataArray chosen;
            CNavFilterArray types;
            CNavFilter& all = *types.AddData();
            all.SetDescription(Both(L"All files", L"所有文件"));
            all.Add(L"*.*");
            CKtUiNavDialog dialog(chosen, types);
            dialog.SetDialogName(L"Gallery Places");
            dialog.SetAppRootKey(kOwnRoot);
            dialog.SetPreviewVisible(0);
            const INT_PTR result = dialog.DoModal();
            ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Velmora\\Gallery Places");
            return CString(result == IDOK ? L"IDOK" : L"IDCANCEL");
        });
    }
    void Pose() override { Press(m_posed); }
    /// Puts the places into the registry as the dialog keeps them; without them it has the standard ones.
    void store() const {
        if (!m_own) return;
        wchar_t windows[MAX_PATH] = {};
        ::GetWindowsDirectoryW(windows, MAX_PATH);
        const CString program = ktutProgramFolder().c_str();
        const CString names[] = {L"Desktop", windows, L"Personal",
                                 program.Right(1) == L"\\" ? program.Left(program.GetLength() - 1) : program};
        const CString captions[] = {L"", Both(L"Standards", L"标准"), L"", Both(L"Blocks", L"图块")};
        for (int i = 0; i < 4; ++i) {
            CString value;
            value.Format(L"PlacesOrder%d", i);
            set(value, names[i]);
            set(value + L"Display", captions[i]);
        }
        set(L"PlacesOrder4", L"");
    }
    static void set(const CString& value, const CString& text) {
        ::RegSetKeyValueW(HKEY_CURRENT_USER, CString(kOwnRoot) + L"AllAnavDialogs", value, REG_SZ,
                          text.GetString(),
                          static_cast<DWORD>((text.GetLength() + 1) * static_cast<int>(sizeof(wchar_t))));
    }
    static constexpr const wchar_t* kOwnRoot = L"Software\\Velmora\\Gallery Places\\";
    bool m_own = true;
    UINT m_posed = 0;
};

}  // namespace

std::vector<GalleryEntry> NavPages() {
    constexpr const wchar_t *kFamily = L"File navigation", *kChinese = L"文件导航";
    return {
        {kFamily, kChinese, L"Navigation dialog", L"导航对话框", MakePage<CNavigationPage>,
         L"CNavDataArray chosen;\nCNavFilterArray types;\nCNavFilter* type = types.AddData();\n"
         L"type->SetDescription(L\"Drawing\");\ntype->Add(L\"*.dxf\");\nCKtUiNavDialog dialog(chosen, "
         L"types);\n"
         L"dialog.SetDialogName(L\"MyOpen\");\ndialog.SetPreviewVisible(1);\nif (dialog.DoModal() == IDOK)\n"
         L"    dialog.GetSingleDataFullPath(path);\n\n// drives that do not answer, given up after 3 s\n"
         L"KtUiSetNeverBlocked(3000);"},
        {kFamily, kChinese, L"Places", L"位置列表", MakePage<CPlacesPage>,
         L"CKtUiNavDialog dialog(chosen, types);\n// the places lie below this key\n"
         L"dialog.SetAppRootKey(L\"Software\\\\Mine\\\\\");\ndialog.DoModal();"},
        {kFamily, kChinese, L"Preview", L"预览", MakePage<CPreviewPage>,
         L"CThumbnailCtrl m_preview;\n\nm_preview.SubclassDlgItem(IDC_PREVIEW, this);\n"
         L"m_preview.m_path = path;\nm_preview.Invalidate();\n\n// previews of the host's own\n"
         L"HBITMAP previewOf(const wchar_t* path,\n                  int width, int height);\n"
         L"KtUiSetThumbnailProvider(&previewOf);"},
        {kFamily, kChinese, L"Find files", L"查找文件", MakePage<CFindPage>,
         L"OdString folder, file;\nif (ktuiFindFileDialog(\n        L\"Drawings\\0*.dxf\\0\", 1, start,\n"
         L"        folder, file))\n    open(folder, file);\n\n// each folder once\n"
         L"KtUiSetFindFileWalk(kKtUiFindOnce);"},
        {kFamily, kChinese, L"Save options", L"保存选项", MakePage<CSaveOptionsPage>,
         L"CKtUiNavDialog dialog(chosen, types);\ndialog.SetCreatingFile(1);\n// the bit of the Options "
         L"button\n"
         L"dialog.ConvertFlagsToState(0x8000);\ndialog.DoModal();"}};
}
