// Tips in every style.
#include "gallery_page.h"

namespace {

class CTextTipPage : public CGalleryPage {
    void Build() override {
        m_edit = &Show<CKtUiStringEdit>(Both(L"Too long for its field", L"超出字段长度"),
                                        WS_BORDER | ES_AUTOHSCROLL);
        m_edit->SetWindowText(L"A text that is longer than its field shows whole in a tip");
        Say(Both(L"A control whose text is cut off shows it whole in a text tip where the pointer rests.",
                 L"文本被截断的控件在指针停留处以文本提示完整显示。"));
        Switch(Both(L"Tips on", L"启用提示"), GetUseTips() != 0, [this](bool on) { SetUseTips(on); });
    }
    void Pose() override {
        CPoint inside(8, 6);
        m_edit->ClientToScreen(&inside);
        ::SetCursorPos(inside.x, inside.y);
        m_edit->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(8, 6));
    }
    CKtUiStringEdit* m_edit = nullptr;
};

class CRichTipPage : public CGalleryPage {
    void Build() override {
        m_tip.Create(this);
        Say(Both(L"A host shows it where it likes: at once, or after half a second.",
                 L"宿主可随处显示：立即，或半秒之后。"));
        Command(Both(L"Several lines", L"多行"), [this]() -> CString {
            showLines();
            return {};
        });
        Command(Both(L"One text, at once", L"单行文本，立即"), [this]() -> CString {
            m_tip.Activate(place(), Both(L"Polyline", L"多段线"), false);
            return {};
        });
        Command(Both(L"One text, later", L"单行文本，稍后"), [this]() -> CString {
            m_tip.Activate(place(), Both(L"Polyline", L"多段线"), true);
            return {};
        });
        Command(Both(L"Hide it", L"隐藏"), [this]() -> CString {
            m_tip.Deactivate();
            return {};
        });
        AtEnd([this] { m_tip.DestroyWindow(); });
    }
    CPoint place() {
        CPoint at(120, 160);
        ClientToScreen(&at);
        return at;
    }
    void showLines() {
        OdArray<OdString> lines;
        for (const CString& line : {Both(L"Polyline", L"多段线"), Both(L"Layer: Walls", L"图层：Walls"),
                                    Both(L"Length: 1250.00", L"长度：1250.00")})
            lines.append(OdString(line.GetString()));
        m_tip.Activate(place(), lines);
    }
    void Pose() override {
        m_tip.Activate(place(), Both(L"Polyline on layer Walls", L"图层 Walls 上的多段线"), false);
    }
    void EndPose() override { m_tip.Deactivate(); }
    CKhTipCtrl m_tip;
};

class CToolTipPage : public CGalleryPage {
    void Build() override {
        m_edit = &Show<CKtUiStringEdit>(Both(L"Hover here", L"在此悬停"), WS_BORDER | ES_AUTOHSCROLL);
        m_edit->SetWindowText(L"Walls");
        m_tips.Create(this);
        m_tips.AddTool(m_edit, Both(L"The layer of new objects", L"新对象的图层"));
        m_tips.Activate(TRUE);
        Switch(Both(L"Active", L"启用"), true, [this](bool on) { m_tips.Activate(on); });
        Command(Both(L"Balloon tip", L"气球提示"), [this] {
            const int answer = KbUiShowBalloonTip(this, m_edit, Both(L"Only letters.", L"仅限字母。"), 0);
            return CString(answer ? L"1" : L"0");
        });
        Say(Both(L"Balloon tips keep their call and answer 0: nothing shows.",
                 L"气球提示保留其调用并返回 0：不显示内容。"));
        AtEnd([this] { m_tips.DestroyWindow(); });
    }
    BOOL PreTranslateMessage(MSG* message) override {
        if (m_tips.m_hWnd != nullptr) m_tips.RelayEvent(message);
        return CGalleryPage::PreTranslateMessage(message);
    }
    CKtUiStringEdit* m_edit = nullptr;
    CKbToolTipCtrl m_tips;
};

}  // namespace

std::vector<GalleryEntry> TipPages() {
    constexpr const wchar_t *kFamily = L"Tips", *kChinese = L"提示";
    return {
        {kFamily, kChinese, L"Text tip", L"文本提示", MakePage<CTextTipPage>,
         L"// a dialog of the toolkit shows it by itself\nCKtUiStringEdit m_name;\n"
         L"DDX_Control(x, IDC_NAME, m_name);\n\n// off for one dialog\nSetUseTips(FALSE);"},
        {kFamily, kChinese, L"Rich tip", L"富提示", MakePage<CRichTipPage>,
         L"CKhTipCtrl m_tip;\n\nm_tip.Create(this);\nOdArray<OdString> lines;\nlines.append(L\"Polyline\");\n"
         L"lines.append(L\"Layer: Walls\");\nm_tip.Activate(screenPoint, lines);\n\n"
         L"m_tip.Deactivate();  // the pointer moved on"},
        {kFamily, kChinese, L"Tool tip", L"工具提示", MakePage<CToolTipPage>,
         L"CKbToolTipCtrl m_tips;\n\nm_tips.Create(this);\nm_tips.AddTool(&m_layer,\n"
         L"    L\"The layer of new objects\");\n\nBOOL PreTranslateMessage(MSG* message) override {\n"
         L"    m_tips.RelayEvent(message);\n    return CKtUiDialog::PreTranslateMessage(message);\n}"}};
}
