#include "save_drawing_dialog.h"

#include <utility>

#include <ktui/pickers/config_util.h>

#include "draft_document.h"

namespace {

CSaveDrawingDialog* shown = nullptr;

}  // namespace

CSaveDrawingDialog::CSaveDrawingDialog(CNavDataArray& chosen, CNavFilterArray& types,
                                       CDraftDocument& document, std::function<int(int)> lineOfFormat)
    : CKtUiNavDialog(chosen, types),
      m_document(document),
      m_lineOfFormat(std::move(lineOfFormat)),
      m_format(KhUtConfigUtil::getCurrentSaveFormat()) {
    // A dialog that saves has room for its options beside those of security only.
    constexpr int kSecurityButton = 0x80, kOptionsButton = 0x8000;
    ConvertFlagsToState(kSecurityButton | kOptionsButton);
    shown = this;
    m_document.SetBinaryListener([this] { followSoon(); });
}

CSaveDrawingDialog::~CSaveDrawingDialog() {
    if (m_timer != 0) ::KillTimer(nullptr, m_timer);
    m_document.SetBinaryListener({});
    shown = nullptr;
}

void CSaveDrawingDialog::OnFilterChange() {
    // A new default format selects a line by its place among the formats, which are not the types here.
    if (KhUtConfigUtil::getCurrentSaveFormat() != m_format)
        followSoon();
    else
        m_document.SetSavesBinary(GetFilterIndex() % 2 != 0);
}

void CSaveDrawingDialog::followSoon() {
    if (m_timer == 0) m_timer = ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &tick);
}

void CALLBACK CSaveDrawingDialog::tick(HWND, UINT, UINT_PTR timer, DWORD) {
    if (shown != nullptr && shown->m_timer == timer) shown->follow();
}

void CSaveDrawingDialog::follow() {
    ::KillTimer(nullptr, m_timer);
    m_timer = 0;
    const int format = KhUtConfigUtil::getCurrentSaveFormat();
    int line = GetFilterIndex();
    if (format != m_format && m_lineOfFormat(format) >= 0) line = m_lineOfFormat(format);
    m_format = format;
    line = line / 2 * 2 + (m_document.SavesBinary() ? 1 : 0);
    if (line != GetFilterIndex()) SetFilterIndex(line);
}
