# The built-in styles: a script draws them, the tool packs them into one module, and the library finds
# that in share/vxgui, in the build folder as well as where it is installed.
find_package(Python3 COMPONENTS Interpreter)
if(NOT Python3_FOUND OR NOT TARGET vxgui_tool)
  message(STATUS "The built-in styles are left out: they take Python 3 and VXGUI_BUILD_TOOLS")
  return()
endif()

set(VXGUI_STYLES_FOLDER ${PROJECT_BINARY_DIR}/styles)
set(VXGUI_STYLES_MODULE ${PROJECT_BINARY_DIR}/share/vxgui/DefaultStyles.dll)
file(GLOB VXGUI_STYLES_SOURCES CONFIGURE_DEPENDS skins/default/* skins/art/*.py)
add_custom_command(
  OUTPUT ${VXGUI_STYLES_MODULE}
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${VXGUI_STYLES_FOLDER}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/share/vxgui
  COMMAND Python3::Interpreter -B ${PROJECT_SOURCE_DIR}/skins/default/draw.py ${VXGUI_STYLES_FOLDER}
  COMMAND vxgui_tool pack ${VXGUI_STYLES_FOLDER} -o ${VXGUI_STYLES_MODULE}
  DEPENDS ${VXGUI_STYLES_SOURCES}
  COMMENT "Drawing the built-in styles"
  VERBATIM)
add_custom_target(vxgui_styles ALL DEPENDS ${VXGUI_STYLES_MODULE})
if(NOT VXGUI_SANITIZE)
  install(FILES ${VXGUI_STYLES_MODULE} DESTINATION ${CMAKE_INSTALL_DATADIR}/vxgui
          COMPONENT library)
endif()
