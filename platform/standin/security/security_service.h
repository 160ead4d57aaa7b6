// The security service of the stand-in host. Internal to the module.
#pragma once

#include <kh_security.h>

class StandinSecurity final : public CKhSecurity {
public:
    /// Shows the seal of the working drawing's file; says why not if there is no drawing or no saved file.
    void showSecurityOptions() override;
};
