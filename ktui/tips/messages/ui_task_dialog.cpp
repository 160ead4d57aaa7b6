#include <ktui/tips/messages/ui_task_dialog.h>

#include <afxglobals.h>
#include <ktut.h>

#include <cstdlib>

#include <ktui/host/appearance.h>
#include <ktui/host/string_resources.h>
#include <ktui/res/resource_ids.h>
#include <ktui/tips/messages/dialog_measurer.h>
#include <ktui/tips/messages/message_colors.h>
#include <ktui/tips/messages/task_dialog_impl.h>

namespace {

constexpr int kCheckBoxId = 1137;
constexpr int kTextId = 65535;
constexpr DWORD kTextStyle = WS_CHILD | WS_VISIBLE | SS_OWNERDRAW;
constexpr DWORD kCheckBoxStyle = BS_AUTOCHECKBOX | BS_LEFT | BS_TOP | BS_MULTILINE;
constexpr int kIconSize = 32;  // pixels at 96 dots an inch
constexpr int kOkButton = 1;
constexpr int kStandardBaseX = 8, kStandardBaseY = 16;  // dialog base units at 96 dots an inch

}  // namespace

BEGIN_MESSAGE_MAP(CUiTaskDialog, CKtUiDialog)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

CUiTaskDialog::CUiTaskDialog(CTaskDialogImpl& impl, CWnd* parent)
    : CKtUiDialog(IDD_TASK_DIALOG, parent), m_impl(impl) {}

BOOL CUiTaskDialog::OnInitDialog() {
    CKtUiDialog::OnInitDialog();
    makeFonts();
    if (m_impl.isCancellable()) ModifyStyle(0, WS_SYSMENU);
    SetWindowText(m_impl.m_windowTitle);
    if (m_impl.m_commands.empty() && m_impl.m_commonButtons == 0) m_impl.m_commonButtons = kOkButton;
    createChildren(place());
    if (CWnd* first = GetNextDlgTabItem(nullptr)) first->SetFocus();
    revealFocus();
    return FALSE;
}

void CUiTaskDialog::makeFonts() {
    LOGFONT font = {};
    afxGlobalData.fontRegular.GetLogFont(&font);
    if (KtUiFollowsSystemAppearance())
        font.lfHeight = ::MulDiv(static_cast<int>(font.lfHeight), static_cast<int>(KtUiWindowDpi(m_hWnd)),
                                 static_cast<int>(KtUiWindowDpi(nullptr)));
    m_textFont.CreateFontIndirect(&font);
    SetFont(&m_textFont);
    m_unit = std::abs(static_cast<int>(font.lfHeight));
    font.lfHeight = TaskDialogHeadingHeight(static_cast<int>(font.lfHeight));
    m_headingFont.CreateFontIndirect(&font);
}

TaskDialogMetrics CUiTaskDialog::metricsFor(const CRect& workArea) const {
    const LONG units = ::GetDialogBaseUnits();
    TaskDialogMetrics metrics;
    metrics.fontHeight = m_unit;
    metrics.baseX = LOWORD(units);
    metrics.baseY = HIWORD(units);
    metrics.workWidth = workArea.Width();
    metrics.workHeight = workArea.Height();
    if (KtUiFollowsSystemAppearance()) {
        // The base units are those of the screen, not of this window's monitor.
        metrics.dpi = static_cast<int>(KtUiWindowDpi(m_hWnd));
        metrics.baseX = std::max(metrics.baseX, metrics.fixed(kStandardBaseX));
        metrics.baseY = std::max(metrics.baseY, metrics.fixed(kStandardBaseY));
    }
    return metrics;
}

