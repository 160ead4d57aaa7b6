#include "od_host_services.h"

namespace {

OdDbHostAppServices* g_services = nullptr;

}  // namespace

OdDbHostAppServices::~OdDbHostAppServices() = default;

OdString OdDbHostAppServices::registryProductRootKey() const { return L"Software\\Velmora\\ktui"; }

OdDbHostAppServices* oddbHostApplicationServices() { return g_services; }

void oddbSetHostApplicationServices(OdDbHostAppServices* services) { g_services = services; }
