#include "layouts_menu.h"

#include <ktui/host/message_box.h>

#include "choice_dialog.h"
#include "name_dialog.h"
#include "resource.h"

namespace {

constexpr std::size_t kListed = ID_VIEW_LAYOUT_LAST - ID_VIEW_LAYOUT_FIRST + 1;
constexpr unsigned kLastDigit = 9;  // entries with a key of their own

}  // namespace

void CLayoutsMenu::Attach(CMDIFrameWndEx& frame) {
    m_frame = &frame;
    m_layouts.Attach(frame);
    m_layouts.KeepBuiltIn();
    m_layouts.SetKeepReachable(TRUE);
    KtUiEnablePaneKeys(frame, TRUE);
}

std::vector<OdString> CLayoutsMenu::names() const {
    CStringArray stored;
    m_layouts.GetNames(stored);
    std::vector<OdString> names;
    for (INT_PTR i = 0; i < stored.GetSize(); ++i) names.emplace_back(stored[i]);
    return names;
}

void CLayoutsMenu::Update(CCmdUI* item) {
    if (item->m_nID == ID_VIEW_LAYOUT_FIRST)
        list(item);
    else
        item->Enable(item->m_nID != ID_VIEW_LAYOUT_DELETE || !names().empty());
}

void CLayoutsMenu::list(CCmdUI* item) const {
    CMenu* const menu = item->m_pMenu;
    // The menu that this one hangs from asks as well.
    if (menu == nullptr || item->m_pSubMenu != nullptr) return;
    for (UINT id = ID_VIEW_LAYOUT_FIRST; id <= ID_VIEW_LAYOUT_LAST; ++id) menu->DeleteMenu(id, MF_BYCOMMAND);
    const std::vector<OdString> all = names();
    if (all.empty()) {
        CString none;
        none.LoadString(IDS_NO_LAYOUTS);
        menu->InsertMenu(item->m_nIndex, MF_BYPOSITION | MF_GRAYED, ID_VIEW_LAYOUT_FIRST, none);
        item->m_bEnableChanged = TRUE;
        return;
    }
    for (std::size_t i = 0; i < all.size() && i < kListed; ++i) {
        CString name(all[i].c_str()), text;
        name.Replace(L"&", L"&&");
        const auto number = static_cast<unsigned>(i + 1);
        text.Format(number <= kLastDigit ? L"&%u %s" : L"%u %s", number, name.GetString());
        menu->InsertMenu(item->m_nIndex++, MF_BYPOSITION, item->m_nID++, text);
    }
    // The caller goes on behind what was put in.
    --item->m_nIndex;
    item->m_nIndexMax = static_cast<UINT>(menu->GetMenuItemCount());
    item->m_bEnableChanged = TRUE;
}

void CLayoutsMenu::Do(UINT command) {
    if (command == ID_VIEW_LAYOUT_SAVE) return save();
    if (command == ID_VIEW_LAYOUT_DELETE) return remove();
    if (command == ID_VIEW_LAYOUT_RESET) {
        if (!m_layouts.Reset()) tell();
        return;
    }
    const std::vector<OdString> all = names();
    const std::size_t index = command - ID_VIEW_LAYOUT_FIRST;
    if (index < all.size() && !m_layouts.Apply(all[index].c_str())) tell();
}

void CLayoutsMenu::save() {
    CNameDialog dialog({}, m_frame, {IDS_SAVE_LAYOUT_TITLE, IDS_SAVE_LAYOUT_TITLE});
    if (dialog.DoModal() != IDOK) return;
    const OdString& name = dialog.name();
    CString question;
    question.Format(IDS_REPLACE_LAYOUT, name.c_str());
    const bool isWanted = !m_layouts.Has(name.c_str()) ||
                          KtUiMessageBox(nullptr, question, MB_YESNO | MB_ICONQUESTION) == IDYES;
    if (isWanted && !m_layouts.Save(name.c_str())) tell();
}

void CLayoutsMenu::remove() {
    CNameChoiceDialog dialog(names(), m_frame, {IDS_DELETE_LAYOUT_TITLE, IDS_LAYOUTS_LABEL});
    if (dialog.DoModal() == IDOK && !m_layouts.Delete(dialog.chosen().c_str())) tell();
}

void CLayoutsMenu::tell() const { KtUiMessageBox(nullptr, m_layouts.GetProblem(), MB_OK | MB_ICONWARNING); }
