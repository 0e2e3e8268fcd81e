# Sanitizers and coverage hold for every target, so that all of a test process is watched.
if(KITEGUI_SANITIZE)
  add_compile_options(-fsanitize=${KITEGUI_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer
    -Wno-maybe-uninitialized)  # GCC 12 sees them inside the standard library's std::regex
  add_link_options(-fsanitize=${KITEGUI_SANITIZE})
endif()
if(KITEGUI_COVERAGE)
  add_compile_options(--coverage -O0)
  add_link_options(--coverage)
endif()
