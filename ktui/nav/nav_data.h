// CNavData: one item chosen in a navigation dialog, a file, a folder or a remote item; CNavDataArray: all of
// them. Without any window.
#pragma once

#include <afx.h>

#include <ktui/ktui_api.h>
#include <ktui/nav/nav_array.h>

class GNavPathname;
struct _ITEMIDLIST;
typedef struct _ITEMIDLIST ITEMIDLIST;

/// What kind of item a CNavData is. Other values are kept and given back as they are.
enum NAV_DATA_TYPE : int {
    kNavDataLocal = 0,
    kNavDataRemote = 2,
    kNavDataExtension = 4,  ///< remote, of an extension
    kNavDataRemoteOther = 5,
};

class KTUI_API CNavData : public CObject {
public:
    CNavData() = default;
    /// Frees the identifier list.
    ~CNavData() override;

    NAV_DATA_TYPE GetDataType() const { return m_dataType; }
    void SetDataType(NAV_DATA_TYPE type) { m_dataType = type; }

    /// The shell's identifier list of the item, owned by this object; null if there is none.
    ITEMIDLIST* GetID() const { return m_id; }
    /// Takes `id` over, memory of the shell's allocator.
    void SetID(ITEMIDLIST* id) {
        m_id = id;  // Kept: a former list isn't freed.
    }

    // Texts; the pointers are good until the text is next set. Null sets the empty text.
    /// Full path or address.
    const wchar_t* GetText() const { return m_text; }
    void SetText(const wchar_t* text) { m_text = text; }
    /// The item's name inside its folder.
    const wchar_t* GetTextInFolder() const { return m_textInFolder; }
    void SetTextInFolder(const wchar_t* text) { m_textInFolder = text; }

    /// The caller's, never looked into.
    GNavPathname* GetPathname() const { return m_pathname; }
    void SetPathname(GNavPathname* pathname) { m_pathname = pathname; }

    // Credentials for a remote item.
    const wchar_t* GetUserNameW() const { return m_userName; }
    void SetUserName(const wchar_t* name) { m_userName = name; }
    const wchar_t* GetPassword() const { return m_password; }
    void SetPassword(const wchar_t* password) { m_password = password; }

    /// Name of the extension that an extension item is of.
    const wchar_t* GetExtensionName() const { return m_extensionName; }
    void SetExtensionName(const wchar_t* name) { m_extensionName = name; }

    /// The caller's, never looked into.
    void* GetUserData() const { return m_userData; }
    /// Answers `data`.
    void* SetUserData(void* data) { return m_userData = data; }

    /// 1 for the types 2, 4 and 5, else 0.
    int IsRemote() const;
    /// 1 for type 4, else 0.
    int IsExtension() const;
    /// Copies the text of a remote item to `url`, 1; leaves `url` alone for any other, 0.
    int GetURL(CString& url) const;

private:
    NAV_DATA_TYPE m_dataType = kNavDataLocal;
    ITEMIDLIST* m_id = nullptr;
    CString m_text;
    CString m_textInFolder;
    GNavPathname* m_pathname = nullptr;
    CString m_userName;
    CString m_password;
    CString m_extensionName;
    void* m_userData = nullptr;
};

/// The items chosen, which it owns.
class KTUI_API CNavDataArray : public CNavArray<CNavData> {
public:
    CNavDataArray() = default;
    ~CNavDataArray() override;
};
