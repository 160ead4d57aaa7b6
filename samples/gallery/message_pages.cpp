// Message boxes, alerts and task dialogs.
#include "gallery_page.h"

namespace {

constexpr int kLongText = 5000;  // characters

CString numbered(INT_PTR answer) {
    CString text;
    text.Format(L"%d", static_cast<int>(answer));
    return text;
}

class CMessageBoxPage : public CGalleryPage {
    void Build() override {
        const struct {
            const wchar_t *english, *chinese;
            UINT type;
        } boxes[] = {{L"OK", L"确定", MB_OK | MB_ICONINFORMATION},
                     {L"OK, Cancel", L"确定、取消", MB_OKCANCEL | MB_ICONEXCLAMATION},
                     {L"Yes, No", L"是、否", MB_YESNO | MB_ICONQUESTION},
                     {L"Yes, No, Cancel", L"是、否、取消", MB_YESNOCANCEL | MB_ICONQUESTION},
                     {L"Retry, Cancel", L"重试、取消", MB_RETRYCANCEL | MB_ICONSTOP},
                     {L"Abort, Retry, Ignore", L"中止、重试、忽略", MB_ABORTRETRYIGNORE | MB_ICONSTOP}};
        for (const auto& each : boxes)
            m_posed =
                Command(Both(each.english, each.chinese), [this, type = each.type] { return ask(type); });
    }
    CString ask(UINT type) {
        return numbered(KtUiMessageBox(
            Both(L"Bracket", L"支架"),
            Both(L"The drawing was changed by another program.", L"图形已被其他程序更改。"), type));
    }
    void Pose() override { Press(m_posed - 2); }  // Yes, No, Cancel
    UINT m_posed = 0;
};

class CAlertPage : public CGalleryPage {
    void Build() override {
        Command(Both(L"One answer", L"一个答案"), [this] { return ask(false, 0); });
        m_posed = Command(Both(L"Two answers", L"两个答案"), [this] { return ask(true, 0); });
        Command(Both(L"Cancel is the default", L"默认为取消"), [this] { return ask(true, 2); });
    }
    void Pose() override { Press(m_posed); }
    UINT m_posed = 0;
    CString ask(bool two, unsigned standard) {
        return numbered(
            KbUiAlertDialog(Both(L"Export", L"输出"),
                            Both(L"The file is open in another program.", L"文件在其他程序中打开。"),
                            Both(L"&Try again", L"重试(&T)"),
                            two ? Both(L"&Another file", L"其他文件(&A)").GetString() : nullptr, standard));
    }
};

class CTaskDialogPage : public CGalleryPage {
    void Build() override {
        Switch(Both(L"Command links", L"命令链接"), true, [this](bool on) { m_links = on; });
        Switch(Both(L"Verification box", L"验证框"), true, [this](bool on) { m_verifies = on; });
        Switch(Both(L"Thirty commands", L"三十个命令"), false, [this](bool on) { m_many = on; });
        Switch(Both(L"A long text", L"长文本"), false, [this](bool on) { m_isLong = on; });
        m_posed = Command(Both(L"Ask", L"询问"), [this] { return ask(); });
    }
    void Pose() override { Press(m_posed); }
    CString ask() {
        constexpr int kFirst = 101, kLinks = 0x0010, kRelative = 0x1000, kCancel = 0x0008;
        CKtUiTaskDialog dialog;
        dialog.SetWindowTitle(Both(L"Gallery", L"控件库"));
        dialog.SetMainInstruction(
            Both(L"Save the changes to bracket.dxf?", L"是否保存对 bracket.dxf 的更改？"));
        const CString sentence = Both(L"It was changed ten minutes ago. ", L"十分钟前作了更改。");
        CString content = sentence;
        while (m_isLong && content.GetLength() < kLongText) content += sentence;
        dialog.SetContent(content);
        dialog.SetOptions(kRelative | (m_links ? kLinks : 0));
        dialog.SetCommonButtons(kCancel);
        const int count = m_many ? 30 : 2;
        for (int i = 0; i < count; ++i) {
            dialog.AddCommandControl(kFirst + i, i == 0   ? Both(L"Save", L"保存")
                                                 : i == 1 ? Both(L"Don't save", L"不保存")
                                                          : Both(L"Save as...", L"另存为..."));
            dialog.SetCommandControlExtend(
                kFirst + i, Both(L"The file on the disk is replaced, or not.", L"替换或保留磁盘上的文件。"));
        }
        if (m_verifies) dialog.SetVerificationCheckboxText(Both(L"&Don't ask again", L"不再询问(&D)"));
        const auto answer = dialog.DoModal(::GetAncestor(m_hWnd, GA_ROOT));
        CString text = numbered(answer);
        if (m_verifies && dialog.GetVerificationCheckboxState())
            text += Both(L", and don't ask again", L"，且不再询问");
        return text;
    }
    UINT m_posed = 0;
    bool m_links = true, m_verifies = true, m_many = false, m_isLong = false;
};

}  // namespace

std::vector<GalleryEntry> MessagePages() {
    constexpr const wchar_t *kFamily = L"Messages", *kChinese = L"消息";
    return {{kFamily, kChinese, L"Message box", L"消息框", MakePage<CMessageBoxPage>,
             L"int answer = KtUiMessageBox(L\"Bracket\",\n    L\"The drawing was changed.\",\n"
             L"    MB_YESNOCANCEL | MB_ICONQUESTION);\n\n// a null caption is the host's:\n"
             L"// productInfo()->messageCaption()"},
            {kFamily, kChinese, L"Alert", L"警告", MakePage<CAlertPage>,
             L"switch (KbUiAlertDialog(L\"Export\",\n        L\"The file is open elsewhere.\",\n"
             L"        L\"&Try again\", L\"&Another file\", 0)) {\n    case 0: retry(); break;\n"
             L"    case 1: askFile(); break;\n    default: break;  // Cancel\n}"},
            {kFamily, kChinese, L"Task dialog", L"任务对话框", MakePage<CTaskDialogPage>,
             L"CKtUiTaskDialog dialog;\ndialog.SetMainInstruction(L\"Save the changes?\");\n"
             L"dialog.SetOptions(0x10);        // links\ndialog.SetCommonButtons(0x08);  // Cancel\n"
             L"dialog.AddCommandControl(101, L\"Save\");\ndialog.SetCommandControlExtend(101,\n"
             L"    L\"The file is replaced.\");\ndialog.SetVerificationCheckboxText(\n    L\"Don't ask "
             L"again\");\n"
             L"if (dialog.DoModal(m_hWnd) == 101) save();"}};
}
