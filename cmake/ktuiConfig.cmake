# What find_package(ktui) gives: the targets ktui::..., and ktui_add_resources.
include("${CMAKE_CURRENT_LIST_DIR}/ktuiTargets.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/ktuiResources.cmake")