/// Finds the layout and gives the window its size, in the middle of the work area.
TaskDialogLayout CUiTaskDialog::place() {
    CRect workArea, window, client;
    CWnd* const parent = GetParent();
    if (!ktutGetWorkArea(&workArea, parent != nullptr ? parent->m_hWnd : nullptr))
        ::GetWindowRect(::GetDesktopWindow(), &workArea);
    GetWindowRect(&window);
    GetClientRect(&client);
    const CSize frame = window.Size() - client.Size();
    workArea.right -= frame.cx;
    workArea.bottom -= frame.cy;

    TaskDialogMetrics metrics = metricsFor(workArea);
    const DialogMeasurer measurer(*this, m_textFont, m_headingFont);
    TaskDialogLayout layout = FitTaskDialog(m_impl.contents(), metrics, measurer);
    CSize outer(layout.width, layout.height);
    const bool isTooTall = layout.height > metrics.workHeight;
    if (isTooTall) {
        // What the screen has no room for is scrolled to, beside a bar that takes its share of the width.
        const int bar = ::GetSystemMetrics(SM_CXVSCROLL);
        metrics.workWidth -= bar;
        layout = FitTaskDialog(m_impl.contents(), metrics, measurer);
        outer = CSize(layout.width + bar, metrics.workHeight);
        ModifyStyle(0, WS_VSCROLL);
    }
    m_footerTop = layout.footerTop;
    m_textLeft = layout.textLeft;
    SetWindowPos(nullptr,
                 static_cast<int>(workArea.left) + (workArea.Width() - static_cast<int>(outer.cx)) / 2,
                 static_cast<int>(workArea.top) + (workArea.Height() - static_cast<int>(outer.cy)) / 2,
                 static_cast<int>(outer.cx + frame.cx), static_cast<int>(outer.cy + frame.cy),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    if (isTooTall) m_scrolled.begin(layout.height, metrics.workHeight, m_unit);
    return layout;
}

void CUiTaskDialog::createChildren(const TaskDialogLayout& layout) {
    createText(m_heading, m_impl.m_mainInstruction, layout.heading, MessageInk(kMessageHeading),
               m_headingFont);
    createText(m_body, m_impl.m_content, layout.body, ::GetSysColor(COLOR_WINDOWTEXT), m_textFont);
    for (const TaskDialogPlacedButton& placed : layout.buttons) makeButton(placed);
    if (!m_buttons.empty()) m_buttons.front()->m_style |= WS_GROUP;
    setUpCheckBox(layout.checkBox);
    const bool linksOn = m_impl.contents().linksOn();
    const TaskDialogOrder order = OrderTaskDialogChildren(layout, linksOn, m_impl.m_defaultCommand);
    setDefault(order);
    for (const int child : order.children) {
        CUiButton& button =
            child == TaskDialogOrder::kCheckBox ? m_checkBox : *m_buttons[static_cast<std::size_t>(child)];
        button.CreateIn(*this);
    }
    if (m_checkBox.m_hWnd != nullptr)
        m_checkBox.SetCheck(m_impl.m_options & kTaskDialogVerified ? BST_CHECKED : BST_UNCHECKED);
    if (m_defaultButton != nullptr && !m_defaultButton->isLink())
        SetDefID(static_cast<UINT>(m_defaultButton->m_id));
}

void CUiTaskDialog::createText(CUiStatic& text, const CString& words, const CRect& rect, COLORREF color,
                               CFont& font) {
    if (words.IsEmpty()) return;
    text.m_rect = rect;
    text.m_color = color;
    text.m_font = &font;
    text.Create(words, kTextStyle, rect, this, kTextId);
    text.SetFont(&font, FALSE);
}

void CUiTaskDialog::makeButton(const TaskDialogPlacedButton& placed) {
    auto button = std::make_unique<CUiButton>();
    button->m_rect = placed.rect;
    button->m_id = placed.id;
    button->m_titleFont = &m_headingFont;
    button->m_textFont = &m_textFont;
    button->m_margin = m_unit;
    if (placed.command >= 0) {
        const CTaskDialogButton& command = m_impl.m_commands[static_cast<std::size_t>(placed.command)];
        button->m_title = command.m_text;
        button->m_extendedText = command.m_extendedText;
    } else {
        const TaskDialogCommonButton& common = kTaskDialogCommonButtons[placed.common];
        button->m_title = LoadToolkitString(common.stringId, common.text);
    }
    if (placed.isLink) {
        button->m_style |= BS_OWNERDRAW;
        button->m_glyph = m_impl.m_options & kTaskDialogLinks ? 1 : 0;
    }
    m_buttons.push_back(std::move(button));
}

void CUiTaskDialog::setUpCheckBox(const CRect& rect) {
    m_checkBox.m_rect = rect;
    m_checkBox.m_id = kCheckBoxId;
    m_checkBox.m_title = m_impl.m_verificationText;
    m_checkBox.m_textFont = &m_textFont;
    m_checkBox.m_style |= kCheckBoxStyle;
}

void CUiTaskDialog::setDefault(const TaskDialogOrder& order) {
    if (order.defaultButton < 0) return;
    m_defaultButton = m_buttons[static_cast<std::size_t>(order.defaultButton)].get();
    // A link that is the default shows so by the focus alone.
    if (!m_defaultButton->isLink()) m_defaultButton->m_style |= BS_DEFPUSHBUTTON;
}

CUiButton* CUiTaskDialog::buttonOf(int id) const {
    for (const std::unique_ptr<CUiButton>& button : m_buttons)
        if (button->m_id == id) return button.get();
    return nullptr;
}

void CUiTaskDialog::SetCommonButtonOptions(int disabledMask) {
    for (const TaskDialogCommonButton& common : kTaskDialogCommonButtons) {
        if (!(m_impl.m_commonButtons & common.mask)) continue;
        CUiButton* const button = buttonOf(common.id);
        if (button != nullptr && button->m_hWnd != nullptr)
            button->EnableWindow(!(disabledMask & common.mask));
    }
}

BOOL CUiTaskDialog::PreTranslateMessage(MSG* message) {
    if (message->message != WM_KEYDOWN || message->wParam != VK_RETURN) {
        const bool isKey = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
        const BOOL handled = CKtUiDialog::PreTranslateMessage(message);
        if (isKey && m_hWnd != nullptr) revealFocus();
        return handled;
    }
    const HWND focus = ::GetFocus();
    for (const std::unique_ptr<CUiButton>& button : m_buttons)
        if (button->m_hWnd == focus) {
            end(button->m_id);
            return TRUE;
        }
    if (m_defaultButton != nullptr) end(m_defaultButton->m_id);
    return TRUE;
}

BOOL CUiTaskDialog::OnCommand(WPARAM wParam, LPARAM lParam) {
    const int id = LOWORD(wParam);
    if (HIWORD(wParam) != BN_CLICKED) return CKtUiDialog::OnCommand(wParam, lParam);
    if (id == kCheckBoxId && m_checkBox.m_hWnd != nullptr) {
        m_impl.m_owner->OnVerificationCheckboxClick(m_checkBox.GetCheck());
        return TRUE;
    }
    if (buttonOf(id) == nullptr) return CKtUiDialog::OnCommand(wParam, lParam);
    end(id);
    return TRUE;
}

void CUiTaskDialog::end(int id) {
    if (m_checkBox.m_hWnd != nullptr) m_impl.m_verificationState = m_checkBox.GetCheck();
    EndDialog(id);
}

// A dialog without an OK button has nothing that OK could mean.
void CUiTaskDialog::OnOK() {}

void CUiTaskDialog::OnCancel() {
    if (m_impl.isCancellable()) EndDialog(IDCANCEL);
}

void CUiTaskDialog::revealFocus() {
    const HWND focus = ::GetFocus();
    if (!m_scrolled.isOn() || !::IsChild(m_hWnd, focus)) return;
    CRect rect;
    ::GetWindowRect(focus, &rect);
    ScreenToClient(&rect);
    m_scrolled.reveal(rect);
}

BOOL CUiTaskDialog::OnEraseBkgnd(CDC*) { return TRUE; }

void CUiTaskDialog::OnVScroll(UINT code, UINT position, CScrollBar* bar) {
    if (bar == nullptr) m_scrolled.onScroll(code);
    CKtUiDialog::OnVScroll(code, position, bar);
}

BOOL CUiTaskDialog::OnMouseWheel(UINT flags, short turn, CPoint point) {
    if (!m_scrolled.isOn()) return CKtUiDialog::OnMouseWheel(flags, turn, point);
    m_scrolled.onWheel(turn);
    return TRUE;
}

void CUiTaskDialog::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, MessagePaper());
    const int icon = KtUiAppearancePixels(m_hWnd, kIconSize);
    if (m_impl.m_mainIcon != nullptr)
        ::DrawIconEx(dc.m_hDC, m_unit, m_unit - m_scrolled.offset(), m_impl.m_mainIcon, icon, icon, 0,
                     nullptr, DI_NORMAL);
    if (m_footerTop < 0) return;
    const CRect footer(0, m_footerTop - m_scrolled.offset(), static_cast<int>(client.right),
                       static_cast<int>(client.bottom));
    dc.FillSolidRect(&footer, ::GetSysColor(COLOR_3DFACE));
    const CRect line(footer.left, footer.top, footer.right, footer.top + 1);
    dc.FillSolidRect(&line, ::GetSysColor(COLOR_3DSHADOW));
}
