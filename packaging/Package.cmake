# The fonts that are asked for by name are those of the roster.
file(READ "${CMAKE_SOURCE_DIR}/resources/fonts/roster.json" roster)
string(JSON system_font GET "${roster}" system package)
# librsvg and ICU's tables are opened by name, which nobody sees who looks for libraries.
string(REGEX MATCH "^[0-9]+" icu "${ICU_VERSION}")
set(depends "${system_font}" "libicu${icu}" librsvg2-2 tzdata)
foreach(list fallback fonts)
  string(JSON count LENGTH "${roster}" ${list})
  math(EXPR last "${count} - 1")
  foreach(index RANGE ${last})
    string(JSON package GET "${roster}" ${list} ${index} package)
    list(APPEND depends "${package}")
  endforeach()
endforeach()
list(REMOVE_DUPLICATES depends)
list(SORT depends)
list(JOIN depends ", " depends)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME mirune)
set(CPACK_PACKAGE_CONTACT "Mirune Widgets <mirune@quorvanthimble.app>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "home-screen and lock-screen widgets of a personal planner")
set(CPACK_PACKAGE_DESCRIPTION
"Glanceable widgets for what a planner exports: today's tasks and habits with
check boxes, events, a month calendar, a mood check-in, a month of moods and a
quote of the day.

Shows them as a live home screen and lock screen in the browser, which only
this machine and this user can reach, and draws single widgets into pictures,
plain text or JSON. Examines the planner's files for faults, too.")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "${depends}")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS xdg-utils)
include(CPack)
