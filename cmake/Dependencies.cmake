# Libraries from the distribution; scripts/packages lists the packages that bring them.
find_package(PkgConfig REQUIRED)
find_package(simdjson REQUIRED)
find_package(nlohmann_json REQUIRED)
find_package(CLI11 REQUIRED)
find_package(Boost 1.81 REQUIRED)
find_package(PNG REQUIRED)
pkg_check_modules(PLIST REQUIRED IMPORTED_TARGET libplist-2.0)
pkg_check_modules(CAIRO REQUIRED cairo-ft)
pkg_check_modules(FONTS REQUIRED IMPORTED_TARGET fontconfig freetype2)
pkg_check_modules(HARFBUZZ REQUIRED IMPORTED_TARGET harfbuzz)
pkg_check_modules(ICU REQUIRED icu-i18n)
pkg_check_modules(RSVG REQUIRED librsvg-2.0)
find_package(SQLiteCpp REQUIRED)

# The programs start often and do little each time, and a shared library costs a process more than its code: those that
# have an archive are linked from it into targets with the property MIRUNE_ARCHIVES.
define_property(TARGET PROPERTY MIRUNE_ARCHIVES BRIEF_DOCS "Link what has one from its archive")
function(mirune_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SHARED;ARCHIVES")
  list(TRANSFORM arg_SHARED PREPEND "-l")
  list(TRANSFORM arg_ARCHIVES REPLACE "(.+)" "-l:lib\\1.a")
  set(archived "$<BOOL:$<TARGET_PROPERTY:MIRUNE_ARCHIVES>>")
  add_library(${name} INTERFACE)
  target_link_libraries(${name} INTERFACE "$<IF:${archived},${arg_ARCHIVES},${arg_SHARED}>")
endfunction()
mirune_library(abseil
  SHARED absl_time absl_time_zone absl_strings absl_int128
  ARCHIVES absl_time absl_civil_time absl_time_zone absl_strings absl_strings_internal absl_int128 absl_base
           absl_spinlock_wait absl_throw_delegate absl_raw_logging_internal absl_log_severity)
mirune_library(deflate SHARED deflate ARCHIVES deflate)
mirune_library(icu SHARED icui18n icuuc ARCHIVES icui18n icuuc)

# The screens that Cairo can draw on bring ten libraries along; from the archive nobody asks for them. librsvg comes with
# the shared Cairo and has to draw with this one: what the program defines and exports goes before what a library does.
execute_process(COMMAND "${CMAKE_NM}" -D --defined-only "${CAIRO_LIBDIR}/libcairo.so"
                OUTPUT_VARIABLE cairo_symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "cairo_[a-z0-9_]+" cairo_symbols "${cairo_symbols}")
list(FILTER cairo_symbols EXCLUDE REGEX "_(xlib|xcb|gl|glx|egl|script|tee|xml|debug)(_|$)")
list(TRANSFORM cairo_symbols REPLACE "(.+)" "-Wl,-u,\\1,--export-dynamic-symbol=\\1")
list(JOIN cairo_symbols "\n" cairo_symbols)
file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/cairo-symbols" CONTENT "${cairo_symbols}\n")
mirune_library(cairo SHARED cairo ARCHIVES cairo pixman-1)
target_link_libraries(cairo INTERFACE PkgConfig::FONTS PNG::PNG)
target_include_directories(cairo SYSTEM INTERFACE ${CAIRO_INCLUDE_DIRS})
