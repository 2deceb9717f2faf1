# Two libraries, each in two forms: shared, with hidden visibility, for hosts; and static, with
# every internal operation in reach, for the tests and the tool.

file(GLOB_RECURSE VXPLATFORM_SOURCES CONFIGURE_DEPENDS
     vxgui/base/*.cpp vxgui/pixels/*.cpp vxgui/platform/*.cpp)
list(FILTER VXPLATFORM_SOURCES EXCLUDE REGEX "vxgui/platform/qt6/")
file(GLOB_RECURSE VXGUI_SOURCES CONFIGURE_DEPENDS
     vxgui/frame/*.cpp vxgui/surface/*.cpp vxgui/colour/*.cpp vxgui/text/*.cpp
     vxgui/theme/*.cpp vxgui/image/*.cpp vxgui/gdip/*.cpp vxgui/c/*.cpp)

# Folders of headers that no host sees: what stands behind the platform's and the C headers.
set(VXGUI_INNER_FOLDERS c codecs core7 corehlp forms gdi gdiplus kernel ole qt6)

# The pixel loops are shaped to be vectorised, which the compiler does at -O3 alone. The tests of a
# build for development try what is released, so it has those at -O3 too.
file(GLOB VXGUI_LOOP_SOURCES CONFIGURE_DEPENDS vxgui/pixels/*.cpp
     vxgui/platform/gdiplus/words/*.cpp vxgui/platform/gdiplus/graphics/Resampler.cpp)
set_source_files_properties(${VXGUI_LOOP_SOURCES} PROPERTIES COMPILE_OPTIONS -O3)
file(GLOB VXGUI_PIXEL_SOURCES CONFIGURE_DEPENDS vxgui/platform/gdi/*.cpp)
set_source_files_properties(${VXGUI_PIXEL_SOURCES} PROPERTIES COMPILE_OPTIONS
                            "$<$<NOT:$<CONFIG:Debug>>:-O3>")
set_source_files_properties(vxgui/platform/gdi/GatherWords.cpp PROPERTIES COMPILE_OPTIONS
                            "$<$<NOT:$<CONFIG:Debug>>:-O3>;-fno-tree-vectorize;-fno-tree-slp-vectorize")

set(VXPLATFORM_LINKS PkgConfig::VXGUI_DEPS GIF::GIF Threads::Threads ${CMAKE_DL_LIBS})

# Each source is compiled once, position-independent and with hidden visibility. The static form
# reaches everything all the same: visibility counts at the border of a shared library alone.
function(vxgui_add_library name sources)
  add_library(${name}_objects OBJECT ${sources})
  target_link_libraries(${name}_objects PUBLIC $<BUILD_INTERFACE:vxgui_flags> ${ARGN})
  target_compile_features(${name}_objects PUBLIC cxx_std_20)
  set_target_properties(${name}_objects PROPERTIES
    POSITION_INDEPENDENT_CODE ON
    CXX_VISIBILITY_PRESET hidden C_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)

  add_library(${name}_static STATIC $<TARGET_OBJECTS:${name}_objects>)
  add_library(${name} SHARED $<TARGET_OBJECTS:${name}_objects>)
  foreach(form ${name}_static ${name})
    target_include_directories(${form} PUBLIC
      $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    target_compile_features(${form} PUBLIC cxx_std_20)
  endforeach()
  set_target_properties(${name} PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  # Names like BitBlt exist elsewhere too: our calls stay ours, and nobody else gets them.
  target_link_options(${name} PRIVATE -Wl,-Bsymbolic)
  if(VXGUI_SANITIZE)  # the tests alone are run under sanitizers, and they link the static form
    set_target_properties(${name} PROPERTIES EXCLUDE_FROM_ALL ON)
  else()
    target_link_options(${name} PRIVATE -Wl,--no-undefined)
  endif()
  add_library(VxGui::${name} ALIAS ${name})
endfunction()

vxgui_add_library(vxplatform "${VXPLATFORM_SOURCES}" ${VXPLATFORM_LINKS})
target_link_libraries(vxplatform_static PUBLIC ${VXPLATFORM_LINKS})
target_link_libraries(vxplatform PRIVATE ${VXPLATFORM_LINKS} $<BUILD_INTERFACE:vxgui_flags>)

vxgui_add_library(vxgui "${VXGUI_SOURCES}")
target_link_libraries(vxgui_static PUBLIC vxplatform_static)
target_link_libraries(vxgui PUBLIC vxplatform PRIVATE $<BUILD_INTERFACE:vxgui_flags>)
