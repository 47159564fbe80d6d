# The interface has a ledger, data/interface.ledger: a line for each state that it was in, with the version, a hash
# of the declarations, and what changed. A build stops where the declarations are not those of the last line, so
# that nothing that compiled code relies on changes unnoticed.
#
# What counts is the text of the public headers without comments and without regard to blanks, and the list of
# exported names. scalars_inline.hpp holds bodies of what scalars.h declares, and is left out.
#
# As a script: cmake -D SOURCE=<source tree> -D VERSION=<version> -P interface_ledger.cmake

function(torvane_interface_hash source variable)
  file(GLOB headers ${source}/include/torvane/*.h ${source}/include/torvane/exception.hpp)
  set(text)
  foreach(header IN LISTS headers)
    file(READ ${header} declarations)
    string(REGEX REPLACE "/\\*([^*]|\\*+[^*/])*\\*+/" " " declarations "${declarations}")
    string(REGEX REPLACE "//[^\n]*" " " declarations "${declarations}")
    cmake_path(GET header FILENAME name)
    string(APPEND text "${name} ${declarations} ")
  endforeach()
  file(READ ${source}/data/exports.txt names)
  string(REGEX REPLACE "[ \t\r\n]+" " " text "${text}${names}")
  string(SHA256 hash "${text}")
  set(${variable} ${hash} PARENT_SCOPE)
endfunction()

function(torvane_check_interface source version)
  torvane_interface_hash(${source} hash)
  file(STRINGS ${source}/data/interface.ledger lines REGEX "^[0-9]")
  list(POP_BACK lines last)
  if(NOT last MATCHES "^${version} ${hash} [^ ]")
    message(FATAL_ERROR "The interface is not the one of the last line of data/interface.ledger. If that is meant, "
                        "add this line, and say what changed:\n${version} ${hash} WHAT CHANGED")
  endif()
endfunction()

if(CMAKE_SCRIPT_MODE_FILE STREQUAL CMAKE_CURRENT_LIST_FILE)
  torvane_check_interface(${SOURCE} ${VERSION})
else()
  file(GLOB torvane_interface CONFIGURE_DEPENDS include/torvane/*.h include/torvane/exception.hpp data/exports.txt
       data/interface.ledger)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${torvane_interface})
  torvane_check_interface(${PROJECT_SOURCE_DIR} ${PROJECT_VERSION})
endif()
