# Tests of the desktop front end. They drive the real widgets on a screen in memory.
find_package(Qt6 REQUIRED COMPONENTS Widgets PrintSupport Svg DBus)

file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/desktop/*_test.cpp)
file(GLOB support CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/support/*.cpp ${PROJECT_SOURCE_DIR}/tests/desktop/support/*.cpp)
add_executable(tests_desktop ${sources} ${support})
target_link_libraries(tests_desktop PRIVATE assemble qt icons posix script Qt6::PrintSupport GTest::gtest)
target_compile_definitions(tests_desktop PRIVATE MORLAN7_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
add_test(NAME desktop COMMAND tests_desktop)
set_tests_properties(desktop PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_SCALE_FACTOR=1")
