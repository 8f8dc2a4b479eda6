# What a host gets: the libraries, the public headers under the paths by which they are included, a package file for
# CMake and one for pkg-config, the licence, and what says how a chart document is written.
include(CMakePackageConfigHelpers)
include(cmake/PublicHeaders.cmake)

if(MILLICHART_ENGINES)
  set(shared penlode millichart)
endif()
if(MILLICHART_DOCUMENTS)
  set(documents millichart-documents)
endif()
# What the static millichart-documents links, for CMake and for pkg-config.
set(documents_packages Threads)
set(documents_requires millichart)
if(MILLICHART_SQLITE)
  list(APPEND documents_packages SQLite3)
  list(APPEND documents_requires sqlite3)
endif()
if(MILLICHART_ODBC AND NOT WIN32)
  list(APPEND documents_packages ODBC)
  list(APPEND documents_requires odbc)
endif()
if(MILLICHART_SPREADSHEETS) # linked by their names, so that CMake finds them without a package
  list(APPEND documents_requires libzip pugixml)
endif()
list(JOIN documents_packages " " documents_packages)
list(JOIN documents_requires " " documents_requires)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/millichart)
install(TARGETS millichart-core ${shared} ${documents} EXPORT millichartTargets)
install(EXPORT millichartTargets NAMESPACE millichart:: DESTINATION ${package_folder})
if(TARGET millichart-editing)
  set(editing millichart-editing)
  install(TARGETS millichart-editing EXPORT millichartEditingTargets)
  install(EXPORT millichartEditingTargets NAMESPACE millichart:: DESTINATION ${package_folder})
endif()
write_basic_package_version_file(millichartConfigVersion.cmake COMPATIBILITY SameMinorVersion)
configure_file(packaging/millichartConfig.cmake.in millichartConfig.cmake @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/millichartConfigVersion.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/millichartConfig.cmake DESTINATION ${package_folder})

# pkg-config has the shared libraries. Each file finds its prefix from where it lies, so that an installed tree may be
# moved.
if(MILLICHART_ENGINES)
  file(RELATIVE_PATH pc_to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
  foreach(package millichart ${documents} ${editing})
    configure_file(packaging/${package}.pc.in ${package}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${package}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
  endforeach()
endif()

public_headers(millichart_headers)
foreach(header IN LISTS millichart_headers)
  cmake_path(GET header PARENT_PATH folder)
  install(
    FILES src/${header}
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/millichart/${folder}
    COMPONENT headers)
endforeach()

install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
if(MILLICHART_DOCUMENTS)
  install(FILES docs/chart.schema.json docs/document-format.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
endif()
