# The tree that comes with the program stands ready in the build folder, where programs started from there find it, just as
# it will be installed: what lies in data/, and the files that are built from sources below it.
set(MORLAN7_TREE ${PROJECT_BINARY_DIR}/share/morlan7)
set(data ${PROJECT_SOURCE_DIR}/data)
set(not_shipped icons znaczniki znaki) # compiled into the program, built into Morlan7.tpf and CharSets.Def
set(tree)

file(GLOB_RECURSE names RELATIVE ${data} CONFIGURE_DEPENDS ${data}/*)
list(JOIN not_shipped "|" folders)
list(FILTER names EXCLUDE REGEX "^(${folders})/")
foreach(name IN LISTS names)
  add_custom_command(
    OUTPUT ${MORLAN7_TREE}/${name}
    COMMAND ${CMAKE_COMMAND} -E copy ${data}/${name} ${MORLAN7_TREE}/${name}
    DEPENDS ${data}/${name}
    VERBATIM)
  list(APPEND tree ${MORLAN7_TREE}/${name})
endforeach()

# The property sheets.
add_executable(morlan7-sheets ${PROJECT_SOURCE_DIR}/app/morlan7-sheets.cpp ${PROJECT_SOURCE_DIR}/app/toolfiles.cpp)
target_link_libraries(morlan7-sheets PRIVATE tags)
file(GLOB sheets CONFIGURE_DEPENDS ${data}/znaczniki/*.txt)
add_custom_command(
  OUTPUT ${MORLAN7_TREE}/Morlan7.tpf
  COMMAND morlan7-sheets compile ${MORLAN7_TREE}/Morlan7.tpf ${sheets}
  DEPENDS morlan7-sheets ${sheets}
  VERBATIM)
list(APPEND tree ${MORLAN7_TREE}/Morlan7.tpf)

# The character sets.
add_executable(morlan7-charsets ${PROJECT_SOURCE_DIR}/app/morlan7-charsets.cpp ${PROJECT_SOURCE_DIR}/app/toolfiles.cpp)
target_link_libraries(morlan7-charsets PRIVATE text)
file(GLOB charsets CONFIGURE_DEPENDS ${data}/znaki/*.txt)
add_custom_command(
  OUTPUT ${MORLAN7_TREE}/CharSets.Def
  COMMAND morlan7-charsets compile ${MORLAN7_TREE}/CharSets.Def ${charsets}
  DEPENDS morlan7-charsets ${charsets}
  VERBATIM)
list(APPEND tree ${MORLAN7_TREE}/CharSets.Def)

include(${CMAKE_CURRENT_LIST_DIR}/dictionaries.cmake)

add_custom_target(shipped-tree ALL DEPENDS ${tree})

foreach(folder IN LISTS not_shipped)
  list(APPEND exclusions PATTERN ${folder} EXCLUDE)
endforeach()
install(DIRECTORY ${data}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/morlan7 ${exclusions})
install(FILES ${MORLAN7_TREE}/Morlan7.tpf ${MORLAN7_TREE}/CharSets.Def DESTINATION ${CMAKE_INSTALL_DATADIR}/morlan7)
