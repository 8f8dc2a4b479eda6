# RAPIDJSON_FOLDER: where rapidjson/reader.h is. It has nothing to link, so that the building machine's own serves for
# every system; a cross build sees it through a link in a folder of its own, and nothing else of the machine's headers.
find_path(RAPIDJSON_FOLDER rapidjson/reader.h NO_CMAKE_FIND_ROOT_PATH REQUIRED)
if(CMAKE_CROSSCOMPILING)
  file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/rapidjson)
  file(CREATE_LINK ${RAPIDJSON_FOLDER}/rapidjson ${PROJECT_BINARY_DIR}/rapidjson/rapidjson SYMBOLIC)
  set(RAPIDJSON_FOLDER ${PROJECT_BINARY_DIR}/rapidjson)
endif()
