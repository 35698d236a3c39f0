# One set of compiler options for all our code. Figures must be the same in every build, so a*b+c is not contracted into
# one operation, and no option may trade exactness for speed.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_VERIFY_INTERFACE_HEADER_SETS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Development CACHE STRING "Development, Release or Debug" FORCE)
endif()
# Neither optimised nor with debug information: a full build with the tests stays under four minutes on two cores.
set(CMAKE_CXX_FLAGS_DEVELOPMENT "")
set(CMAKE_C_FLAGS_DEVELOPMENT "")

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env "CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime" "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}" ${CCACHE})
endif()
find_program(MOLD mold)
if(MOLD)
  add_link_options(-fuse-ld=mold)
endif()

set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG" CACHE STRING "What is installed and packaged" FORCE)

# Libraries that a program does not use are not loaded.
add_link_options(LINKER:--as-needed)

add_library(marlowbeck_options INTERFACE)
target_compile_options(marlowbeck_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror -ffp-contract=off -fno-fast-math
  "$<$<BOOL:${CCACHE}>:-fpch-preprocess>")
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # From -O2 on, this compiler warns wrongly of overlapping copies inside the library's own std::string.
  target_compile_options(marlowbeck_options INTERFACE -Wno-restrict)
endif()
if(MARLOWBECK_SANITIZE)
  add_compile_options(-g1 -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
