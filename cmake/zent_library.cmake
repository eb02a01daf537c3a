set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
add_compile_options(-Wall -Wextra -Wpedantic -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 warns of overlapping copies in concatenated strings where there are none, and of others in the library's
  # own headers when they are precompiled.
  add_compile_options(-Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread -Wno-array-bounds)
endif()
if(ZENT_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# Most of the time that compiling takes is the headers'. A build from nothing (the presets that make the product) compiles each
# library as one file; one for development, in which a file changes at a time, parses common headers once for all files of
# a target. Each file still names what it uses: the preset "check" builds without either and would say so.
set(CMAKE_UNITY_BUILD_BATCH_SIZE 0)
set(ZENT_STANDARD_HEADERS <algorithm> <chrono> <functional> <map> <memory> <optional> <string> <utility> <variant> <vector>)
function(zent_precompile target)
  if(NOT CMAKE_UNITY_BUILD)
    target_precompile_headers(${target} PRIVATE ${ZENT_STANDARD_HEADERS} ${ARGN})
  endif()
endfunction()

# Makes one static library from a folder's sources, linked only to the folders below it:
#   zent_library(core platform)   the library `core` of ./*.cpp above `platform`
# A folder that includes upwards does not link; tests/layers_test.cmake names the include.
function(zent_library name)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
  target_link_libraries(${name} PUBLIC ${ARGN})
  zent_precompile(${name} ${PROJECT_SOURCE_DIR}/platform/ports/platform.h)
endfunction()
