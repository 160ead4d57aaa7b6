#include "security/security_service.h"

#include <ktut.h>
#include <od_db.h>

#include "own_resources.h"
#include "resource.h"
#include "security/security_dialog.h"
#include "standin_message.h"

void StandinSecurity::showSecurityOptions() {
    const OwnResources resources;
    const OdDbHostAppServices* services = oddbHostApplicationServices();
    const OdDbDatabase* drawing = services != nullptr ? services->workingDatabase() : nullptr;
    if (drawing == nullptr) {
        ShowStandinMessage(IDS_SECURITY_NO_DRAWING, MB_ICONINFORMATION);
        return;
    }
    // The seal is of the file, so there has to be one, and it has to be what the user sees.
    if (!ktutPathExists(drawing->getFilename()) || drawing->isModified()) {
        ShowStandinMessage(IDS_SECURITY_NOT_SAVED, MB_ICONINFORMATION);
        return;
    }
    CStandinSecurityDialog dialog(drawing->getFilename().c_str(), CWnd::GetActiveWindow());
    dialog.DoModal();
}
