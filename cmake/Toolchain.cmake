# Compiler settings and the libraries of the whole project.
option(CIBRA_TESTS "Build the tests" ON)
option(CIBRA_BENCH "Build cibra-bench" OFF)
option(CIBRA_SANITIZE "Build with address and undefined-behaviour sanitizers" OFF)
option(CIBRA_FUZZ "Build the fuzz targets and nothing else (clang only)" OFF)
option(CIBRA_FUZZ_RUNS "Let the tests build the fuzz targets and run each for a while" OFF)
set(CIBRA_FUZZ_SECONDS 30 CACHE STRING "How long the tests run each fuzz target")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTORCC ON)
# Programs and tests stand together, so that ./run and a person find them.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  add_compile_options(-Wno-restrict) # optimising, g++ 12 sees overlaps in joined std::strings where there are none
endif()
if(CIBRA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets PrintSupport Svg Test)
find_package(OpenSSL REQUIRED)
find_package(Threads REQUIRED)

# SQLCipher goes in statically and keeps its symbols to itself, so that no other SQLite of the process meets it.
find_library(SQLCIPHER_LIBRARY NAMES libsqlcipher.a REQUIRED)
find_path(SQLCIPHER_INCLUDE_DIR sqlcipher/sqlite3.h REQUIRED)
add_library(sqlcipher STATIC IMPORTED)
set_target_properties(sqlcipher PROPERTIES
  IMPORTED_LOCATION "${SQLCIPHER_LIBRARY}"
  INTERFACE_INCLUDE_DIRECTORIES "${SQLCIPHER_INCLUDE_DIR}"
  INTERFACE_COMPILE_DEFINITIONS SQLITE_HAS_CODEC
  INTERFACE_LINK_LIBRARIES "OpenSSL::Crypto;Threads::Threads;${CMAKE_DL_LIBS};m"
  INTERFACE_LINK_OPTIONS "-Wl,--exclude-libs,libsqlcipher.a")
