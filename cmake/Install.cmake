# What `cmake --install` puts in place: both libraries, the header, and what finds them again for CMake
# and for pkg-config. Both find them relative to themselves, so the tree may be moved as a whole.
include(CMakePackageConfigHelpers)

set(kitegui_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/kitegui)
set(kitegui_pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(TARGETS kitegui kitehost EXPORT kiteguiTargets)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ TYPE INCLUDE FILES_MATCHING PATTERN "*.h")
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE TYPE DOC)

install(EXPORT kiteguiTargets NAMESPACE kitegui:: DESTINATION ${kitegui_package_dir})
configure_package_config_file(
  ${CMAKE_CURRENT_LIST_DIR}/kiteguiConfig.cmake.in ${PROJECT_BINARY_DIR}/kiteguiConfig.cmake
  INSTALL_DESTINATION ${kitegui_package_dir}
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/kiteguiConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/kiteguiConfig.cmake
  ${PROJECT_BINARY_DIR}/kiteguiConfigVersion.cmake
  DESTINATION ${kitegui_package_dir})

# One template, two modules: kitehost brings kitegui along. It is linked even where the linker drops
# libraries that nothing before them asked for: it is kitegui, behind it, that calls the host services.
function(kitegui_pkgconfig_module name description requires libraries)
  file(RELATIVE_PATH prefix /${kitegui_pkgconfig_dir} /)
  string(REGEX REPLACE "/$" "" prefix "${prefix}")
  set(module_name ${name})
  set(module_description ${description})
  set(module_requires ${requires})
  set(module_libraries ${libraries})
  configure_file(${PROJECT_SOURCE_DIR}/cmake/kitegui.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${kitegui_pkgconfig_dir})
endfunction()

kitegui_pkgconfig_module(kitegui ${PROJECT_DESCRIPTION} "" "-lkitegui")
kitegui_pkgconfig_module(kitehost "Ready-made host services for kitegui" "kitegui = ${PROJECT_VERSION}"
  "-Wl,--push-state,--no-as-needed -lkitehost -Wl,--pop-state")
