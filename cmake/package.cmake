# Debian packages, by `cpack` in the build folder: libtorvane-rtl0 with the shared library and libtorvane-rtl-dev
# with headers, generated data and what pkg-config and CMake read.
set(CPACK_GENERATOR DEB)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/package_tools.cmake)
set(CPACK_PACKAGE_NAME torvane-rtl)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "TorvaneRTL_Minimal engineers <engineers@torvane.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
if(TORVANE_ILP32)
  set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE i386)
endif()

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libtorvane-rtl${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "run-time library of a numeric compiler
What compiled numeric programs call: tensors and their memory, elementwise
mathematics with and without checks, list and linear-algebra algorithms by
name, random numbers, sparse and numeric arrays, failures and aborts.")
# What the library is linked to, asked of the system.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
file(WRITE ${PROJECT_BINARY_DIR}/package/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/package/triggers)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libtorvane-rtl-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "headers of the run-time library of a numeric compiler
The exported interface for C, C++ and LLVM IR, the scalar operators as inline
bodies, and what pkg-config and CMake read.")
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

# Terms and changes stand in each package, in the folder of its name; an install by hand goes without.
configure_file(cmake/changelog.in package/changelog @ONLY)
execute_process(COMMAND gzip -9nc ${PROJECT_BINARY_DIR}/package/changelog
                OUTPUT_FILE ${PROJECT_BINARY_DIR}/package/changelog.gz)
foreach(component RUNTIME DEVELOPMENT)
  string(TOLOWER ${component} name)
  set(folder ${CMAKE_INSTALL_DATAROOTDIR}/doc/${CPACK_DEBIAN_${component}_PACKAGE_NAME})
  install(FILES LICENSE RENAME copyright DESTINATION ${folder} COMPONENT ${name} EXCLUDE_FROM_ALL)
  install(FILES ${PROJECT_BINARY_DIR}/package/changelog.gz DESTINATION ${folder} COMPONENT ${name} EXCLUDE_FROM_ALL)
endforeach()
include(CPack)
