# headers_only(RESULT HEADER): the folder for whose sake #include <HEADER> finds a library that has nothing to link, so
# that the building machine's own serves for every system. A cross build sees it through a link in a folder of its own,
# and nothing else of the machine's headers.
function(headers_only result header)
  find_path(${result} ${header} NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  if(CMAKE_CROSSCOMPILING)
    cmake_path(GET header PARENT_PATH library)
    set(links ${PROJECT_BINARY_DIR}/headers)
    file(MAKE_DIRECTORY ${links})
    file(CREATE_LINK ${${result}}/${library} ${links}/${library} SYMBOLIC)
    set(${result} ${links} PARENT_SCOPE)
  endif()
endfunction()
