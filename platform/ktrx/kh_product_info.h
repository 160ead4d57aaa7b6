// The names that the product goes by.
//
// Texts are never null and stay valid as long as the application.
#pragma once

class CKhProductInfo {
public:
    /// The maker's full name; stands for the full-name macros in resource strings.
    virtual const wchar_t* companyFullName() = 0;
    /// The maker's short name.
    virtual const wchar_t* companyShortName() = 0;
    /// The product's name.
    virtual const wchar_t* productName() = 0;
    /// The program's name, as the file navigation dialog shows it too.
    virtual const wchar_t* programName() = 0;
    /// Caption of a message box whose caller gave none.
    virtual const wchar_t* messageCaption() = 0;
    /// Third level of the per-user settings path.
    virtual const wchar_t* profileVersionKey() = 0;

protected:
    ~CKhProductInfo() = default;
};
