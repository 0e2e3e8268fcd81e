# The warnings that all code of this project compiles without.
add_library(kitegui_warnings INTERFACE)
target_compile_options(kitegui_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>  # GCC 12 sees overlaps inside the standard library's std::string
  $<$<BOOL:${KITEGUI_DEVELOP}>:-Werror>)
