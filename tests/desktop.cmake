# Tests of the desktop front end. They drive the real widgets on a screen in memory.
find_package(Qt6 REQUIRED COMPONENTS Widgets PrintSupport Svg DBus)

file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/desktop/*_test.cpp)
if(NOT TARGET webview)
  list(FILTER sources EXCLUDE REGEX internalviewer_test)
endif()
file(GLOB support CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/support/*.cpp ${PROJECT_SOURCE_DIR}/tests/desktop/support/*.cpp)
add_executable(tests_desktop ${sources} ${support})
target_link_libraries(tests_desktop PRIVATE assemble qt icons posix script Qt6::PrintSupport GTest::gtest)
target_compile_definitions(tests_desktop PRIVATE MORLAN7_SOURCE_DIR="${PROJECT_SOURCE_DIR}" MORLAN7_PLUGINS="${PROJECT_BINARY_DIR}/bin")
add_dependencies(tests_desktop shipped-tree)
if(TARGET webview)
  add_dependencies(tests_desktop webview)
endif()
add_test(NAME desktop COMMAND tests_desktop)
set_tests_properties(desktop PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_SCALE_FACTOR=1")

# Every form once more at the scales that desktops use; the plain run above has seen them at 1.
foreach(scale IN ITEMS 1.25 1.5 2)
  add_test(NAME forms-${scale} COMMAND tests_desktop --gtest_filter=AllForms.*)
  set_tests_properties(forms-${scale} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_SCALE_FACTOR=${scale}")
endforeach()

# Takes the pictures for tools/picture-forms.
add_executable(picture_forms ${PROJECT_SOURCE_DIR}/tests/desktop/support/pictures/picture_forms.cpp ${PROJECT_SOURCE_DIR}/tests/desktop/support/formtour.cpp)
target_link_libraries(picture_forms PRIVATE assemble qt icons posix)
add_dependencies(picture_forms shipped-tree)
