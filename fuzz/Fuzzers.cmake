# What the fuzzers and the tests that run their findings again are made of.
set(VXGUI_FUZZERS)
foreach(name pictures/Bmp pictures/Gif pictures/Icon pictures/Jpeg pictures/Png pictures/Tga
             pictures/Tiff keeping/Bag keeping/Compressor keeping/Surface skins/ColourText
             skins/CompiledSkin skins/Define skins/StyleModule skins/ThemeSet skins/Uis
             drawing/Calls drawing/Text)
  list(APPEND VXGUI_FUZZERS ${CMAKE_CURRENT_LIST_DIR}/${name}.cpp)
endforeach()
set(VXGUI_FUZZ_PARTS ${CMAKE_CURRENT_LIST_DIR}/SmallLimits.cpp
                     ${CMAKE_CURRENT_LIST_DIR}/drawing/ExactCalls.cpp
                     ${CMAKE_CURRENT_LIST_DIR}/drawing/ObjectCalls.cpp
                     ${CMAKE_CURRENT_LIST_DIR}/drawing/RandomCalls.cpp)
