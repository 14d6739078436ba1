# Where the desktop finds the program: menu entry, icon, file types.
set(packaging ${CMAKE_CURRENT_LIST_DIR})
install(FILES ${packaging}/morlan7.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/morlan7.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(FILES ${PROJECT_SOURCE_DIR}/data/icons/morlan7.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
# A package builder does this on the user's machine; a plain install does it at once.
install(CODE [[
  if(NOT "$ENV{DESTDIR}")
    foreach(tool IN ITEMS "update-desktop-database applications" "update-mime-database mime")
      string(REPLACE " " ";" tool ${tool})
      list(GET tool 0 name)
      list(GET tool 1 folder)
      find_program(found_${name} ${name})
      if(found_${name})
        execute_process(COMMAND ${found_${name}} ${CMAKE_INSTALL_PREFIX}/share/${folder} OUTPUT_QUIET ERROR_QUIET)
      endif()
    endforeach()
  endif()
]])
