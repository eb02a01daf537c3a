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

# Headers that are parsed once for all files of a target: most of the time that compiling takes is theirs. Each
# file still names what it uses; the preset "check" builds without them and would say so.
set(ZENT_STANDARD_HEADERS <algorithm> <chrono> <functional> <map> <memory> <optional> <string> <utility> <variant> <vector>)

# Makes one static library from a folder's sources, linked only to the folders below it:
#   zent_library(core platform)   the library `core` of ./*.cpp above `platform`
# A folder that includes upwards does not link; tests/layers_test.cmake names the include.
function(zent_library name)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
  target_link_libraries(${name} PUBLIC ${ARGN})
  target_precompile_headers(${name} PRIVATE ${ZENT_STANDARD_HEADERS} ${PROJECT_SOURCE_DIR}/platform/ports/platform.h)
endfunction()
