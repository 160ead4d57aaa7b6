#include <ktui/nav/find_file_dlg.h>

#include <ktdsres/find_file_ids.h>
#include <ktui/host/message_box.h>
#include <ktui/host/string_resources.h>
#include <ktui/nav/find_messages.h>
#include <ktui/nav/find_worker.h>

IMPLEMENT_DYNAMIC(CFindFileDlg, CKtUiDialog)

BEGIN_MESSAGE_MAP(CFindFileDlg, CKtUiDialog)
    ON_WM_SIZE()
    ON_WM_DESTROY()
    ON_WM_GETMINMAXINFO()
    ON_COMMAND(IDC_FIND_START, &CFindFileDlg::OnFind)
    ON_COMMAND(IDC_FIND_STOP, &CFindFileDlg::OnStop)
    ON_COMMAND(IDC_FIND_NEW, &CFindFileDlg::OnNewSearch)
    ON_COMMAND(IDHELP, &CFindFileDlg::OnHelp)
    ON_NOTIFY(TCN_SELCHANGE, IDC_FIND_TABS, &CFindFileDlg::OnTab)
    ON_NOTIFY(NM_DBLCLK, IDC_FIND_RESULTS, &CFindFileDlg::OnDoubleClick)
    ON_NOTIFY(LVN_COLUMNCLICK, IDC_FIND_RESULTS, &CFindFileDlg::OnColumnClick)
    ON_MESSAGE(WM_FIND_DONE, &CFindFileDlg::OnFindDone)
    ON_MESSAGE(WM_FIND_STATUS, &CFindFileDlg::OnFindStatus)
    ON_MESSAGE(WM_FIND_FILE, &CFindFileDlg::OnFindFile)
    ON_MESSAGE(WM_FIND_BATCH, &CFindFileDlg::OnFindBatch)
END_MESSAGE_MAP()

CFindFileDlg::CFindFileDlg(const wchar_t* filter, int filterIndex, const wchar_t* folder)
    : CKtUiDialog(IDD_FIND_FILE),
      m_filter(filter),
      m_filterIndex(filterIndex),
      m_startFolder(folder),
      m_results(m_list, m_images, m_typeNames) {}

CFindFileDlg::~CFindFileDlg() { DestroyWindow(); }

void CFindFileDlg::DoDataExchange(CDataExchange* exchange) {
    CKtUiDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_FIND_TABS, m_tab);
    DDX_Control(exchange, IDC_FIND_RESULTS, m_list);
}

BOOL CFindFileDlg::OnInitDialog() {
    const BOOL result = CKtUiDialog::OnInitDialog();
    m_page1.Create(IDD_FIND_NAME_PAGE, this);
    m_page2.Create(IDD_FIND_DATE_PAGE, this);
    m_page1.SelectLocation(m_startFolder);
    m_page1.FillTypes(m_filter, m_filterIndex);
    addTabs();
    showPage();
    m_results.SetUp();
    const UINT pane = ID_SEPARATOR;
    m_statusBar.Create(this);
    m_statusBar.SetIndicators(&pane, 1);
    m_statusBar.SetFont(GetFont());
    resetStatus();
    CRect client;
    GetClientRect(&client);
    layOut(client.Width(), client.Height());
    addTips();
    return result;
}

void CFindFileDlg::addTabs() {
    constexpr int kMostOfTitle = 64;  // characters
    const CString titles[] = {LoadToolkitString(IDS_FIND_NAME_TAB, L"名称和位置").Left(kMostOfTitle),
                              LoadToolkitString(IDS_FIND_DATE_TAB, L"修改日期").Left(kMostOfTitle)};
    for (int i = 0; i < 2; ++i) m_tab.InsertItem(i, titles[i]);
}

void CFindFileDlg::addTips() {
    if (!m_toolTip.Create(this)) return;
    m_toolTip.AddTool(GetDlgItem(IDC_FIND_NEW),
                      LoadToolkitString(IDS_FIND_NEW_TIP, L"清除搜索结果，并将所有搜索选项重置为默认值。"));
    m_toolTip.AddTool(
        &m_list,
        LoadToolkitString(
            IDS_FIND_RESULTS_TIP,
            L"列出搜索到的所有文件。要将文件传递到标准文件选择对话框，请选择文件并选择“确定”。与允许选择多个"
            L"文件的标准文件选择对话框一起使用时，可以从“搜索结果”传递多个文件。"));
}

BOOL CFindFileDlg::PreTranslateMessage(MSG* message) {
    if (m_toolTip.m_hWnd != nullptr) m_toolTip.RelayEvent(message);
    return CKtUiDialog::PreTranslateMessage(message);
}

void CFindFileDlg::showPage() {
    const bool isFirst = m_tab.GetCurSel() == 0;
    m_page1.ShowWindow(isFirst ? SW_SHOW : SW_HIDE);
    m_page2.ShowWindow(isFirst ? SW_HIDE : SW_SHOW);
}

void CFindFileDlg::showStatus(const CString& text) { m_statusBar.SetPaneText(0, text); }

