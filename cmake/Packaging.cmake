# What is installed from the build folder, in two forms with the same files.
#
#   component "program"  one folder that its user owns and can write: ./run makes it, and
#                        `cmake --install build/release --component program --prefix FOLDER` makes one anywhere
#   the other components the system's own folders, for all users: `cmake --install build/release --prefix /usr`, and the
#                        Debian package. A marker file beside the executable tells the program that its user cannot
#                        write there, so that it keeps its files in the user's data folder
list(TRANSFORM MARLOWBECK_DATABASES PREPEND "${MARLOWBECK_DATABASE_DIR}/" OUTPUT_VARIABLE untouched_databases)

# For all users.
set(shared_folder lib/marlowbeck)
foreach(folder bin lib lib/marlowbeck share share/applications share/doc share/doc/marlowbeck
        share/icons share/icons/hicolor share/icons/hicolor/scalable share/icons/hicolor/scalable/apps)
  # Readable by all users, whatever the packager's umask.
  install(DIRECTORY DESTINATION ${folder} DIRECTORY_PERMISSIONS
          OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
endforeach()
install(TARGETS marlowbeck marlowbeck_output DESTINATION ${shared_folder})
install(FILES ${untouched_databases} ${report_definitions} docs/guide.md packaging/installed-for-all-users
        DESTINATION ${shared_folder})
install(FILES README.md packaging/copyright DESTINATION share/doc/marlowbeck)
install(FILES packaging/marlowbeck.desktop DESTINATION share/applications)
install(FILES resources/icons/marlowbeck.svg DESTINATION share/icons/hicolor/scalable/apps)
file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
file(CREATE_LINK ../lib/marlowbeck/marlowbeck "${CMAKE_BINARY_DIR}/bin/marlowbeck" SYMBOLIC)
install(FILES "${CMAKE_BINARY_DIR}/bin/marlowbeck" DESTINATION bin)

# For one user. The folder holds confidential data of clients, so it is closed to others. An existing database holds the
# user's settings and is kept.
install(CODE [[
  set(folder "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
  if(NOT EXISTS "${folder}")
    file(MAKE_DIRECTORY "${folder}")
    file(CHMOD "${folder}" DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
  endif()
]] COMPONENT program EXCLUDE_FROM_ALL)
install(TARGETS marlowbeck marlowbeck_output DESTINATION . COMPONENT program EXCLUDE_FROM_ALL)
install(FILES ${report_definitions} docs/guide.md DESTINATION . COMPONENT program EXCLUDE_FROM_ALL)
install(CODE "set(databases \"${untouched_databases}\")" COMPONENT program EXCLUDE_FROM_ALL)
install(CODE [[
  file(GLOB present RELATIVE "${folder}" "${folder}/*")
  string(TOLOWER "${present}" present)
  foreach(database IN LISTS databases)
    cmake_path(GET database FILENAME name)
    string(TOLOWER "${name}" folded)
    list(FIND present "${folded}" at)
    if(at EQUAL -1)
      file(INSTALL "${database}" DESTINATION "${folder}" PERMISSIONS OWNER_READ OWNER_WRITE)
    endif()
  endforeach()
]] COMPONENT program EXCLUDE_FROM_ALL)

# The targets that both forms need.
add_custom_target(marlowbeck_program DEPENDS marlowbeck)
add_dependencies(marlowbeck_program databases)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_NAME marlowbeck)
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_BINARY_DIR}/package")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Marlowbeck developers <developers@marlowbeck.invalid>")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Keeps a file of clients, works out loans, and shows, prints and exports
reports and graphs of them, on South African rules and in rand.")
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# libqt6svg6 also contains the plug-ins that draw the SVG icons.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6, fonts-roboto-unhinted")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils")
include(CPack)
