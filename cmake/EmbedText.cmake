# Makes a C++ source of text files: cmake -DOUTPUT=FILE -DHEADER=FILE "-DTEXTS=name=file;..." -P ...
# Each becomes a `const char name[]` of the namespace vxgui::tool.
set(source "#include \"${HEADER}\"\n\nnamespace vxgui::tool {\n")
foreach(text IN LISTS TEXTS)
  string(REGEX MATCH "^([A-Za-z]+)=(.*)$" whole "${text}")
  set(name ${CMAKE_MATCH_1})
  file(READ "${CMAKE_MATCH_2}" content)
  string(APPEND source "const char ${name}[] = R\"vxtext(${content})vxtext\";\n")
endforeach()
file(WRITE "${OUTPUT}" "${source}}  // namespace vxgui::tool\n")
