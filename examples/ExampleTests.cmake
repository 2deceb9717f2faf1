# Each host is run, and its picture held against that of the host without a window.
add_test(NAME Example.Drawing COMMAND example_drawing ${CMAKE_CURRENT_BINARY_DIR}/drawing.png)
add_test(NAME Example.Picture COMMAND example_picture ${PROJECT_SOURCE_DIR}/skins/aurora/button.tga
         ${CMAKE_CURRENT_BINARY_DIR}/picture.png 160 FF00FF)
set_tests_properties(Example.Drawing Example.Picture PROPERTIES LABELS example)

set(checks ${PROJECT_SOURCE_DIR}/tests/examples)
set(skin ${PROJECT_SOURCE_DIR}/skins/aurora/aurora.theme)
set(button ${skin} PushButton)

# vxgui_compare_example(NAME EXPECTED OUTPUT COMMAND...): the command makes OUTPUT, which must show
# what EXPECTED shows, pixel by pixel.
function(vxgui_compare_example name expected output)
  add_test(NAME Example.${name} COMMAND ${checks}/check_picture.sh ${expected} ${output} ${ARGN})
  set_tests_properties(Example.${name} PROPERTIES LABELS example TIMEOUT 60 SKIP_RETURN_CODE 77)
endfunction()

# A host whose library isn't there is a test that says so.
function(vxgui_skip_example name library)
  add_test(NAME Example.${name} COMMAND ${CMAKE_COMMAND} -E echo "skipped: ${library} isn't there")
  set_tests_properties(Example.${name} PROPERTIES LABELS example SKIP_REGULAR_EXPRESSION skipped)
endfunction()

find_package(Python3 COMPONENTS Interpreter REQUIRED)
foreach(state Normal MouseOver Pressed)
  set(expected ${PROJECT_SOURCE_DIR}/tests/golden/hosts/${state}.png)
  vxgui_compare_example(Png${state} ${expected} png-${state}.png
                        $<TARGET_FILE:example_png> ${button} ${state} OK png-${state}.png)
  vxgui_compare_example(C${state} ${expected} c-${state}.ppm
                        $<TARGET_FILE:example_c_host> ${button} ${state} OK c-${state}.ppm)
  if(NOT VXGUI_SANITIZE)
    vxgui_compare_example(Python${state} ${expected} python-${state}.png
                          ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/python_host.py ${button}
                          ${state} OK python-${state}.png)
    set_property(TEST Example.Python${state} PROPERTY
                 ENVIRONMENT "VXGUI_LIBRARY=$<TARGET_FILE:vxgui>")
  endif()
endforeach()

set(golden ${PROJECT_SOURCE_DIR}/tests/golden/hosts)
set(on_display ${PROJECT_SOURCE_DIR}/tests/support/with_display.sh)

# Its window is opened on a display, and its button worked with the mouse.
function(vxgui_drive_example name target)
  add_test(NAME Example.${name} COMMAND ${on_display} ${checks}/check_window.sh ${golden} ${target}
           $<TARGET_FILE:example_${target}> ${button} OK)
  set_tests_properties(Example.${name} PROPERTIES LABELS example TIMEOUT 120 SKIP_RETURN_CODE 77)
endfunction()

if(TARGET example_cairo)
  vxgui_compare_example(Cairo ${golden}/Normal.png cairo.png
                        $<TARGET_FILE:example_cairo> ${button} OK cairo.png)
  vxgui_compare_example(CairoOnClearPixels ${golden}/Clear.png png-clear.png
                        $<TARGET_FILE:example_cairo> ${button} OK png-clear.png --clear)
else()
  vxgui_skip_example(Cairo cairo)
endif()

if(TARGET example_sdl2)
  vxgui_compare_example(Sdl2 ${golden}/Normal.png sdl2.bmp
                        $<TARGET_FILE:example_sdl2> ${button} OK --screenshot sdl2.bmp)
  set_property(TEST Example.Sdl2 PROPERTY ENVIRONMENT SDL_VIDEODRIVER=dummy)
  vxgui_drive_example(Sdl2Window sdl2)
  set_property(TEST Example.Sdl2Window PROPERTY ENVIRONMENT SDL_VIDEODRIVER=x11)
else()
  vxgui_skip_example(Sdl2 "SDL 2")
endif()

if(TARGET example_x11)
  vxgui_compare_example(X11 ${golden}/Normal.png x11.ppm ${on_display}
                        $<TARGET_FILE:example_x11> ${button} OK --screenshot x11.ppm)
  vxgui_drive_example(X11Window x11)
else()
  vxgui_skip_example(X11 Xlib)
endif()

if(TARGET example_qt6)
  vxgui_compare_example(Qt6 ${golden}/Normal.png qt6.png
                        $<TARGET_FILE:example_qt6> ${button} OK --screenshot qt6.png)
  set_property(TEST Example.Qt6 PROPERTY ENVIRONMENT QT_QPA_PLATFORM=offscreen)
  vxgui_drive_example(Qt6Window qt6)
  set_property(TEST Example.Qt6Window PROPERTY ENVIRONMENT QT_QPA_PLATFORM=xcb)
else()
  vxgui_skip_example(Qt6 "Qt 6 Widgets")
endif()

# The guide for hosts: its lines are the hosts' own, its commands work, its picture is theirs.
if(NOT VXGUI_SANITIZE)
  add_test(NAME Example.GuideIsTrue COMMAND ${on_display} ${Python3_EXECUTABLE} ${checks}/check_guide.py
           ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR})
  set_tests_properties(Example.GuideIsTrue PROPERTIES LABELS example TIMEOUT 120 SKIP_RETURN_CODE 77)
endif()
vxgui_compare_example(GuideShowsWhatIsDrawn ${PROJECT_SOURCE_DIR}/docs/hosts.png hosts.png
                      convert ${golden}/Normal.png ${golden}/MouseOver.png ${golden}/Pressed.png
                      +append hosts.png)
