# Compile options shared by everything, and the helpers that the folders use.

add_library(zv_options INTERFACE)
target_compile_features(zv_options INTERFACE cxx_std_20)
target_compile_options(zv_options INTERFACE -Wall -Wextra -Wshadow -Wconversion -Wno-missing-field-initializers)
target_compile_definitions(zv_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
                                                QT_DISABLE_DEPRECATED_BEFORE=0x060400 ZV_VERSION="${PROJECT_VERSION}")
target_include_directories(zv_options INTERFACE "${PROJECT_SOURCE_DIR}/src")
if(ZV_WERROR)
  target_compile_options(zv_options INTERFACE -Werror)
endif()
if(ZV_SANITIZE)
  target_compile_options(zv_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                              -fno-omit-frame-pointer)
  target_link_options(zv_options INTERFACE -fsanitize=address,undefined)
endif()

# Two precompiled headers: one without and one with widgets, so that a message box in the store cannot compile.
function(zv_precompiled name libraries)
  file(WRITE "${CMAKE_BINARY_DIR}/${name}.cpp.in" "// Carrier of a precompiled header.\n")
  configure_file("${CMAKE_BINARY_DIR}/${name}.cpp.in" "${CMAKE_BINARY_DIR}/${name}.cpp" COPYONLY)
  add_library(${name} OBJECT "${CMAKE_BINARY_DIR}/${name}.cpp")
  target_link_libraries(${name} PRIVATE zv_options ${libraries})
  target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()
if(ZV_PCH)
  target_compile_options(zv_options INTERFACE -fpch-preprocess)
  zv_precompiled(zv_pch_core Qt6::Core <QtCore> <algorithm> <array> <cmath> <functional> <memory> <optional> <string>
                 <vector>)
  zv_precompiled(zv_pch_gui "Qt6::Widgets" <QtWidgets> <algorithm> <array> <cmath> <functional> <memory> <optional>
                 <string> <vector>)
endif()

function(zv_use_pch target kind)
  if(ZV_PCH)
    target_precompile_headers(${target} REUSE_FROM zv_pch_${kind})
  endif()
endfunction()

# zv_library(NAME core|gui LIBRARIES...): one static library of all sources in this folder.
function(zv_library name kind)
  file(GLOB sources CONFIGURE_DEPENDS "*.cpp" "*.h" "records*/*.cpp" "records*/*.h")
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_link_libraries(${name} PUBLIC zv_options ${ARGN})
  if(kind STREQUAL "core")
    target_link_libraries(${name} PUBLIC Qt6::Core)
  else()
    target_link_libraries(${name} PUBLIC Qt6::Widgets)
  endif()
  zv_use_pch(${name} ${kind})
endfunction()
