// A page of the gallery: rows of one control in its states, switches of its options, what it tells its holder
// as it comes, and the lines of code that make it.
//
//     class CEditPage : public CGalleryPage {
//         void Build() override {
//             Show<CKtUiEdit>(Both(L"Normal", L"正常"), WS_BORDER | ES_AUTOHSCROLL).SetWindowText(L"A1");
//         }
//     };
//
// A page is a dialog, destroyed by DestroyWindow before it goes, so that the toolkit's notifications, tips
// and keys reach its controls. It owns them.
#pragma once

#include <functional>
#include <memory>
#include <set>
#include <vector>

#include <ktui/ktui.h>

/// The text in the language of the user: the second one for Chinese.
CString Both(const wchar_t* english, const wchar_t* chinese);

class CGalleryPage : public CKtUiDialog {
public:
    using Log = std::function<void(const CString& line)>;

    CGalleryPage();
    ~CGalleryPage() override;

    /// Makes the page's window a child of `parent` in `place` (client pixels); lines for the log go to `log`.
    bool CreatePage(CWnd& parent, const CRect& place, Log log);
    /// What a control tells of itself: goes to the log, and a bad value turns red.
    void Hear(KBUI_NOTIFY notification, unsigned id);
    /// What is to be seen when a picture is taken: a list open, a tip shown. Nothing at first.
    virtual void Pose() {}
    /// Undoes Pose; a modal dialog over the gallery is cancelled.
    virtual void EndPose();

protected:
    /// Makes the rows, switches and commands.
    virtual void Build() = 0;

    /// A row: a label and beside it a control of class Control made by its own Create.
    template <class Control, class... Arguments>
    Control& Show(const CString& label, DWORD style, Arguments&&... arguments) {
        return ShowTall<Control>(label, style, kRowHeight, std::forward<Arguments>(arguments)...);
    }
    /// The same with a height in dialog units; lists that drop have theirs in addition.
    template <class Control, class... Arguments>
    Control& ShowTall(const CString& label, DWORD style, int height, Arguments&&... arguments) {
        auto owned = std::make_unique<Control>(std::forward<Arguments>(arguments)...);
        Control& control = *owned;
        m_controls.push_back(std::move(owned));
        const CRect place = addRow(label, height);
        createControl(control, style | WS_CHILD | WS_VISIBLE | WS_TABSTOP, place);
        finish(control);
        return control;
    }
    /// The same for a picker: a drop-down list that draws itself. It is filled if it fills itself.
    template <class Picker, class... Arguments>
    Picker& ShowPicker(const CString& label, Arguments&&... arguments) {
        constexpr DWORD kPickerStyle = CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | WS_VSCROLL;
        return Show<Picker>(label, kPickerStyle, std::forward<Arguments>(arguments)...);
    }
    /// A line of words over the whole width.
    void Say(const CString& text);
    /// Room for what the page places itself, in dialog units from the top of the next row; its place in
    /// pixels.
    CRect Room(int height);
    /// A check box, ticked if `on`; `turned` runs at each click, and the log tells.
    void Switch(const CString& text, bool on, std::function<void(bool on)> turned);
    /// A push button; `pressed` runs at each click, and its answer goes to the log if there is one.
    /// Answers the id of the button.
    UINT Command(const CString& text, std::function<CString()> pressed);
    /// A line for the log.
    void Tell(const CString& line);
    /// Shows the value of control `id` as a bad one, or no longer.
    void Mark(unsigned id, bool isInvalid);
    /// Presses a command for a picture, as soon as messages are dispatched.
    void Press(UINT command) { PostMessage(WM_COMMAND, MAKEWPARAM(command, BN_CLICKED)); }
    /// Opens the list of a combo box for a picture.
    void PoseOpen(CWnd& combo);
    /// Makes the focus go to `control` for a picture.
    void PoseFocus(CWnd& control);
    /// Calls `action` when the page goes.
    void AtEnd(std::function<void()> action) { m_endings.push_back(std::move(action)); }

    BOOL OnInitDialog() override;
    void OnOK() override {}
    void OnCancel() override {}
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 data) override;
    afx_msg void OnDestroy();
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    DECLARE_MESSAGE_MAP()

    static constexpr int kRowHeight = 13;  // dialog units

private:
    CRect addRow(const CString& label, int height);
    CRect pixels(CRect units) const;
    void finish(CWnd& control);
    UINT addButton(const CString& text, DWORD style, int width);
    /// What lines of the log begin with for control `id`; nothing for a control without a row.
    CString nameOf(unsigned id) const;

    template <class Control>
    void createControl(Control& control, DWORD style, CRect place) {
        const UINT id = m_nextId++;
        if constexpr (std::is_base_of_v<CComboBox, Control>) place.bottom += place.Height() * 12;
        if constexpr (std::is_base_of_v<CButton, Control> || std::is_base_of_v<CStatic, Control>)
            control.Create(m_caption, style, place, this, id);
        else
            control.Create(style, place, this, id);
    }

    struct Clicked {
        UINT id;
        std::function<void()> action;
    };
    std::vector<std::unique_ptr<CWnd>> m_controls;
    std::vector<std::pair<UINT, CString>> m_names;
    std::vector<Clicked> m_clicked;
    std::vector<std::function<void()>> m_endings;
    std::set<unsigned> m_invalid;
    CBrush m_invalidBrush;
    Log m_log;
    CString m_caption;
    CWnd* m_posed = nullptr;
    UINT m_nextId = 5000;
    int m_y = 4;        ///< of the next row, in dialog units
    int m_buttonX = 0;  ///< of the next button in a row of buttons, 0 for a new row
    bool m_isBuilding = false;
};

/// An edit that hands on to its page what it finds out about its value.
template <class Edit>
class CTellingEdit : public Edit {
protected:
    KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 data) override {
        const bool isVerdict =
            notification == kKbUiNotifyControlInvalid || notification == kKbUiNotifyControlValid;
        if (isVerdict) static_cast<CGalleryPage*>(this->GetParent())->Hear(notification, id);
        return Edit::DoKbUiMessage(notification, id, data);
    }
};

/// One entry of the gallery's tree.
struct GalleryEntry {
    const wchar_t* family;  ///< English; entries of a family stand together
    const wchar_t* familyChinese;
    const wchar_t* name;  ///< English; also names the picture
    const wchar_t* nameChinese;
    std::unique_ptr<CGalleryPage> (*make)();
    const wchar_t* code;  ///< the lines that make the control, parted by \n
};

/// The function of a GalleryEntry for a page class.
template <class Page>
std::unique_ptr<CGalleryPage> MakePage() {
    return std::make_unique<Page>();
}

// The pages of each family, one file each.
std::vector<GalleryEntry> InputPages();
std::vector<GalleryEntry> PickerPages();
std::vector<GalleryEntry> ButtonPages();
std::vector<GalleryEntry> ListPages();
std::vector<GalleryEntry> DialogPages();
std::vector<GalleryEntry> NavPages();
std::vector<GalleryEntry> MessagePages();
std::vector<GalleryEntry> TipPages();
std::vector<GalleryEntry> PalettePages();

/// All of them, family by family.
std::vector<GalleryEntry> AllPages();
