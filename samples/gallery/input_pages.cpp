// Edits, typed combo boxes and the search box.
#include "gallery_page.h"

namespace {

constexpr DWORD kEdit = WS_BORDER | ES_AUTOHSCROLL;
constexpr DWORD kCombo = CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL;

/// The states that every edit has.
class CEditPage : public CGalleryPage {
    void Build() override {
        m_normal = &Show<CTellingEdit<CKtUiStringEdit>>(Both(L"Normal", L"正常"), kEdit);
        m_normal->SetWindowText(L"Bracket");
        m_normal->SetStyleMask(kKtUiEditString);
        Show<CTellingEdit<CKtUiStringEdit>>(Both(L"Disabled", L"禁用"), kEdit | WS_DISABLED)
            .SetWindowText(L"Bracket");
        Show<CTellingEdit<CKtUiStringEdit>>(Both(L"Read-only", L"只读"), kEdit | ES_READONLY)
            .SetWindowText(L"Bracket");
        auto& invalid =
            Show<CTellingEdit<CKtUiSymbolEdit>>(Both(L"Invalid (a symbol name)", L"无效（符号名）"), kEdit);
        invalid.SetWindowText(L"Walls*");
        Mark(static_cast<unsigned>(invalid.GetDlgCtrlID()), true);
        auto& varying = Show<CTellingEdit<CKtUiStringEdit>>(Both(L"Varying", L"多种"), kEdit);
        varying.SetWindowText(L"*VARIES*");
        auto& longOne = Show<CTellingEdit<CKtUiStringEdit>>(
            Both(L"Too long: hover for a tip", L"过长：悬停显示提示"), kEdit);
        longOne.SetWindowText(L"A text that is longer than its field, and shows whole in a tip");
        Switch(Both(L"Refuse an empty text", L"拒绝空文本"), false, [this](bool on) {
            m_normal->SetStyleMask(kKtUiEditString | (on ? DWORD{kKtUiEditNoBlank} : 0));
        });
        Switch(Both(L"Enabled", L"启用"), true, [this](bool on) { m_normal->EnableWindow(on); });
        Command(Both(L"Validate all", L"全部校验"), [this, &invalid]() -> CString {
            const bool good = m_normal->Validate() && invalid.Validate();
            return good ? Both(L"valid", L"有效") : Both(L"invalid", L"无效");
        });
    }
    void Pose() override { PoseFocus(*m_normal); }
    CKtUiStringEdit* m_normal = nullptr;
};

/// Numbers, angles, names, texts.
class CTypedEditPage : public CGalleryPage {
    void Build() override {
        m_number =
            &Show<CTellingEdit<CKtUiNumericEdit>>(Both(L"Distance, 0 to 1000", L"距离，0 到 1000"), kEdit);
        m_number->SetStyleMask(kKtUiEditNumeric | kKtUiEditValidateOnKillFocus | kKtUiEditRange);
        m_number->SetRange(0, 1000);
        m_number->SetWindowText(L"12.5");
        auto& angle = Show<CTellingEdit<CKtUiAngleEdit>>(Both(L"Angle", L"角度"), kEdit);
        angle.SetStyleMask(kKtUiEditAngle | kKtUiEditConvertOnKillFocus);
        angle.SetWindowText(L"45");
        auto& symbol = Show<CTellingEdit<CKtUiSymbolEdit>>(Both(L"Symbol name", L"符号名"), kEdit);
        symbol.SetStyleMask(kKtUiEditSymbol | kKtUiEditNoBlank);
        symbol.SetWindowText(L"Walls");
        Show<CTellingEdit<CKtUiStringEdit>>(Both(L"Text", L"文本"), kEdit).SetWindowText(L"Ground floor");
        auto& bad = Show<CTellingEdit<CKtUiNumericEdit>>(Both(L"Out of range", L"超出范围"), kEdit);
        bad.SetStyleMask(kKtUiEditNumeric | kKtUiEditRange);
        bad.SetRange(0, 10);
        bad.SetWindowText(L"11");
        Mark(static_cast<unsigned>(bad.GetDlgCtrlID()), true);
        Switch(Both(L"Refuse zero", L"拒绝零"), false, [this](bool on) { mask(kKtUiEditNoZero, on); });
        Switch(Both(L"Refuse negative numbers", L"拒绝负数"), false,
               [this](bool on) { mask(kKtUiEditNoNegative, on); });
        Command(Both(L"Validate the distance", L"校验距离"), [this]() -> CString {
            return m_number->Validate() ? Both(L"valid", L"有效") : Both(L"invalid", L"无效");
        });
    }
    void mask(DWORD bit, bool on) {
        const DWORD former = m_number->GetStyleMask();
        m_number->SetStyleMask(on ? former | bit : former & ~bit);
    }
    void Pose() override { PoseFocus(*m_number); }
    CKtUiNumericEdit* m_number = nullptr;
};

class CTypedComboPage : public CGalleryPage {
    template <class Combo>
    Combo& add(const wchar_t* english, const wchar_t* chinese, std::initializer_list<const wchar_t*> entries,
               DWORD style = 0) {
        Combo& combo = Show<Combo>(Both(english, chinese), kCombo | style);
        for (const wchar_t* entry : entries) combo.AddString(entry);
        combo.SetCurSel(0);
        return combo;
    }
    void Build() override {
        add<CKtUiAngleComboBox>(L"Angle", L"角度", {L"0", L"45", L"90"});
        add<CKtUiSymbolComboBox>(L"Symbol name", L"符号名", {L"Walls", L"Doors", L"Windows"});
        add<CKtUiStringComboBox>(L"Text", L"文本", {L"Ground floor", L"First floor"});
        add<CKtUiStringComboBox>(L"Disabled", L"禁用", {L"Ground floor"}, WS_DISABLED);
        Switch(Both(L"Enabled", L"启用"), true, [this](bool on) { m_scale->EnableWindow(on); });
        Command(Both(L"Validate the number", L"校验数值"), [this]() -> CString {
            return m_scale->Validate() ? Both(L"valid", L"有效") : Both(L"invalid", L"无效");
        });
        m_scale = &add<CKtUiNumericComboBox>(L"Number", L"数值", {L"1", L"2.5", L"10", L"50"});
    }
    void Pose() override { PoseOpen(*m_scale); }
    CKtUiNumericComboBox* m_scale = nullptr;
};

/// A search box that tells its page.
class CTellingSearchBox : public CKbUiSearchBox {
public:
    explicit CTellingSearchBox(std::function<void(const wchar_t*)> tell) : m_tell(std::move(tell)) {
        SetNotification(Both(L"Search layers", L"搜索图层"));
    }
    void EditChanged() override {
        m_tell(L"EditChanged");
        CKbUiSearchBox::EditChanged();
    }
    void ClearButtonClicked() override {
        m_tell(L"ClearButtonClicked");
        CKbUiSearchBox::ClearButtonClicked();
    }
    void SearchButtonClicked() override {
        m_tell(L"SearchButtonClicked");
        CKbUiSearchBox::SearchButtonClicked();
    }

private:
    std::function<void(const wchar_t*)> m_tell;
};

class CSearchBoxPage : public CGalleryPage {
    void Build() override {
        m_empty = &add(Both(L"Empty, with its prompt", L"空，显示提示语"));
        auto& filled = add(Both(L"With a text", L"有文本"));
        filled.SetWindowText(L"wall");
        for (CWnd* child = filled.GetWindow(GW_CHILD); child != nullptr;
             child = child->GetWindow(GW_HWNDNEXT)) {
            wchar_t name[16] = {};
            ::GetClassNameW(*child, name, 16);
            if (_wcsicmp(name, L"Edit") == 0) child->SetWindowText(L"wall");
        }
        add(Both(L"Disabled", L"禁用")).EnableWindow(FALSE);
        Switch(Both(L"Enabled", L"启用"), true, [this](bool on) { m_empty->EnableWindow(on); });
        Command(Both(L"Clear", L"清除"), [&filled]() -> CString {
            filled.ClearEditor();
            return filled.IsEditEmpty() ? Both(L"empty", L"空") : Both(L"not empty", L"非空");
        });
    }
    CTellingSearchBox& add(const CString& label) {
        auto& box = Show<CTellingSearchBox>(
            label, WS_BORDER, [this, label](const wchar_t* what) { Tell(label + L": " + what); });
        return box;
    }
    CTellingSearchBox* m_empty = nullptr;
};

}  // namespace

