#include "plotting/plot_options.h"

#include <kh_system.h>

int getExportOption(const ExportOption& option) {
    int value = option.standard;
    CKhSystem::instance()->profileStore()->getProfileInt(kExportSection, option.key, value, 0);
    return value;
}

void setExportOption(const ExportOption& option, int value) {
    CKhSystem::instance()->profileStore()->setProfileInt(kExportSection, option.key, value, 0);
}
