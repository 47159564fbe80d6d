# Install rules: headers, the versioned library, the generated data files, and what lets a build find them
# (find_package(TorvaneRTL) with the target TorvaneRTL::TorvaneRTL_Minimal, and torvane-rtl.pc). Nothing that
# is installed holds an absolute path, so that the prefix may be moved.
include(CMakePackageConfigHelpers)
set(torvane_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/TorvaneRTL)

install(TARGETS TorvaneRTL_Minimal EXPORT TorvaneRTLTargets)
install(DIRECTORY include/torvane DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
foreach(file exports.txt exports.json torvane.ll)
  if(EXISTS ${PROJECT_SOURCE_DIR}/data/${file})
    install(FILES data/${file} DESTINATION ${CMAKE_INSTALL_DATADIR}/torvane)
  endif()
endforeach()

install(EXPORT TorvaneRTLTargets NAMESPACE TorvaneRTL:: DESTINATION ${torvane_package_dir})
configure_package_config_file(cmake/TorvaneRTLConfig.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/TorvaneRTLConfig.cmake
  INSTALL_DESTINATION ${torvane_package_dir})
# The version file admits users of the same pointer width only; CMake knows the compiler's own width, not -m32's.
if(TORVANE_ILP32)
  set(CMAKE_SIZEOF_VOID_P 4)
endif()
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/TorvaneRTLConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/TorvaneRTLConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/TorvaneRTLConfigVersion.cmake DESTINATION ${torvane_package_dir})

# The prefix as pkg-config sees it from the folder of the .pc file.
file(RELATIVE_PATH torvane_pc_prefix /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(cmake/torvane-rtl.pc.in ${CMAKE_CURRENT_BINARY_DIR}/torvane-rtl.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/torvane-rtl.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