std::vector<GalleryEntry> InputPages() {
    constexpr const wchar_t *kFamily = L"Input", *kChinese = L"输入";
    return {{kFamily, kChinese, L"Edit", L"编辑框", MakePage<CEditPage>,
             L"CKtUiStringEdit m_name;\n"
             L"\n"
             L"void DoDataExchange(CDataExchange* x) {\n"
             L"    DDX_Control(x, IDC_NAME, m_name);\n"
             L"}\n"
             L"m_name.SetStyleMask(kKtUiEditString\n"
             L"                    | kKtUiEditNoBlank);\n"
             L"\n"
             L"KBUI_REPLY OnNotifyControlValid(\n"
             L"        unsigned id, int valid) override;\n"
             L"if (!m_name.Validate()) return;"},
            {kFamily, kChinese, L"Typed edits", L"类型化编辑框", MakePage<CTypedEditPage>,
             L"CKtUiNumericEdit m_width;\n"
             L"CKtUiAngleEdit m_turn;\n"
             L"CKtUiSymbolEdit m_layer;\n"
             L"\n"
             L"m_width.SetStyleMask(kKtUiEditNumeric\n"
             L"    | kKtUiEditValidateOnKillFocus\n"
             L"    | kKtUiEditRange);\n"
             L"m_width.SetRange(0, 1000);\n"
             L"m_layer.SetStyleMask(kKtUiEditSymbol\n"
             L"    | kKtUiEditNoBlank);"},
            {kFamily, kChinese, L"Typed combo boxes", L"类型化组合框", MakePage<CTypedComboPage>,
             L"CKtUiNumericComboBox m_scale;\n"
             L"\n"
             L"DDX_Control(x, IDC_SCALE, m_scale);\n"
             L"for (auto each : {L\"1\", L\"2.5\", L\"10\"})\n"
             L"    m_scale.AddString(each);\n"
             L"m_scale.SetCurSel(0);\n"
             L"m_scale.SetRange(0.1, 100);\n"
             L"if (!m_scale.Validate()) return;"},
            {kFamily, kChinese, L"Search box", L"搜索框", MakePage<CSearchBoxPage>,
             L"class CLayerSearch : public CKbUiSearchBox {\n"
             L"    void EditChanged() override {\n"
             L"        CKbUiSearchBox::EditChanged();\n"
             L"        filterLayers();\n"
             L"    }\n"
             L"};\n"
             L"m_search.SetNotification(L\"Search layers\");\n"
             L"m_search.Create(WS_CHILD | WS_VISIBLE\n"
             L"    | WS_BORDER, place, this, IDC_SEARCH);"}};
}
