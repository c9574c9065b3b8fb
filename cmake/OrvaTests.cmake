# orva_add_test(NAME SOURCES... [LIBS ...]): a GoogleTest executable registered with CTest,
# run headless (Qt's offscreen platform) in the C locale.
find_package(GTest REQUIRED)
include(GoogleTest)

function(orva_add_test nom)
  cmake_parse_arguments(T "" "" "LIBS" ${ARGN})
  add_executable(${nom} ${T_UNPARSED_ARGUMENTS})
  target_link_libraries(${nom} PRIVATE orvalogique orvareferences GTest::gtest GTest::gtest_main orva_options ${T_LIBS})
  target_compile_definitions(${nom} PRIVATE ORVA_TESTS_DIR="${CMAKE_SOURCE_DIR}/tests")
  gtest_discover_tests(${nom}
    TEST_PREFIX "${nom}."
    PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C;ORVA_BIN=$<TARGET_FILE:orva>"
    DISCOVERY_TIMEOUT 60)
endfunction()

# orva_add_scenario_test(NAME SCRIPT): runs `orva --script` on a scenario of tests/scenarios
# and compares its events with the file of the same name ending in .attendu.
function(orva_add_scenario_test nom script)
  add_test(NAME ${nom}
    COMMAND ${CMAKE_COMMAND} -DORVA=$<TARGET_FILE:orva> -DSCRIPT=${script}
            -DSOURCE=${CMAKE_SOURCE_DIR} -DTRAVAIL=${CMAKE_CURRENT_BINARY_DIR}/scenarios
            -P ${CMAKE_SOURCE_DIR}/cmake/CompareScenario.cmake)
  set_tests_properties(${nom} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C")
endfunction()
