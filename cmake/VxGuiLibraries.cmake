# Two libraries, each in two forms: shared, with hidden visibility, for hosts; and static, with
# every internal operation in reach, for the tests and the tool.

file(GLOB_RECURSE VXPLATFORM_SOURCES CONFIGURE_DEPENDS
     vxgui/base/*.cpp vxgui/pixels/*.cpp vxgui/platform/*.cpp)
list(FILTER VXPLATFORM_SOURCES EXCLUDE REGEX "vxgui/platform/qt6/")
file(GLOB_RECURSE VXGUI_SOURCES CONFIGURE_DEPENDS
     vxgui/frame/*.cpp vxgui/surface/*.cpp vxgui/colour/*.cpp vxgui/text/*.cpp
     vxgui/theme/*.cpp vxgui/image/*.cpp vxgui/gdip/*.cpp)

# The pixel loops are shaped to be vectorised, which the compiler does at -O3 alone.
file(GLOB VXGUI_PIXEL_SOURCES CONFIGURE_DEPENDS vxgui/pixels/*.cpp)
set_source_files_properties(${VXGUI_PIXEL_SOURCES} PROPERTIES COMPILE_OPTIONS
                            "$<$<NOT:$<CONFIG:Debug>>:-O3>")

set(VXPLATFORM_LINKS PkgConfig::VXGUI_DEPS GIF::GIF Threads::Threads ${CMAKE_DL_LIBS})

function(vxgui_add_form target kind sources)
  add_library(${target} ${kind} ${sources})
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:vxgui_flags>)
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  target_compile_features(${target} PUBLIC cxx_std_20)
  if(kind STREQUAL STATIC)
    target_compile_definitions(${target} PUBLIC VXGUI_STATIC)
  else()
    set_target_properties(${target} PROPERTIES
      CXX_VISIBILITY_PRESET hidden C_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
      VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
    # Names like BitBlt exist elsewhere too: our calls stay ours, and nobody else gets them.
    target_link_options(${target} PRIVATE -Wl,-Bsymbolic -Wl,--no-undefined)
  endif()
endfunction()

vxgui_add_form(vxplatform_static STATIC "${VXPLATFORM_SOURCES}")
target_link_libraries(vxplatform_static PUBLIC ${VXPLATFORM_LINKS})
vxgui_add_form(vxgui_static STATIC "${VXGUI_SOURCES}")
target_link_libraries(vxgui_static PUBLIC vxplatform_static)

vxgui_add_form(vxplatform SHARED "${VXPLATFORM_SOURCES}")
target_link_libraries(vxplatform PRIVATE ${VXPLATFORM_LINKS})
vxgui_add_form(vxgui SHARED "${VXGUI_SOURCES}")
target_link_libraries(vxgui PUBLIC vxplatform)
add_library(VxGui::vxgui ALIAS vxgui)
add_library(VxGui::vxplatform ALIAS vxplatform)
