# kite_gui_tests(NAME target SOURCES file… [LIBRARIES library…] [WM mwm openbox none]
#                [TIMEOUT seconds] [SCREEN WxHxD])
#
# A program of GUI tests, and one CTest test for each case of it and each window manager (mwm only when
# none is named). TIMEOUT is for one case, 30 by default. The tests run in parallel: each has a display of
# its own.
function(kite_gui_tests)
  cmake_parse_arguments(PARSE_ARGV 0 TEST "" "NAME;TIMEOUT;SCREEN" "SOURCES;LIBRARIES;WM")
  if(NOT TEST_WM)
    set(TEST_WM mwm)
  endif()
  if(NOT TEST_TIMEOUT)
    set(TEST_TIMEOUT 30)
    if(KITEGUI_SANITIZE)
      set(TEST_TIMEOUT 90)
    endif()
  endif()

  add_executable(${TEST_NAME} ${TEST_SOURCES})
  target_link_libraries(${TEST_NAME} PRIVATE
    kitegui_test_support ${TEST_LIBRARIES} kitegui_warnings)
  # The library finds its host services in the program; stacks of hanging tests have names.
  set_target_properties(${TEST_NAME} PROPERTIES ENABLE_EXPORTS ON)

  set(arguments --deadline=${TEST_TIMEOUT})
  if(TEST_SCREEN)
    list(APPEND arguments --screen=${TEST_SCREEN})
  endif()
  string(REGEX REPLACE "_tests$" "" prefix ${TEST_NAME})
  # The harness ends a hanging test by itself, with a picture; CTest's own limit is for the rest.
  math(EXPR limit "${TEST_TIMEOUT} + 60")
  list(LENGTH TEST_WM manager_count)
  foreach(manager IN LISTS TEST_WM)
    set(suffix "")
    if(manager_count GREATER 1)
      set(suffix ".${manager}")
    endif()
    gtest_discover_tests(${TEST_NAME}
      TEST_PREFIX "${prefix}." TEST_SUFFIX "${suffix}" TEST_LIST ${TEST_NAME}_${manager}
      NO_PRETTY_VALUES EXTRA_ARGS --wm=${manager} ${arguments}
      PROPERTIES TIMEOUT ${limit} LABELS gui)
  endforeach()
endfunction()
