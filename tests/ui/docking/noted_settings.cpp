#include "docking_fixture.h"

namespace docking_test {

IMPLEMENT_DYNCREATE(NotedSettings, CSettingsStore)

}  // namespace docking_test
