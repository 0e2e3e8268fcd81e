# The warnings that all code of this project compiles without.
add_library(kitegui_warnings INTERFACE)
target_compile_options(kitegui_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion $<$<BOOL:${KITEGUI_DEVELOP}>:-Werror>)
