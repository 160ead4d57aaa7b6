// CFindFileDlg: the dialog of the search for files. Private to the library.
//
// A thread of its own walks through the folders and sends what it finds, waiting until each message has been
// served. So all rows belong to the thread of the dialog; the only thing that both touch is the mark that
// asks to stop. While a search runs the dialog does not end.
#pragma once

#include <afxcmn.h>
#include <afxext.h>

#include <atomic>

#include <ktui/dialogs/ktui_dialog.h>
#include <ktui/nav/find_date_page.h>
#include <ktui/nav/find_name_page.h>
#include <ktui/nav/find_results.h>

class CFindFileDlg : public CKtUiDialog {
    DECLARE_DYNAMIC(CFindFileDlg)

public:
    /// As for ktuiFindFileDialog; `filter` stays the caller's.
    CFindFileDlg(const wchar_t* filter, int filterIndex, const wchar_t* folder);
    ~CFindFileDlg() override;

    const CString& ResultFolder() const { return m_resultFolder; }
    const CString& ResultFile() const { return m_resultFile; }
    /// Whether the search shall stop. Asked by its thread.
    bool IsStopAsked() const { return m_stop != 0; }

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    void OnOK() override;
    void OnCancel() override;

    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnDestroy();
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnFind();
    afx_msg void OnStop();
    afx_msg void OnNewSearch();
    afx_msg void OnHelp();
    afx_msg void OnTab(NMHDR* header, LRESULT* result);
    afx_msg void OnDoubleClick(NMHDR* header, LRESULT* result);
    afx_msg void OnColumnClick(NMHDR* header, LRESULT* result);
    afx_msg LRESULT OnFindDone(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnFindStatus(WPARAM folder, LPARAM lParam);
    afx_msg LRESULT OnFindFile(WPARAM folder, LPARAM name);
    afx_msg LRESULT OnFindBatch(WPARAM wParam, LPARAM batch);
    DECLARE_MESSAGE_MAP()

private:
    bool isSearching() const { return m_thread != nullptr; }
    void addTabs();
    void addTips();
    void showPage();
    void layOut(int width, int height);
    void placePages();
    void showCaption(const CStringArray& patterns);
    void showStatus(const CString& text);
    void showFolder(const CString& folder);
    void resetStatus();
    /// Between a search and none.
    void enableForSearch(bool searching);
    /// Serves messages until no search runs.
    void waitForSearch();

    CTabCtrl m_tab;
    CListCtrl m_list;
    CImageList m_images;
    CDlgFindPage1 m_page1;
    CDlgFindPage2 m_page2;
    CStatusBar m_statusBar;
    HANDLE m_thread = nullptr;           ///< closed; not null means that a search runs
    std::atomic<BYTE> m_stop = BYTE{0};  ///< 1 asks the thread to stop
    CStringArray m_typeNames;            ///< by the index of a row's image
    const wchar_t* m_filter;             ///< not owned
    int m_filterIndex;                   ///< from 1
    CString m_startFolder;
    CString m_resultFolder;
    CString m_resultFile;
    CKbToolTipCtrl m_toolTip;
    FindResults m_results;
};
