// The application's own settings, by section and key.
//
// The toolkit uses section "General" with the keys "DefaultFormatForSave" and "TemplatePath".
#pragma once

class OdString;

class CKhProfileStore {
public:
    /// Reads a number into `value`. False leaves `value` alone, and the caller keeps its default.
    virtual bool getProfileInt(const wchar_t* section, const wchar_t* key, int& value, int flags) = 0;
    /// Reads a text into `value`. False leaves `value` alone, and the caller keeps its default.
    virtual bool getProfileString(const wchar_t* section, const wchar_t* key, OdString& value, int flags) = 0;
    /// Stores a number; false if it could not be stored.
    virtual bool setProfileInt(const wchar_t* section, const wchar_t* key, int value, int flags) = 0;

protected:
    ~CKhProfileStore() = default;
};
