// CSettingsStore: values of a registry key, and CSettingsStoreSP: one of whatever class the application
// chose.
#pragma once

#include <memory>

#include <kmfc/arrays.h>
#include <kmfc/geometry.h>
#include <kmfc/lists.h>
#include <kmfc/platform.h>

/// A registry key and its values. Paths count from HKEY_CURRENT_USER, or from HKEY_LOCAL_MACHINE for the
/// administrator's settings. Numbers are stored as REG_DWORD, texts as REG_SZ, all else as REG_BINARY.
///
/// Read leaves its target alone and answers FALSE when the value is missing or of another kind. Read and
/// write answer FALSE without an open key.
class KMFC_API CSettingsStore : public CObject {
    DECLARE_DYNCREATE(CSettingsStore)
public:
    /// A store that is read-only opens its keys without the right to change them.
    CSettingsStore(BOOL bAdmin, BOOL bReadOnly);
    ~CSettingsStore() override;
    CSettingsStore(const CSettingsStore&) = delete;
    CSettingsStore& operator=(const CSettingsStore&) = delete;

    /// Opens a key that is there, after closing the one that was open. TRUE when it could be opened.
    virtual BOOL Open(LPCTSTR pszPath);
    /// The same, and makes a key that is missing. TRUE when it is open; FALSE in a read-only store.
    virtual BOOL CreateKey(LPCTSTR pszPath);
    virtual void Close();

    virtual BOOL Read(LPCTSTR pszKey, int& iVal);
    virtual BOOL Read(LPCTSTR pszKey, DWORD& dwVal);
    virtual BOOL Read(LPCTSTR pszKey, CString& sVal);
    /// The texts are added to what the list holds.
    virtual BOOL Read(LPCTSTR pszKey, CStringList& scStringList);
    virtual BOOL Read(LPCTSTR pszKey, CStringArray& scArray);
    virtual BOOL Read(LPCTSTR pszKey, CDWordArray& dwcArray);
    virtual BOOL Read(LPCTSTR pszKey, CWordArray& wcArray);
    virtual BOOL Read(LPCTSTR pszKey, CByteArray& bcArray);
    virtual BOOL Read(LPCTSTR pszKey, LPPOINT& lpPoint);
    virtual BOOL Read(LPCTSTR pszKey, CRect& rect);
    /// `*ppData` is allocated with new[] and belongs to the caller.
    virtual BOOL Read(LPCTSTR pszKey, BYTE** ppData, UINT* pBytes);
    /// The objects are added to the list and belong to the caller.
    virtual BOOL Read(LPCTSTR pszKey, CObList& list);
    /// `obj` reads itself.
    virtual BOOL Read(LPCTSTR pszKey, CObject& obj);
    /// `pObj` is a new object, which belongs to the caller.
    virtual BOOL Read(LPCTSTR pszKey, CObject*& pObj);

    virtual BOOL Write(LPCTSTR pszKey, int iVal);
    virtual BOOL Write(LPCTSTR pszKey, DWORD dwVal);
    virtual BOOL Write(LPCTSTR pszKey, LPCTSTR pszVal);
    virtual BOOL Write(LPCTSTR pszKey, CStringList& scStringList);
    virtual BOOL Write(LPCTSTR pszKey, CStringArray& scArray);
    virtual BOOL Write(LPCTSTR pszKey, CDWordArray& dwcArray);
    virtual BOOL Write(LPCTSTR pszKey, CWordArray& wcArray);
    virtual BOOL Write(LPCTSTR pszKey, CByteArray& bcArray);
    virtual BOOL Write(LPCTSTR pszKey, const CRect& rect);
    virtual BOOL Write(LPCTSTR pszKey, LPPOINT& lpPoint);
    virtual BOOL Write(LPCTSTR pszKey, LPBYTE pData, UINT nBytes);
    virtual BOOL Write(LPCTSTR pszKey, CObList& list);
    virtual BOOL Write(LPCTSTR pszKey, CObject& obj);
    virtual BOOL Write(LPCTSTR pszKey, CObject* pObj);

    /// Deletes a value of the open key.
    virtual BOOL DeleteValue(LPCTSTR pszValue);
    /// Deletes a key and all below it. FALSE in a read-only store.
    virtual BOOL DeleteKey(LPCTSTR pszPath, BOOL bAdmin = FALSE);

protected:
    /// For classes made by CSettingsStoreSP: the user's settings, read-only until that says otherwise.
    CSettingsStore();

    BOOL m_bAdmin;
    BOOL m_bReadOnly;
    HKEY m_hKey = nullptr;   ///< the key that is open, or null
    DWORD m_dwUserData = 0;  ///< what CSettingsStoreSP was given

private:
    bool read_bytes(LPCTSTR name, DWORD type, CByteArray& bytes);
    bool write_bytes(LPCTSTR name, DWORD type, const void* data, size_t size);
    template <class Reader>
    bool read_archive(LPCTSTR name, Reader reader);
    template <class Writer>
    bool write_archive(LPCTSTR name, Writer writer);
    REGSAM rights() const;

    friend class CSettingsStoreSP;
};

/// Makes and keeps one store, of the class that SetRuntimeClass named; deletes it with itself.
class KMFC_API CSettingsStoreSP {
public:
    explicit CSettingsStoreSP(DWORD dwUserData = 0);
    ~CSettingsStoreSP();
    CSettingsStoreSP(const CSettingsStoreSP&) = delete;
    CSettingsStoreSP& operator=(const CSettingsStoreSP&) = delete;

    /// Makes the store, which stays this object's.
    CSettingsStore& Create(BOOL bAdmin, BOOL bReadOnly);
    /// From here on stores are of this class, or of CSettingsStore itself for null. FALSE, and nothing
    /// changes, for a class that isn't derived from CSettingsStore.
    static BOOL SetRuntimeClass(CRuntimeClass* pRTI);

protected:
    CSettingsStore* m_pRegistry = nullptr;
    DWORD m_dwUserData;
};

/// The path of the framework's settings, ending in a backslash: `lpszProfileName` if that is given, otherwise
/// "SOFTWARE\company\application\" and `lpszPostFix`.
KMFC_API CString AFXGetRegPath(LPCTSTR lpszPostFix, LPCTSTR lpszProfileName = nullptr);
