// CEditView: the text of a document in an edit control.
#include <algorithm>
#include <string>
#include <vector>

#include <kmfc/archive.h>
#include <kmfc/document.h>
#include <kmfc/edit_view.h>

const DWORD CEditView::dwStyleDefault = AFX_WS_DEFAULT_VIEW | WS_HSCROLL | WS_VSCROLL | ES_AUTOHSCROLL |
                                        ES_AUTOVSCROLL | ES_MULTILINE | ES_NOHIDESEL;

IMPLEMENT_DYNCREATE(CEditView, CCtrlView)

BEGIN_MESSAGE_MAP(CEditView, CCtrlView)
    ON_CONTROL_REFLECT_EX(EN_CHANGE, &CEditView::OnEditChange)
    ON_UPDATE_COMMAND_UI(ID_EDIT_CUT, &CEditView::OnUpdateNeedSel)
    ON_UPDATE_COMMAND_UI(ID_EDIT_COPY, &CEditView::OnUpdateNeedSel)
    ON_UPDATE_COMMAND_UI(ID_EDIT_CLEAR, &CEditView::OnUpdateNeedSel)
    ON_UPDATE_COMMAND_UI(ID_EDIT_PASTE, &CEditView::OnUpdateNeedClip)
    ON_UPDATE_COMMAND_UI(ID_EDIT_SELECT_ALL, &CEditView::OnUpdateNeedText)
    ON_UPDATE_COMMAND_UI(ID_EDIT_UNDO, &CEditView::OnUpdateEditUndo)
    ON_COMMAND(ID_EDIT_CUT, &CEditView::OnEditCut)
    ON_COMMAND(ID_EDIT_COPY, &CEditView::OnEditCopy)
    ON_COMMAND(ID_EDIT_CLEAR, &CEditView::OnEditClear)
    ON_COMMAND(ID_EDIT_PASTE, &CEditView::OnEditPaste)
    ON_COMMAND(ID_EDIT_SELECT_ALL, &CEditView::OnEditSelectAll)
    ON_COMMAND(ID_EDIT_UNDO, &CEditView::OnEditUndo)
END_MESSAGE_MAP()

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16Mark = "\xFF\xFE";

/// The characters of `bytes`, in `codePage`.
std::wstring decode(UINT codePage, std::string_view bytes) {
    if (bytes.empty()) return {};
    const int size = static_cast<int>(bytes.size());
    std::wstring text(static_cast<size_t>(::MultiByteToWideChar(codePage, 0, bytes.data(), size, nullptr, 0)),
                      L'\0');
    ::MultiByteToWideChar(codePage, 0, bytes.data(), size, text.data(), static_cast<int>(text.size()));
    return text;
}

/// The bytes of `text`; `lost` tells whether the code page lacks a character.
std::string encode(UINT codePage, const std::wstring& text, BOOL* lost) {
    if (text.empty()) return {};
    const int size = static_cast<int>(text.size());
    BOOL* const ask = codePage == CP_UTF8 ? nullptr : lost;
    std::string bytes(
        static_cast<size_t>(::WideCharToMultiByte(codePage, 0, text.data(), size, nullptr, 0, nullptr, ask)),
        '\0');
    ::WideCharToMultiByte(codePage, 0, text.data(), size, bytes.data(), static_cast<int>(bytes.size()),
                          nullptr, nullptr);
    return bytes;
}

/// An edit control ends its lines with two characters.
std::wstring with_whole_line_ends(const std::wstring& text) {
    std::wstring result;
    result.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        const bool loneReturn = text[i] == L'\r' && (i + 1 == text.size() || text[i + 1] != L'\n');
        const bool loneFeed = text[i] == L'\n' && (i == 0 || text[i - 1] != L'\r');
        if (loneReturn || loneFeed)
            result += L"\r\n";
        else
            result += text[i];
    }
    return result;
}

std::wstring text_of(const CWnd& window) {
    std::wstring text(static_cast<size_t>(window.GetWindowTextLength()) + 1, L'\0');
    text.resize(static_cast<size_t>(window.GetWindowText(text.data(), static_cast<int>(text.size()))));
    return text;
}

}  // namespace

CEditView::CEditView() : CCtrlView(L"EDIT", dwStyleDefault) {}
CEditView::~CEditView() = default;

