// The list of found files in the find dialog. Private to the library.
#pragma once

#include <afxcmn.h>

#include <map>
#include <string>

#include <ktui/nav/find_batch.h>
#include <ktui/nav/find_row.h>

/// Each row owns a FindRow as its item data, and has an image whose index is that of the type's name, too.
class FindResults {
public:
    /// `list` and `images` are the dialog's, as are the names of types; none is owned.
    FindResults(CListCtrl& list, CImageList& images, CStringArray& typeNames)
        : m_list(list), m_images(images), m_typeNames(typeNames) {}

    /// Makes the columns and the images.
    void SetUp();
    /// Adds the file `name` of `folder`, which has a separator at its end; 0, also for no name, or -1 if the
    /// shell doesn't know the type.
    int AddFile(const CString& folder, const CString& name);
    /// Adds many files, as they were told; one image for each type.
    void AddFiles(const std::vector<FoundFile>& files);
    /// Frees and deletes all rows.
    void Clear();
    /// Sorts by a column that was clicked.
    void SortBy(int column);
    int Count() const { return m_list.GetItemCount(); }

    FindSort m_sort;

private:
    struct Facts {
        unsigned long long length;
        SYSTEMTIME written;  ///< local
        FindTime time;
    };
    int addImage(const CString& path);
    int imageOfType(const CString& path);
    FindRow& addRow(const CString& folder, const CString& name, int image);
    void tellFacts(int row, FindRow& data, const Facts& facts);

    CListCtrl& m_list;
    CImageList& m_images;
    CStringArray& m_typeNames;
    std::map<std::wstring, int> m_imageOfExtension;  ///< of a walk that visits folders once
};
