# The files beside the program: the four databases, made from their SQL sources, the report definitions, and the guide
# that it shows as help.
#
# databases/ holds untouched databases for packages; program/ gets working copies. A copy is replaced only if its source
# has changed, never because the generator was linked again: it may hold rates set by a user.
add_executable(makedatabase tools/makedatabase.cpp)
target_link_libraries(makedatabase PRIVATE marlowbeck_options SQLiteCpp)
set_target_properties(makedatabase PROPERTIES AUTOMOC OFF AUTORCC OFF)

set(MARLOWBECK_DATABASE_DIR "${CMAKE_BINARY_DIR}/databases")
set(MARLOWBECK_PROGRAM_DIR "${CMAKE_BINARY_DIR}/program")
file(MAKE_DIRECTORY "${MARLOWBECK_DATABASE_DIR}" "${MARLOWBECK_PROGRAM_DIR}")

set(MARLOWBECK_DATABASES Default.Mdb Print.mdb units.mdb Diary.mdb)
set(placed_databases)
foreach(database IN LISTS MARLOWBECK_DATABASES)
  cmake_path(GET database STEM name)
  set(source "${CMAKE_SOURCE_DIR}/data/databases/${name}.sql")
  set(made "${MARLOWBECK_DATABASE_DIR}/${database}")
  set(placed "${MARLOWBECK_PROGRAM_DIR}/${database}")
  add_custom_command(OUTPUT "${made}" DEPENDS "${source}" VERBATIM
    COMMAND makedatabase "${source}" "${made}" COMMENT "Making ${database}")
  add_custom_command(OUTPUT "${placed}" DEPENDS "${made}" VERBATIM
    COMMAND "${CMAKE_COMMAND}" -E rm -f "${placed}-journal"
    COMMAND "${CMAKE_COMMAND}" -E copy "${made}" "${placed}" COMMENT "Placing ${database}")
  list(APPEND placed_databases "${placed}")
endforeach()
add_custom_target(databases ALL DEPENDS ${placed_databases})

file(GLOB report_definitions CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/data/reports/*.rpt")
set(placed_reports)
foreach(definition IN LISTS report_definitions)
  cmake_path(GET definition FILENAME name)
  set(placed "${MARLOWBECK_PROGRAM_DIR}/${name}")
  add_custom_command(OUTPUT "${placed}" DEPENDS "${definition}" VERBATIM
    COMMAND "${CMAKE_COMMAND}" -E copy "${definition}" "${placed}")
  list(APPEND placed_reports "${placed}")
endforeach()
add_custom_target(report_definitions ALL DEPENDS ${placed_reports})

add_custom_command(OUTPUT "${MARLOWBECK_PROGRAM_DIR}/guide.md" DEPENDS docs/guide.md VERBATIM
  COMMAND "${CMAKE_COMMAND}" -E copy "${CMAKE_SOURCE_DIR}/docs/guide.md" "${MARLOWBECK_PROGRAM_DIR}")
add_custom_target(help_pages ALL DEPENDS "${MARLOWBECK_PROGRAM_DIR}/guide.md")
