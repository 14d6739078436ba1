# Pages that people really publish, out of Debian's documentation packages. They are fetched once into the build folder;
# where that cannot be done the test is reported as skipped.
if(NOT MORLAN7_SANITIZE AND NOT MORLAN7_COVERAGE)
  find_package(Python3 COMPONENTS Interpreter REQUIRED)
  add_test(NAME real-pages COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_LIST_DIR}/realpages/realpages.py
    --program $<TARGET_FILE:morlan7-script> --cache ${PROJECT_BINARY_DIR}/realpages)
  set_tests_properties(real-pages PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 600)
endif()
