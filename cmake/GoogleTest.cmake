# GoogleTest as it is installed. A cross build cannot link that and compiles the sources, which Debian's package
# `googletest` installs.
if(CMAKE_CROSSCOMPILING)
  set(BUILD_GMOCK OFF)
  set(INSTALL_GTEST OFF)
  add_subdirectory(/usr/src/googletest ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
else()
  find_package(GTest REQUIRED)
endif()
include(GoogleTest)
