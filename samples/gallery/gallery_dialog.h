// The gallery's window: the tree of pages, the page that is open, what it tells, and the lines that make it.
#pragma once

#include "gallery_page.h"

class CGalleryDialog : public CKtUiDialog {
public:
    explicit CGalleryDialog(CWnd* parent = nullptr);

    int PageCount() const { return static_cast<int>(m_entries.size()); }
    /// Opens page `index`, 0 to PageCount() - 1, by its entry in the tree.
    void OpenPage(int index);
    /// The page that is open; null for none.
    CGalleryPage* Page() { return m_page.get(); }
    const GalleryEntry& Entry(int index) const { return m_entries[static_cast<std::size_t>(index)]; }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override {}
    afx_msg void OnPage(NMHDR* header, LRESULT* result);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    void fillTree();
    void show(int index);
    void closePage();
    void log(const CString& line);
    CRect pagePlace();

    std::vector<GalleryEntry> m_entries;
    std::vector<HTREEITEM> m_items;
    CTreeCtrl m_tree;
    std::unique_ptr<CGalleryPage> m_page;
};
