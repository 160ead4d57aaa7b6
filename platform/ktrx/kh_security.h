// The optional service behind "security options" of a save dialog: password and signature of a drawing.
#pragma once

#include "kh_service_manager.h"

/// Name under which the service is registered.
constexpr const wchar_t* kKhSecurityService = L"CKhSecurity";

class CKhSecurity : public CKhService {
public:
    /// Shows the drawing's security options, modally. Reports nothing: what the user chose is the service's.
    virtual void showSecurityOptions() = 0;

protected:
    ~CKhSecurity() = default;
};
