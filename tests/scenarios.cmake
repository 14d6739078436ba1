# Each tests/scenarios/NAME.script is one test: its transcript must be that of NAME.expected. What the script opens lies in
# the folder tests/scenarios/NAME, if there is one; its own options stand in a line "# options: ...".
file(GLOB scenarios CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/scenarios/*.script)
foreach(scenario IN LISTS scenarios)
  get_filename_component(name ${scenario} NAME_WE)
  add_test(
    NAME scenario.${name}
    COMMAND
      ${CMAKE_COMMAND} -DPROGRAM=$<TARGET_FILE:morlan7-script> -DSCENARIO=${scenario}
      -DFOLDER=${PROJECT_BINARY_DIR}/scenarios -P ${PROJECT_SOURCE_DIR}/tests/runscenario.cmake)
  set_tests_properties(scenario.${name} PROPERTIES ENVIRONMENT MORLAN7_DATA=${MORLAN7_TREE} TIMEOUT 60)
endforeach()

add_test(
  NAME scriptoptions
  COMMAND ${CMAKE_COMMAND} -DPROGRAM=$<TARGET_FILE:morlan7-script> -DFOLDER=${PROJECT_BINARY_DIR}/scriptoptions -P
          ${PROJECT_SOURCE_DIR}/tests/scriptoptions.cmake)
set_tests_properties(scriptoptions PROPERTIES ENVIRONMENT MORLAN7_DATA=${MORLAN7_TREE} TIMEOUT 60)