BOOL CEditView::OnEditChange() {
    if (CDocument* document = GetDocument()) document->SetModifiedFlag();
    return FALSE;  // the frame hears it too
}

void CEditView::DeleteContents() { SetWindowText(L""); }

UINT CEditView::GetBufferLength() const { return static_cast<UINT>(GetWindowTextLength()); }

void CEditView::GetSelectedText(CString& strResult) const {
    DWORD first = 0, end = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&end));
    strResult = text_of(*this).substr(first, end - first).c_str();
}

BOOL CEditView::FindText(LPCTSTR lpszFind, BOOL bNext, BOOL bCase) {
    std::wstring text = text_of(*this), wanted = lpszFind;
    if (wanted.empty()) return FALSE;
    if (!bCase) {
        ::CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
        ::CharLowerBuffW(wanted.data(), static_cast<DWORD>(wanted.size()));
    }
    DWORD first = 0, end = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&end));
    size_t place = std::wstring::npos;
    if (bNext) {
        // Beyond the selection, unless that is empty.
        place = text.find(wanted, first == end ? first : first + 1);
    } else if (first > 0) {
        place = text.rfind(wanted, first - 1);
    }
    if (place == std::wstring::npos) return FALSE;
    SendMessage(EM_SETSEL, place, static_cast<LPARAM>(place + wanted.size()));
    SendMessage(EM_SCROLLCARET);
    return TRUE;
}

void CEditView::SerializeRaw(CArchive& ar) {
    if (ar.IsStoring()) {
        const std::wstring text = text_of(*this);
        BOOL lost = FALSE;
        std::string bytes;
        if (m_encoding == Encoding::codePage) bytes = encode(CP_ACP, text, &lost);
        if (m_encoding == Encoding::utf16) {
            bytes = kUtf16Mark;
            bytes.append(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t));
        } else if (m_encoding == Encoding::utf8 || lost) {
            m_encoding = Encoding::utf8;
            bytes = std::string(kUtf8Mark) + encode(CP_UTF8, text, nullptr);
        }
        ar.Write(bytes.data(), static_cast<UINT>(bytes.size()));
        return;
    }
    std::string bytes(static_cast<size_t>(ar.GetFile()->GetLength()), '\0');
    bytes.resize(ar.Read(bytes.data(), static_cast<UINT>(bytes.size())));
    std::wstring text;
    if (bytes.starts_with(kUtf16Mark)) {
        m_encoding = Encoding::utf16;
        text.resize((bytes.size() - 2) / sizeof(wchar_t));
        std::copy_n(bytes.data() + 2, text.size() * sizeof(wchar_t), reinterpret_cast<char*>(text.data()));
    } else if (bytes.starts_with(kUtf8Mark)) {
        m_encoding = Encoding::utf8;
        text = decode(CP_UTF8, std::string_view(bytes).substr(kUtf8Mark.size()));
    } else {
        m_encoding = Encoding::codePage;
        text = decode(CP_ACP, bytes);
    }
    // The control takes no more than its limit by itself.
    SendMessage(EM_SETLIMITTEXT, 0);
    SetWindowText(with_whole_line_ends(text).c_str());
}

void CEditView::SetTabStops(int nTabStops) {
    SendMessage(EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&nTabStops));
    Invalidate();
}

void CEditView::OnUpdateNeedSel(CCmdUI* pCmdUI) {
    DWORD first = 0, end = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&end));
    pCmdUI->Enable(first != end);
}
void CEditView::OnUpdateNeedClip(CCmdUI* pCmdUI) {
    pCmdUI->Enable(::IsClipboardFormatAvailable(CF_UNICODETEXT));
}
void CEditView::OnUpdateNeedText(CCmdUI* pCmdUI) { pCmdUI->Enable(GetWindowTextLength() != 0); }
void CEditView::OnUpdateEditUndo(CCmdUI* pCmdUI) { pCmdUI->Enable(SendMessage(EM_CANUNDO) != 0); }
void CEditView::OnEditCut() { SendMessage(WM_CUT); }
void CEditView::OnEditCopy() { SendMessage(WM_COPY); }
void CEditView::OnEditPaste() { SendMessage(WM_PASTE); }
void CEditView::OnEditClear() { SendMessage(WM_CLEAR); }
void CEditView::OnEditUndo() { SendMessage(EM_UNDO); }
void CEditView::OnEditSelectAll() { SendMessage(EM_SETSEL, 0, -1); }
