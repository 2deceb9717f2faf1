# What `cmake --install` lays down, so that find_package(VxGui) and pkg-config find it.
include(CMakePackageConfigHelpers)

install(TARGETS vxgui vxplatform EXPORT VxGuiTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY vxgui/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vxgui
        FILES_MATCHING PATTERN "*.h"
        PATTERN "c" EXCLUDE PATTERN "codecs" EXCLUDE PATTERN "gdi" EXCLUDE PATTERN "gdiplus" EXCLUDE PATTERN "ole" EXCLUDE
        PATTERN "qt6" EXCLUDE PATTERN "forms" EXCLUDE PATTERN "core7" EXCLUDE PATTERN "corehlp" EXCLUDE PATTERN "kernel" EXCLUDE)
install(EXPORT VxGuiTargets NAMESPACE VxGui:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/VxGui)

configure_package_config_file(cmake/VxGuiConfig.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/VxGuiConfig.cmake
                              INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/VxGui)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/VxGuiConfigVersion.cmake
                                 COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/VxGuiConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/VxGuiConfigVersion.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/VxGui)

configure_file(cmake/vxgui.pc.in ${CMAKE_CURRENT_BINARY_DIR}/vxgui.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/vxgui.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
