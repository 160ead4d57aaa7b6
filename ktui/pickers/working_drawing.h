// The drawing that the host works on. Private to the library.
#pragma once

#include <od_db_database.h>
#include <od_host_services.h>

/// The working drawing; null without host services or drawing. Asked anew at each use.
inline OdDbDatabase* WorkingDrawing() {
    OdDbHostAppServices* services = oddbHostApplicationServices();
    return services ? services->workingDatabase() : nullptr;
}
