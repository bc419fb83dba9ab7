# How every target is compiled.
set(CMAKE_CXX_STANDARD 23)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# -O3 of g++ 12 reports -Wrestrict where there is nothing to report (string operator+), so release is -O2. What is released
# is hardened, and says nothing of the folder that it was built in. Functions of libraries are bound when they are first
# called, for the extension starts often and calls few of them.
set(CMAKE_CXX_FLAGS_RELEASE
    "-O2 -g1 -fstack-protector-strong -D_FORTIFY_SOURCE=2 -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.")
set(CMAKE_EXE_LINKER_FLAGS_RELEASE "-Wl,-O1,-z,relro,-z,pack-relative-relocs,--as-needed,--gc-sections")

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual -Werror)

option(MIRUNE_SANITIZE "Build with address and undefined-behaviour sanitizers" OFF)
if(MIRUNE_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -D_GLIBCXX_ASSERTIONS)
  add_link_options(-fsanitize=address,undefined)
endif()

if(MIRUNE_FUZZERS)
  # clang takes what g++ 12's library uses for its stable sort for a use of ours.
  add_compile_options(-fsanitize=fuzzer-no-link -Wno-deprecated-declarations)
endif()

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
endif()
