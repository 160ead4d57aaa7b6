#include <ktui/nav/find_page.h>

#include <ktui/host/string_resources.h>

void FindPage::addTip(int control, UINT id, const wchar_t* text) {
    if (m_toolTip.m_hWnd == nullptr && !m_toolTip.Create(this)) return;
    if (CWnd* const tool = GetDlgItem(control)) m_toolTip.AddTool(tool, LoadToolkitString(id, text));
}
