// Layouts as the registry keeps them: a value for each, its name the layout's, its text XML. Private to the
// library.
#pragma once

#include <afxwin.h>

#include <vector>

namespace layouts {

/// Reads and writes below a key of the current user, which the first write makes.
class LayoutStore {
public:
    /// `name` is that of the key below the dialogs' data of the user.
    explicit LayoutStore(const wchar_t* name);

    /// In the order of the user's alphabet.
    std::vector<CString> names() const;
    /// The name as it is stored, which may differ in case; empty when there is none.
    CString storedName(const CString& name) const;
    CString text(const CString& name) const;
    /// Stores a layout in place of `former`, which may be empty or differ in case alone. False, with the
    /// former one there still, when the registry refuses.
    bool put(const CString& name, const CString& text, const CString& former = CString());
    bool remove(const CString& name);

private:
    CString m_key;
};

}  // namespace layouts
