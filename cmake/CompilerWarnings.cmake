# An interface target that carries the warnings every target of this project is built with.
add_library(millichart_warnings INTERFACE)
if(MSVC)
  # Classes that a DLL exports have members and bases of the standard library, which it does not export.
  target_compile_options(millichart_warnings INTERFACE /W4 /wd4251 /wd4275 /utf-8 $<$<BOOL:${MILLICHART_WERROR}>:/WX>)
else()
  # g++ 12 sees overlapping copies in its own std::string (GCC bug 105651).
  target_compile_options(
    millichart_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor
                                  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
                                  $<$<BOOL:${MILLICHART_WERROR}>:-Werror>)
endif()