void CFindFileDlg::resetStatus() {
    CString text;
    text.Format(LoadToolkitString(IDS_FIND_COUNT, L"找到 %d 个文件。"), m_results.Count());
    showStatus(text);
}

void CFindFileDlg::showFolder(const CString& folder) {
    CString text;
    text.Format(L"(%d) - %s", m_results.Count(), folder.GetString());
    showStatus(text);
}

void CFindFileDlg::showCaption(const CStringArray& patterns) {
    const CString first = patterns.GetSize() > 0 ? patterns[0] : CString();
    CString caption;
    caption.Format(LoadToolkitString(IDS_FIND_CAPTION, L"查找: 名为%s的文件"), first.GetString());
    SetWindowText(caption);
}

void CFindFileDlg::OnFind() {
    auto request = std::make_unique<FindSearchRequest>();
    request->m_dialog = this;
    m_page1.GetFolders(request->m_folders);
    m_page1.GetPatterns(request->m_patterns);
    showCaption(request->m_patterns);
    request->m_includeSubfolders = m_page1.IncludesSubfolders();
    if (m_page2.IsFiltering()) m_page2.GetRange(request->m_dateFrom, request->m_dateTo);
    m_results.Clear();
    resetStatus();
    enableForSearch(true);
    m_stop = 0;
    m_thread = StartFindThread(std::move(request));
    auto* const stop = static_cast<CButton*>(GetDlgItem(IDC_FIND_STOP));
    stop->SetButtonStyle(BS_DEFPUSHBUTTON);
    stop->SetFocus();
    if (m_thread != nullptr)
        ::CloseHandle(m_thread);
    else
        OnFindDone(0, 0);
}

void CFindFileDlg::enableForSearch(bool searching) {
    m_page1.EnableControls(!searching);
    GetDlgItem(IDC_FIND_START)->EnableWindow(!searching);
    GetDlgItem(IDC_FIND_STOP)->EnableWindow(searching);
    GetDlgItem(IDOK)->EnableWindow(!searching && m_results.Count() > 0);
}

LRESULT CFindFileDlg::OnFindDone(WPARAM, LPARAM) {
    enableForSearch(false);
    static_cast<CButton*>(GetDlgItem(IDC_FIND_STOP))->SetButtonStyle(BS_PUSHBUTTON);
    resetStatus();
    m_list.SetFocus();
    m_thread = nullptr;
    return 0;
}

LRESULT CFindFileDlg::OnFindStatus(WPARAM folder, LPARAM) {
    showFolder(reinterpret_cast<const wchar_t*>(folder));
    return 0;
}

LRESULT CFindFileDlg::OnFindFile(WPARAM folder, LPARAM name) {
    return m_results.AddFile(reinterpret_cast<const wchar_t*>(folder),
                             reinterpret_cast<const wchar_t*>(name));
}

LRESULT CFindFileDlg::OnFindBatch(WPARAM, LPARAM batch) {
    const auto& found = *reinterpret_cast<const FindBatch*>(batch);
    m_results.AddFiles(found.m_files);
    showFolder(found.m_folder);
    return 0;
}

void CFindFileDlg::OnStop() { m_stop = 1; }

void CFindFileDlg::OnCancel() {
    if (isSearching())
        m_stop = 1;
    else
        CKtUiDialog::OnCancel();
}

void CFindFileDlg::waitForSearch() {
    MSG message = {};
    for (;;) {
        const bool isThere = ::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE;
        if (!isThere && !isSearching()) return;
        ::DispatchMessageW(&message);  // Kept: where none waits, the last one again.
    }
}

void CFindFileDlg::OnNewSearch() {
    m_stop = 1;
    waitForSearch();
    const CString question = LoadToolkitString(IDS_FIND_CLEAR_QUESTION, L"此举将清除当前搜索结果。");
    if (KtUiMessageBox(nullptr, question, MB_OKCANCEL) != IDOK) return;
    m_results.Clear();
    resetStatus();
    GetDlgItem(IDOK)->EnableWindow(FALSE);
    m_page1.Reset();
    m_page2.Reset();
}

void CFindFileDlg::OnOK() {
    const int row = m_list.GetNextItem(-1, LVNI_SELECTED);
    if (isSearching() || row < 0) return;
    m_resultFile = m_list.GetItemText(row, kFindName);
    m_resultFolder = m_list.GetItemText(row, kFindFolder);
    CKtUiDialog::OnOK();
}

void CFindFileDlg::OnHelp() { OnDialogHelp(); }

void CFindFileDlg::OnTab(NMHDR*, LRESULT* result) {
    showPage();
    *result = 0;
}

void CFindFileDlg::OnDoubleClick(NMHDR*, LRESULT* result) {
    OnOK();
    *result = 0;
}

void CFindFileDlg::OnColumnClick(NMHDR* header, LRESULT* result) {
    m_results.SortBy(reinterpret_cast<const NMLISTVIEW*>(header)->iSubItem);
    *result = 0;
}

void CFindFileDlg::OnDestroy() {
    if (isSearching()) {
        // Whoever destroyed the window: the thread still speaks to it.
        m_stop = 1;
        waitForSearch();
    }
    m_results.Clear();
    CKtUiDialog::OnDestroy();
}
