// The setting that turns tips off, of a host whose services have one.
#pragma once

/// A host's OdDbHostAppServices derives from this too if its user can turn tips off; tips are shown
/// otherwise.
class OdDbToolTipSetting {
public:
    /// 0: no tips.
    virtual short toolTips() const = 0;

protected:
    ~OdDbToolTipSetting() = default;
};
