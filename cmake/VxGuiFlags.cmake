# How everything of the project is compiled. Only targets of the project carry these.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

include(GNUInstallDirs)

add_library(vxgui_flags INTERFACE)
target_compile_options(vxgui_flags INTERFACE -Wall -Wextra $<$<BOOL:${VXGUI_WERROR}>:-Werror>)
target_include_directories(vxgui_flags INTERFACE ${PROJECT_SOURCE_DIR})
# The arithmetic of pixels and colours must not depend on how the compiler contracts it.
target_compile_options(vxgui_flags INTERFACE -ffp-contract=off)

if(VXGUI_SANITIZE)
  target_compile_options(vxgui_flags INTERFACE -fsanitize=${VXGUI_SANITIZE}
                         -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(vxgui_flags INTERFACE -fsanitize=${VXGUI_SANITIZE})
endif()
if(VXGUI_BUILD_FUZZ)  # the library tells the fuzzers which of its edges an input has reached
  target_compile_options(vxgui_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(VXGUI_COVERAGE)
  target_compile_options(vxgui_flags INTERFACE --coverage)
  target_link_options(vxgui_flags INTERFACE --coverage)
endif()

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_C_COMPILER_LAUNCHER ${CCACHE})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()
