// CKtUiPathname: the same path under the application layer's name.
#pragma once

#include <ktui/text/kbui_pathname.h>

class KTUI_API CKtUiPathname : public CKbUiPathname {
public:
    CKtUiPathname();
    CKtUiPathname(const CKtUiPathname& other);
    CKtUiPathname& operator=(const CKtUiPathname& other);

    // Kept: all of these answer 0 or null and change nothing.
    PathErr Parse(const wchar_t* text, int flags) override;
    void AssignCopy(const CKbUiPathname& other) override;
    virtual int Status();
    CFile* Open(unsigned flags);
};
