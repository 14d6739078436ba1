# The spelling dictionaries, built from the word lists of Debian packages: what they hold comes with its licence.
set(MORLAN7_WORDS /usr/share/dict CACHE PATH "Folder of the word lists")
set(dictionaries ${MORLAN7_TREE}/SLOWNIKI)

# Of the room it has only what it needs, so that other changes do not build the dictionaries again.
set(needed spellingbits wordautomaton wordautomatonbuilder)
list(TRANSFORM needed REPLACE "(.+)" "${PROJECT_SOURCE_DIR}/text/\\1.cpp")
add_executable(morlan7-dictionary ${PROJECT_SOURCE_DIR}/app/morlan7-dictionary.cpp ${PROJECT_SOURCE_DIR}/app/toolfiles.cpp ${needed})
target_link_libraries(morlan7-dictionary PRIVATE platform)
install(TARGETS morlan7-dictionary)

# morlan7_dictionary(EXTENSION PACKAGE LIST...): the package is the one whose licence is kept.
function(morlan7_dictionary extension package)
  list(TRANSFORM ARGN PREPEND ${MORLAN7_WORDS}/ OUTPUT_VARIABLE lists)
  foreach(words IN LISTS lists)
    if(NOT EXISTS ${words})
      message(WARNING "${words} is missing (see tools/install-dependencies): there will be no dictionary of \"${extension}\".")
      return()
    endif()
  endforeach()
  set(files ${dictionaries}/morlan7s.${extension} ${dictionaries}/morlan7i.${extension})
  add_custom_command(
    OUTPUT ${files}
    COMMAND morlan7-dictionary ${dictionaries} ${extension} ${lists}
    DEPENDS morlan7-dictionary ${lists}
    VERBATIM)
  set(licence /usr/share/doc/${package}/copyright)
  if(EXISTS ${licence})
    set(copy ${dictionaries}/licencja-${extension}.txt)
    add_custom_command(
      OUTPUT ${copy}
      COMMAND ${CMAKE_COMMAND} -E copy ${licence} ${copy}
      DEPENDS ${licence}
      VERBATIM)
    list(APPEND files ${copy})
  endif()
  install(FILES ${files} DESTINATION ${CMAKE_INSTALL_DATADIR}/morlan7/SLOWNIKI)
  list(APPEND tree ${files})
  set(tree ${tree} PARENT_SCOPE)
endfunction()

morlan7_dictionary(pol wpolish polish)
morlan7_dictionary(ang wamerican american-english british-english)
