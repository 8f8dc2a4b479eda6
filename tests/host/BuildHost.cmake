# Installs the library aside, builds the README's programs and a host of the core on it with find_package and runs them;
# then compiles the second one with what pkg-config says. Called as cmake -DBUILD=... -DSOURCE=... -DWORK=... -DCXX=... -DFLAGS=... -P.
include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK}/host)
file(READ ${SOURCE}/README.md readme)

# Writes the next program of the README as `file`, and keeps what stands behind it.
function(write_program file)
  string(FIND "${readme}" "```cpp\n" begin)
  math(EXPR begin "${begin} + 7")
  string(SUBSTRING "${readme}" ${begin} -1 rest)
  string(FIND "${rest}" "\n```" end)
  string(SUBSTRING "${rest}" 0 ${end} program)
  string(SUBSTRING "${rest}" ${end} -1 rest)
  set(readme "${rest}" PARENT_SCOPE)
  string(REGEX MATCHALL "#include[^\n]*\n" includes "${program}")
  string(REGEX REPLACE "#include[^\n]*\n" "" body "${program}")
  list(JOIN includes "" includes)
  file(WRITE ${file} "${includes}#include <string>\nint main() {\n${body}\nreturn png.substr(1, 3) == \"PNG\" ? 0 : 1;\n}\n")
endfunction()
write_program(${WORK}/host/host.cpp)
write_program(${WORK}/host/document-host.cpp)

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
run(${CMAKE_COMMAND} -S ${SOURCE}/tests/host -B ${WORK}/host -G Ninja -DCMAKE_CXX_COMPILER=${CXX}
    -DCMAKE_CXX_FLAGS=${FLAGS} -DCMAKE_PREFIX_PATH=${WORK}/installed)
run(${CMAKE_COMMAND} --build ${WORK}/host)
run(${WORK}/host/host)
run(${WORK}/host/core-host)

run(${BUILD}/bin/millichart new pie -o ${WORK}/sales.chart.json)
run(${CMAKE_COMMAND} -E chdir ${WORK} ${WORK}/host/document-host)
file(READ ${WORK}/sales.chart.json saved)
string(JSON value GET "${saved}" data values 0)
string(JSON title GET "${saved}" title)
if(NOT value EQUAL 50 OR NOT title STREQUAL "Sales by region")
  message(FATAL_ERROR "saved a document whose first value is ${value} and whose title is ${title}")
endif()

file(GLOB_RECURSE package ${WORK}/installed/*/millichart.pc)
get_filename_component(package_folder ${package} DIRECTORY)
run(${CMAKE_COMMAND} -E env PKG_CONFIG_PATH=${package_folder} pkg-config --cflags --libs millichart-documents)
separate_arguments(package_flags UNIX_COMMAND "${told}")
separate_arguments(compiler_flags UNIX_COMMAND "${FLAGS}")
run(${CXX} -std=c++20 ${compiler_flags} ${WORK}/host/document-host.cpp ${package_flags} -o ${WORK}/host/by-pkg-config)
