# The dialogs in Qt 6 Widgets: a shared object that the library opens on first need. It knows
# nothing but platform/forms.h, so that it serves programs that link the library statically too.
find_package(Qt6 QUIET COMPONENTS Widgets Test)
if(NOT Qt6Widgets_FOUND)
  message(STATUS "Qt 6 Widgets isn't there: the dialogs are not built")
  return()
endif()

file(GLOB VXGUI_QT6_SOURCES CONFIGURE_DEPENDS vxgui/platform/qt6/*.cpp)
add_library(vxgui_qt6_objects OBJECT ${VXGUI_QT6_SOURCES})
target_link_libraries(vxgui_qt6_objects PUBLIC vxgui_flags Qt6::Widgets)
set_target_properties(vxgui_qt6_objects PROPERTIES POSITION_INDEPENDENT_CODE ON
  CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
target_precompile_headers(vxgui_qt6_objects PRIVATE <QtWidgets>)

if(NOT VXGUI_SANITIZE)
  add_library(vxgui-qt6 SHARED $<TARGET_OBJECTS:vxgui_qt6_objects>)
  target_link_libraries(vxgui-qt6 PRIVATE Qt6::Widgets)
  set_target_properties(vxgui-qt6 PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  # What a program opens is looked for beside it.
  add_custom_command(TARGET vxgui-qt6 POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/tools
    COMMAND ${CMAKE_COMMAND} -E create_symlink $<TARGET_FILE:vxgui-qt6>
            ${PROJECT_BINARY_DIR}/tools/libvxgui-qt6.so)
  install(TARGETS vxgui-qt6 LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
          COMPONENT dialogs NAMELINK_COMPONENT development)
endif()
