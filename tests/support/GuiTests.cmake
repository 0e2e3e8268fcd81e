# kite_precompiled(target): every source of it begins with GoogleTest's headers.
function(kite_precompiled target)
  target_precompile_headers(${target} REUSE_FROM kitegui_test_headers)
endfunction()

# kite_gui_tests(NAME target SOURCES file… [LIBRARIES library…] [WM mwm openbox none]
#                [TIMEOUT seconds] [SCREENS WxHxD…] [SEPARATE])
#
# A program of GUI tests, and one CTest test for each case of it, each window manager (mwm only when
# none is named) and each screen (a large one when none is named). TIMEOUT is for one case, 30 by default;
# cases with a time of their own begin first, so that nothing waits for them at the end.
# SEPARATE: each file is compiled by itself, since several give the same name to things of their own. The
# tests run in parallel: each has a display of its own.
function(kite_gui_tests)
  cmake_parse_arguments(PARSE_ARGV 0 TEST "SEPARATE" "NAME;TIMEOUT" "SOURCES;LIBRARIES;WM;SCREENS")
  if(NOT TEST_WM)
    set(TEST_WM mwm)
  endif()
  set(cost 0)
  if(TEST_TIMEOUT)
    set(cost ${TEST_TIMEOUT})
  else()
    set(TEST_TIMEOUT 30)
    if(KITEGUI_SANITIZE)
      set(TEST_TIMEOUT 180)
    endif()
  endif()

  add_executable(${TEST_NAME} ${TEST_SOURCES})
  target_link_libraries(${TEST_NAME} PRIVATE
    kitegui_test_support ${TEST_LIBRARIES} kitegui_warnings)
  kite_precompiled(${TEST_NAME})
  if(TEST_SEPARATE)
    set_target_properties(${TEST_NAME} PROPERTIES UNITY_BUILD OFF)
  endif()
  # The library finds its host services in the program; stacks of hanging tests have names.
  set_target_properties(${TEST_NAME} PROPERTIES ENABLE_EXPORTS ON)

  string(REGEX REPLACE "_tests$" "" prefix ${TEST_NAME})
  # The harness ends a hanging test by itself, with a picture; CTest's own limit is for the rest.
  math(EXPR limit "${TEST_TIMEOUT} + 60")
  if(NOT TEST_SCREENS)
    set(TEST_SCREENS usual)
  endif()
  list(LENGTH TEST_WM manager_count)
  list(LENGTH TEST_SCREENS screen_count)
  foreach(manager IN LISTS TEST_WM)
    foreach(screen IN LISTS TEST_SCREENS)
      set(suffix "")
      if(manager_count GREATER 1)
        string(APPEND suffix ".${manager}")
      endif()
      if(screen_count GREATER 1)
        string(APPEND suffix ".${screen}")
      endif()
      set(arguments --wm=${manager} --deadline=${TEST_TIMEOUT})
      if(NOT screen STREQUAL usual)
        list(APPEND arguments --screen=${screen})
      endif()
      gtest_discover_tests(${TEST_NAME}
        TEST_PREFIX "${prefix}." TEST_SUFFIX "${suffix}" TEST_LIST ${TEST_NAME}_${manager}_${screen}
        NO_PRETTY_VALUES
        EXTRA_ARGS ${arguments}
        PROPERTIES TIMEOUT ${limit} COST ${cost} LABELS gui)
    endforeach()
  endforeach()
endfunction()
