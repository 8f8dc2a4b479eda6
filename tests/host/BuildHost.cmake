# Installs the library aside, builds the README's program on it with find_package and runs it; then compiles the same
# program with what pkg-config says. Called as cmake -DBUILD=... -DSOURCE=... -DWORK=... -DCXX=... -DFLAGS=... -P.
function(run)
  execute_process(COMMAND ${ARGV} OUTPUT_VARIABLE told ERROR_VARIABLE told RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGV}\n${told}")
  endif()
  set(told "${told}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK}/host)
file(READ ${SOURCE}/README.md readme)
string(REGEX MATCH "```cpp\n(.*)\nstd::string png[^\n]*\n```" program "${readme}")
string(REGEX REPLACE "^```cpp\n(.*)\n```$" "\\1" program "${program}")
string(REGEX MATCHALL "#include[^\n]*\n" includes "${program}")
string(REGEX REPLACE "#include[^\n]*\n" "" body "${program}")
list(JOIN includes "" includes)
file(WRITE ${WORK}/host/host.cpp
     "${includes}#include <string>\nint main() {\n${body}\nreturn png.substr(1, 3) == \"PNG\" ? 0 : 1;\n}\n")

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
run(${CMAKE_COMMAND} -S ${SOURCE}/tests/host -B ${WORK}/host -G Ninja -DCMAKE_CXX_COMPILER=${CXX}
    -DCMAKE_CXX_FLAGS=${FLAGS} -DCMAKE_PREFIX_PATH=${WORK}/installed)
run(${CMAKE_COMMAND} --build ${WORK}/host)
run(${WORK}/host/host)

file(GLOB_RECURSE package ${WORK}/installed/*/millichart.pc)
get_filename_component(package_folder ${package} DIRECTORY)
run(${CMAKE_COMMAND} -E env PKG_CONFIG_PATH=${package_folder} pkg-config --cflags --libs millichart)
separate_arguments(package_flags UNIX_COMMAND "${told}")
separate_arguments(compiler_flags UNIX_COMMAND "${FLAGS}")
run(${CXX} -std=c++20 ${compiler_flags} ${WORK}/host/host.cpp ${package_flags} -o ${WORK}/host/by-pkg-config)
