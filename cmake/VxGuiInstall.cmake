# What `cmake --install` lays down, so that find_package(VxGui) and pkg-config find it. Each file
# belongs to a component, which the packages are made of.
include(CMakePackageConfigHelpers)

set(VXGUI_INNER_PATTERNS "")
foreach(folder ${VXGUI_INNER_FOLDERS})
  list(APPEND VXGUI_INNER_PATTERNS PATTERN ${folder} EXCLUDE)
endforeach()

install(TARGETS vxgui vxplatform EXPORT VxGuiTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        COMPONENT library NAMELINK_COMPONENT development)
install(DIRECTORY vxgui/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vxgui COMPONENT development
        FILES_MATCHING PATTERN "*.h" ${VXGUI_INNER_PATTERNS})
install(EXPORT VxGuiTargets NAMESPACE VxGui:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/VxGui
        COMPONENT development)

configure_package_config_file(cmake/VxGuiConfig.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/VxGuiConfig.cmake
                              INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/VxGui)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/VxGuiConfigVersion.cmake
                                 COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/VxGuiConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/VxGuiConfigVersion.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/VxGui COMPONENT development)

# Seen from where the file lies, so that an installation can be moved.
file(RELATIVE_PATH VXGUI_PREFIX_FROM_PC ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig
     ${CMAKE_INSTALL_PREFIX})
foreach(module vxgui vxgui-c)  # the latter for C, which takes no flags of C++
  configure_file(cmake/${module}.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${module}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${module}.pc
          DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endforeach()
