# What a host gets: the libraries, the public headers under the paths by which they are included, a package file for
# CMake and one for pkg-config.
include(CMakePackageConfigHelpers)

install(TARGETS penlode millichart millichart-core millichart-documents EXPORT millichartTargets)
install(
  EXPORT millichartTargets
  NAMESPACE millichart::
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/millichart
  FILE millichartConfig.cmake)
write_basic_package_version_file(millichartConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/millichartConfigVersion.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/millichart)

# The file finds its prefix from where it lies, so that an installed tree may be moved.
file(RELATIVE_PATH pc_to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
foreach(package millichart millichart-documents)
  configure_file(packaging/${package}.pc.in ${package}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${package}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()

set(headers ${CMAKE_INSTALL_INCLUDEDIR}/millichart)
install(FILES src/millichart.h DESTINATION ${headers})
install(DIRECTORY src/foundation src/charts DESTINATION ${headers} FILES_MATCHING PATTERN *.h)
install(
  DIRECTORY src/penlode
  DESTINATION ${headers}
  FILES_MATCHING
  PATTERN *.h
  PATTERN Gb18030.h EXCLUDE
  PATTERN Utf8.h EXCLUDE
  PATTERN Digits.h EXCLUDE
  PATTERN JsonFault.h EXCLUDE
  PATTERN JsonParser.h EXCLUDE
  PATTERN JsonReader.h EXCLUDE
  PATTERN JsonText.h EXCLUDE
  PATTERN JsonTree.h EXCLUDE
  PATTERN JsonWriter.h EXCLUDE
  PATTERN cairo EXCLUDE
  PATTERN svg EXCLUDE)
foreach(header ChartContent ChartData ChartDocument Files)
  install(FILES src/documents/${header}.h DESTINATION ${headers}/documents)
endforeach()
install(FILES src/penlode/cairo/GraphicsEngine.h DESTINATION ${headers}/penlode/cairo)
install(FILES src/penlode/svg/SvgEngine.h src/penlode/svg/SvgOptions.h DESTINATION ${headers}/penlode/svg)
