# The API pages of the headers that are installed: `cmake --build BUILD --target api_pages`.
set(VXGUI_API_FOLDER ${PROJECT_BINARY_DIR}/api)
set(VXGUI_DOXYFILE ${PROJECT_BINARY_DIR}/Doxyfile)
set(VXGUI_API_EXCLUDED "")
foreach(folder ${VXGUI_INNER_FOLDERS})
  string(APPEND VXGUI_API_EXCLUDED " */vxgui/${folder}/* */vxgui/platform/${folder}/*")
endforeach()
configure_file(docs/Doxyfile.in ${VXGUI_DOXYFILE} @ONLY)
file(MAKE_DIRECTORY ${VXGUI_API_FOLDER})
add_custom_target(api_pages COMMAND doxygen ${VXGUI_DOXYFILE} VERBATIM
                  COMMENT "Writing ${VXGUI_API_FOLDER}/html/index.html")
