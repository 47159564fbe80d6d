# Read by cpack before it packs. Without these tools it would fail half way, or make packages that name no dependency.
if(CPACK_GENERATOR STREQUAL "DEB")
  foreach(tool dpkg-deb dpkg-shlibdeps file readelf)
    find_program(TORVANE_TOOL_${tool} ${tool})
    if(NOT TORVANE_TOOL_${tool})
      message(FATAL_ERROR "Debian packages need ${tool}: apt-get install dpkg-dev file")
    endif()
  endforeach()
endif()
