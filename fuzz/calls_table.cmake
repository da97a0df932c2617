# The table that fuzz_calls walks.

find_package(Python3 3.11 REQUIRED COMPONENTS Interpreter)
set(calls_folder ${PROJECT_BINARY_DIR}/fuzz)
set(calls_table ${calls_folder}/calls_table.inc)
file(MAKE_DIRECTORY ${calls_folder})
file(GLOB generator ${PROJECT_SOURCE_DIR}/schema/generator/*.py)
add_custom_command(
  OUTPUT ${calls_table}
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_LIST_DIR}/make_calls.py > ${calls_table}
  DEPENDS ${CMAKE_CURRENT_LIST_DIR}/make_calls.py ${generator} ${PROJECT_SOURCE_DIR}/schema/vyr.xsd
          ${PROJECT_SOURCE_DIR}/schema/binding.toml
  VERBATIM)
target_sources(fuzz_calls PRIVATE ${calls_table})
target_include_directories(fuzz_calls PRIVATE ${calls_folder})
