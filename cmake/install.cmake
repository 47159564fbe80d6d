# Install rules: headers, the versioned library, the generated data files, and what lets a build find them
# (find_package(TorvaneRTL) with the target TorvaneRTL::TorvaneRTL_Minimal, and torvane-rtl.pc). Nothing that
# is installed holds an absolute path, so that the prefix may be moved.
include(CMakePackageConfigHelpers)
set(torvane_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/TorvaneRTL)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME development)
install(TARGETS TorvaneRTL_Minimal EXPORT TorvaneRTLTargets
        LIBRARY COMPONENT runtime NAMELINK_COMPONENT development)
install(DIRECTORY include/torvane DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} PATTERN detail EXCLUDE)
# The bodies behind scalars_inline.hpp. In the source tree include/torvane/detail leads to them by links.
set(torvane_detail_dir ${CMAKE_INSTALL_INCLUDEDIR}/torvane/detail)
install(DIRECTORY src/scalar DESTINATION ${torvane_detail_dir} FILES_MATCHING PATTERN "*.h" PATTERN "*.def"
        PATTERN generated EXCLUDE)
install(FILES src/runtime/types.h src/runtime/failure.h DESTINATION ${torvane_detail_dir}/runtime)
foreach(file exports.txt exports.json torvane.ll)
  if(EXISTS ${PROJECT_SOURCE_DIR}/data/${file})
    install(FILES data/${file} DESTINATION ${CMAKE_INSTALL_DATADIR}/torvane)
  endif()
endforeach()

# The scalar entries as LLVM bitcode, for compilers that inline them instead of calling: the same from every lane of
# ./check, so that the first alone makes it.
find_program(TORVANE_BITCODE_COMPILER clang++-19)
find_program(TORVANE_BITCODE_LINKER llvm-link-19)
if(TORVANE_BITCODE_COMPILER AND TORVANE_BITCODE_LINKER AND NOT TORVANE_ILP32 AND NOT TORVANE_SANITIZE AND TORVANE_LANE STREQUAL "")
  file(GLOB entry_sources CONFIGURE_DEPENDS src/scalar/generated/*.cpp)
  file(GLOB_RECURSE entry_headers CONFIGURE_DEPENDS src/scalar/*.h src/scalar/*.def include/torvane/*.h)
  set(bitcode ${PROJECT_BINARY_DIR}/torvane_scalars.bc)
  set(units)
  foreach(source ${entry_sources})
    cmake_path(GET source STEM name)
    set(unit ${PROJECT_BINARY_DIR}/bitcode/${name}.bc)
    add_custom_command(OUTPUT ${unit} DEPENDS ${source} ${entry_headers}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/bitcode
      COMMAND ${TORVANE_BITCODE_COMPILER} -std=c++20 -O2 -ffp-contract=off -fno-math-errno -fPIC
              -I${PROJECT_SOURCE_DIR}/include -emit-llvm -c ${source} -o ${unit} VERBATIM)
    list(APPEND units ${unit})
  endforeach()
  add_custom_command(OUTPUT ${bitcode} DEPENDS ${units} COMMAND ${TORVANE_BITCODE_LINKER} ${units} -o ${bitcode} VERBATIM)
  add_custom_target(torvane_bitcode ALL DEPENDS ${bitcode})
  install(FILES ${bitcode} DESTINATION ${CMAKE_INSTALL_DATADIR}/torvane)
endif()

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
