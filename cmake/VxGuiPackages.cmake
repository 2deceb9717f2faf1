# The Debian packages: `cpack -G DEB` in a build folder, or the preset "package".
# A component is a package; what each holds is said where it is installed. The libraries are not
# linked with Qt, so that what opens the dialogs is a package of its own, which they recommend.
if(NOT PROJECT_IS_TOP_LEVEL OR VXGUI_SANITIZE OR NOT VXGUI_BUILD_TOOLS)
  return()
endif()

set(VXGUI_MAINTAINER "The VxGUI developers <maintainers@vxgui.example>" CACHE STRING
    "Whom the packages name as their maintainer")
set(VXGUI_SOVERSION ${PROJECT_VERSION_MAJOR})
set(VXGUI_DEBIAN_REVISION 1)
set(VXGUI_DEBIAN_VERSION ${PROJECT_VERSION}-${VXGUI_DEBIAN_REVISION})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vxgui)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${VXGUI_MAINTAINER})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL library development tools)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE vxgui)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${VXGUI_DEBIAN_REVISION})
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

configure_file(packaging/debian/changelog.in ${PROJECT_BINARY_DIR}/packaging/changelog @ONLY)
find_program(GZIP gzip REQUIRED)
execute_process(COMMAND ${GZIP} -9 -n -k -f ${PROJECT_BINARY_DIR}/packaging/changelog
                COMMAND_ERROR_IS_FATAL ANY)

# One package: its component, name and section, the other packages it needs, and what it is.
function(vxgui_package component name section needs summary text)
  string(TOUPPER ${component} key)
  foreach(field IN ITEMS "NAME;${name}" "SECTION;${section}" "DEPENDS;${needs}")
    list(POP_FRONT field what)
    set(CPACK_DEBIAN_${key}_PACKAGE_${what} "${field}" PARENT_SCOPE)
  endforeach()
  set(CPACK_COMPONENT_${key}_DESCRIPTION "${summary}\n${text}" PARENT_SCOPE)
  # These alone are in no plain installation: they are what Debian wants of a package.
  set(folder ${CMAKE_INSTALL_DATAROOTDIR}/doc/${name})
  install(FILES packaging/debian/copyright DESTINATION ${folder}
          COMPONENT ${component} EXCLUDE_FROM_ALL)
  install(FILES ${PROJECT_BINARY_DIR}/packaging/changelog.gz DESTINATION ${folder}
          RENAME changelog.Debian.gz COMPONENT ${component} EXCLUDE_FROM_ALL)
  if(component MATCHES "library|dialogs")
    set(CPACK_DEBIAN_${key}_PACKAGE_CONTROL_EXTRA
        ${PROJECT_SOURCE_DIR}/packaging/debian/triggers PARENT_SCOPE)
  endif()
endfunction()

set(VXGUI_SAME_LIBRARY "libvxgui${VXGUI_SOVERSION} (= ${VXGUI_DEBIAN_VERSION})")
vxgui_package(library libvxgui${VXGUI_SOVERSION} libs ""
  "skinning and drawing toolkit for desktop applications"
  "VxGUI paints the controls of a program from skins: image strips, margins,\nfonts and styles that a skin's author keeps in a text file. It draws in\nsoftware, with exact integer arithmetic, into any buffer of 32-bit pixels.\n.\nThis package holds the libraries and the built-in styles.")
vxgui_package(development libvxgui-dev libdevel "${VXGUI_SAME_LIBRARY}"
  "skinning and drawing toolkit (development files)"
  "VxGUI paints the controls of a program from skins that are text files and image\nstrips.\n.\nThis package holds the headers, and what CMake and pkg-config need to find the\nlibrary.")
vxgui_package(tools vxgui-tools graphics "${VXGUI_SAME_LIBRARY}"
  "tool that paints, checks and converts skins of the VxGUI toolkit"
  "VxGUI paints the controls of a program from skins that are text files and image\nstrips.\n.\nThis package holds the command vxgui, which shows every item of a skin in every\nstate, tells what is wrong with it line by line, compiles it into one file,\nand converts and recolours its pictures.")

if(TARGET vxgui-qt6)
  list(APPEND CPACK_COMPONENTS_ALL dialogs)
  set(CPACK_DEBIAN_LIBRARY_PACKAGE_RECOMMENDS libvxgui${VXGUI_SOVERSION}-qt6)
  vxgui_package(dialogs libvxgui${VXGUI_SOVERSION}-qt6 libs "${VXGUI_SAME_LIBRARY}"
    "dialogs of the VxGUI toolkit in Qt 6"
    "VxGUI paints the controls of a program from skins that are text files and image\nstrips.\n.\nThis package holds the form toolkit that the library opens when it shows a\ndialog or a message box; without it these answer as if cancelled.")
endif()

# The viewer's window is the one program that is linked with Qt; the tool says where it is missing.
if(TARGET vxgui_view)
  list(APPEND CPACK_COMPONENTS_ALL viewer)
  set(CPACK_DEBIAN_TOOLS_PACKAGE_RECOMMENDS vxgui-viewer)
  vxgui_package(viewer vxgui-viewer graphics "${VXGUI_SAME_LIBRARY}"
    "window in which the controls of a VxGUI skin live"
    "VxGUI paints the controls of a program from skins that are text files and image\nstrips.\n.\nThis package holds the window of \"vxgui view\", which shows the items of a skin\nas live controls, reads the skin anew whenever it is saved, and recolours it.")
endif()
include(CPack)
