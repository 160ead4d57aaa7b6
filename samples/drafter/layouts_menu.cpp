#include "layouts_menu.h"

#include <ktui/host/message_box.h>

#include "choice_dialog.h"
#include "name_dialog.h"
#include "name_menu.h"
#include "resource.h"

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
    if (item->m_nID != ID_VIEW_LAYOUT_FIRST) {
        item->Enable(item->m_nID != ID_VIEW_LAYOUT_DELETE || !names().empty());
        return;
    }
    std::vector<CString> all;
    for (const OdString& name : names()) all.emplace_back(name.c_str());
    ListNamesInMenu(*item, all, ID_VIEW_LAYOUT_LAST, IDS_NO_LAYOUTS);
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
