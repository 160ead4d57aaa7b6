// One open key of the registry, with access that widens from read to write to delete.
//
// The only way in which dialogs and lists of the toolkit reach their persisted state. An object opened by its
// constructor is closed by its destructor at the latest. Nothing throws: a failed open leaves the object as
// it was, and reads of a closed object give empty strings and zero.
#pragma once

#include <afxwin.h>

#include <ktui/ktui_api.h>

/// Reads values of one key. The key has to exist.
class KTUI_API CKbUiRegistryAccess {
public:
    /// Closed.
    CKbUiRegistryAccess() = default;
    /// Opens `name` below `parent`; stays closed if that fails.
    CKbUiRegistryAccess(HKEY parent, const CString& name);
    // Kept: a copy shares the key, and each of the two closes it.
    CKbUiRegistryAccess(const CKbUiRegistryAccess& other) = default;
    CKbUiRegistryAccess& operator=(const CKbUiRegistryAccess& other) = default;
    virtual ~CKbUiRegistryAccess();

    /// Opens `name` below `parent` and closes the earlier key. FALSE leaves the earlier key open.
    virtual BOOL Open(HKEY parent, const CString& name);
    /// Closes the key if one is open.
    virtual void Close();

    /// Whether a key is open.
    BOOL IsOpen() const { return m_key != nullptr; }
    /// The open key, still owned by this object; null if closed.
    operator HKEY() const { return m_key; }

    /// Puts the name of subkey `index` into `name`; FALSE empties it. A name of more than 255 characters
    /// counts as a failure.
    BOOL EnumKeyNames(DWORD index, CString& name) const;
    /// The same for values; `type` (may be null) receives the value's type.
    BOOL EnumValueNames(DWORD index, CString& name, DWORD* type) const;
    /// Type of value `name`, such as REG_SZ; REG_NONE if there is none.
    DWORD ValueType(const CString& name) const;
    /// Text of value `name`, of any length. A missing value gives the empty string and last error 1011, which
    /// alone tells it from an empty one.
    CString GetString(const CString& name) const;
    /// Number in value `name`, 0 if there is none. The last error is 1 on failure and 0 on success.
    DWORD GetDWord(const CString& name) const;

protected:
    /// Closes the earlier key by the virtual Close and keeps `key`.
    void adopt(HKEY key);

    HKEY m_key = nullptr;
    CString m_name;  ///< stays empty
};

/// Writes values too. Opening creates what is missing.
class KTUI_API CKbUiRegistryWriteAccess : public CKbUiRegistryAccess {
public:
    CKbUiRegistryWriteAccess() = default;
    CKbUiRegistryWriteAccess(HKEY parent, const CString& name);

    BOOL Open(HKEY parent, const CString& name) override;

    /// Stores a text as REG_SZ; FALSE if the platform refuses.
    BOOL SetString(const CString& name, const CString& value);
    /// Stores a number as REG_DWORD; FALSE if the platform refuses.
    BOOL SetDWord(const CString& name, DWORD value);
};

/// Deletes values and keys too.
class KTUI_API CKbUiRegistryDeleteAccess : public CKbUiRegistryWriteAccess {
public:
    CKbUiRegistryDeleteAccess() = default;
    /// Opens with every right. Open, inherited, gives the rights to write only.
    CKbUiRegistryDeleteAccess(HKEY parent, const CString& name);

    /// Deletes value `name`; FALSE if the platform refuses.
    BOOL DeleteValue(const CString& name);
    /// Deletes subkey `name`, which must have no subkeys; FALSE if the platform refuses.
    BOOL DeleteKey(const CString& name);
    /// Deletes every second value, beginning with the first, and answers FALSE. Call it until nothing is
    /// left.
    BOOL DeleteAllValues();
    /// Answers FALSE and deletes nothing if subkey `name` can be opened for writing, creating it if missing;
    /// otherwise hands it to the platform and answers whether that deleted it.
    BOOL DeleteKeyAndSubkeys(const CString& name);
};
