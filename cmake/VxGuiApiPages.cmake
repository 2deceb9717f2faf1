# The API pages of the headers that are installed: `cmake --build BUILD --target api_pages`.
set(VXGUI_API_FOLDER ${PROJECT_BINARY_DIR}/api)
set(VXGUI_DOXYFILE ${PROJECT_BINARY_DIR}/Doxyfile)
list(TRANSFORM VXGUI_INNER_FOLDERS REPLACE "(.+)" "*/platform/\\1/*" OUTPUT_VARIABLE inner)
list(JOIN inner " " VXGUI_API_EXCLUDED)
configure_file(docs/Doxyfile.in ${VXGUI_DOXYFILE} @ONLY)
file(MAKE_DIRECTORY ${VXGUI_API_FOLDER})
add_custom_target(api_pages COMMAND doxygen ${VXGUI_DOXYFILE} VERBATIM
                  COMMENT "Writing ${VXGUI_API_FOLDER}/html/index.html")
