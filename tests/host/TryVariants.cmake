# Configures what is not built here, without engines and without documents, and holds the headers that each would install
# against a host of the core. Their libraries are not compiled, which would take a minute.
# Called as cmake -DSOURCE=... -DWORK=... -DCXX=... -DFLAGS=... -P.
include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)
separate_arguments(flags UNIX_COMMAND "${FLAGS}")
file(REMOVE_RECURSE ${WORK})
foreach(part ENGINES DOCUMENTS)
  set(build ${WORK}/${part}-off)
  run(${CMAKE_COMMAND} -S ${SOURCE} -B ${build} -G Ninja -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_CXX_FLAGS=${FLAGS}
      -DMILLICHART_${part}=OFF)
  run(${CMAKE_COMMAND} --install ${build} --prefix ${build}/installed --component headers)
  run(${CXX} -std=c++20 ${flags} -DPENLODE_STATIC -DMILLICHART_STATIC -I${build}/installed/include/millichart
      -fsyntax-only ${SOURCE}/tests/host/CoreHost.cpp)
endforeach()
