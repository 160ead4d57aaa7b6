#include <ktui/nav/save_option_sheet.h>

#include <ktdsres/nav_file_dialog_ids.h>

#include <ktui/host/string_resources.h>

CSaveOptionSheet::CSaveOptionSheet() : CPropertySheet(L""), m_page(IDD_NAV_FILE_PLACES) {
    SetTitle(LoadToolkitString(54035, L"另存为选项"));
    AddPage(&m_page);
}
