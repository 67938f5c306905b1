# Tests. ctest labels: core, stories, window, lint. Counts of single tests are in results/*.xml (JUnit).

find_package(Python3 REQUIRED COMPONENTS Interpreter)
find_package(GTest)

set(results ${CMAKE_BINARY_DIR}/results)
file(MAKE_DIRECTORY ${results})
set(test_bin ${CMAKE_BINARY_DIR}/tests)
# The offscreen platform's own screen is smaller than any that is sold.
set(screens ${PROJECT_SOURCE_DIR}/tests/app/screens)
set(test_env LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen:configfile=${screens}/1920x1080.json
    ASAN_OPTIONS=malloc_context_size=12 UBSAN_OPTIONS=print_stacktrace=1
    LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0)

# core_tests: one program for each folder of tests/core, core_<folder>_tests, so that a change builds what it touches.
# The slow one runs in shards, side by side.
file(GLOB support_sources CONFIGURE_DEPENDS tests/support/*.cpp)
file(GLOB_RECURSE shared_sources CONFIGURE_DEPENDS tests/core/*.cpp)
list(FILTER shared_sources EXCLUDE REGEX "_test\\.cpp$")
add_custom_target(core_tests)
if(NOT GTest_FOUND)
    message(STATUS "GoogleTest is missing: the core tests are left out")
else()
    add_library(core_support STATIC ${support_sources} ${shared_sources})
    target_include_directories(core_support PUBLIC tests ${PROJECT_SOURCE_DIR})
    target_link_libraries(core_support PUBLIC kalco_ctl kalco_script kalco_editor kalco_work GTest::gtest
                                       PRIVATE kalco_warnings)
    compile_together(core_support 12)
    if(KALCO_PCH)
        target_precompile_headers(core_support PRIVATE
            <gtest/gtest.h> <nlohmann/json.hpp> <array> <filesystem> <fstream> <functional> <random> <span> <string>
            <vector>)
    endif()
    file(GLOB core_folders CONFIGURE_DEPENDS LIST_DIRECTORIES true tests/core/*)
    set(shards_of_editor 4)
    foreach(path ${core_folders})
        get_filename_component(folder ${path} NAME)
        file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${path}/*_test.cpp)
        set(program core_${folder}_tests)
        add_executable(${program} ${sources})
        compile_together(${program} 12)
        set_target_properties(${program} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${test_bin})
        target_link_libraries(${program} PRIVATE core_support GTest::gtest_main kalco_warnings)
        if(KALCO_PCH)
            target_precompile_headers(${program} REUSE_FROM core_support)
        endif()
        add_dependencies(core_tests ${program})
        set(shards 1)
        if(DEFINED shards_of_${folder})
            set(shards ${shards_of_${folder}})
        endif()
        foreach(shard RANGE 1 ${shards})
            math(EXPR index "${shard} - 1")
            add_test(NAME core_${folder}_${shard} COMMAND ${program} --gtest_brief=1
                --gtest_output=xml:${results}/core_${folder}_${shard}.xml)
            set_tests_properties(core_${folder}_${shard} PROPERTIES LABELS core TIMEOUT 600
                ENVIRONMENT "${test_env};GTEST_TOTAL_SHARDS=${shards};GTEST_SHARD_INDEX=${index}")
        endforeach()
    endforeach()
endif()

# Script stories, through kalcoctl and through the real window.
function(add_stories name program label)
    add_test(NAME ${name} COMMAND Python3::Interpreter ${PROJECT_SOURCE_DIR}/tests/run_stories.py
        --program $<TARGET_FILE:${program}> --kalcoctl $<TARGET_FILE:kalcoctl> --junit ${results}/${name}.xml)
    set_tests_properties(${name} PROPERTIES LABELS ${label} TIMEOUT 900 ENVIRONMENT "${test_env}" PROCESSORS 2)
endfunction()

add_stories(stories_kalcoctl kalcoctl stories)
add_test(NAME kalcoctl_links COMMAND Python3::Interpreter ${PROJECT_SOURCE_DIR}/tests/check_links.py
    $<TARGET_FILE:kalcoctl>)
set_tests_properties(kalcoctl_links PROPERTIES LABELS stories)
# The real program under the faults of a system.
add_test(NAME programs COMMAND Python3::Interpreter -B ${PROJECT_SOURCE_DIR}/tests/run_programs.py
    --kalcoctl $<TARGET_FILE:kalcoctl> --junit ${results}/programs.xml)
set_tests_properties(programs PROPERTIES LABELS stories TIMEOUT 900 ENVIRONMENT "${test_env}")

# The linker would take a reference upwards as long as the program links the editor too.
add_test(NAME storeys COMMAND Python3::Interpreter -B ${PROJECT_SOURCE_DIR}/tests/check_storeys.py
    $<TARGET_FILE:kalco_editor> $<TARGET_FILE:kalco_disc> $<TARGET_FILE:kalco_work> $<TARGET_FILE:kalco_ctl>)
set_tests_properties(storeys PROPERTIES LABELS stories)

add_test(NAME include_rule COMMAND Python3::Interpreter ${PROJECT_SOURCE_DIR}/tests/check_includes.py
    ${PROJECT_SOURCE_DIR})
set_tests_properties(include_rule PROPERTIES LABELS lint)
file(GLOB script_tests CONFIGURE_DEPENDS tests/*_test.py)
foreach(source ${script_tests})
    get_filename_component(name ${source} NAME_WE)
    add_test(NAME ${name} COMMAND Python3::Interpreter -B ${source})
    set_tests_properties(${name} PROPERTIES LABELS lint)
endforeach()

if(NOT TARGET kalco_app)
    return()
endif()

# Window tests, all on the offscreen platform. What the programs of this folder share is tests/app/support/.
find_package(Qt6 REQUIRED COMPONENTS Test)
file(GLOB app_support_sources CONFIGURE_DEPENDS tests/app/support/*.cpp tests/app/support/*.h)
add_library(kalco_window_support STATIC ${app_support_sources})
target_include_directories(kalco_window_support PUBLIC ${PROJECT_SOURCE_DIR}/tests)
target_link_libraries(kalco_window_support PUBLIC kalco_ctl kalco_script kalco_app Qt6::Test PRIVATE kalco_warnings)
if(KALCO_PCH)
    target_precompile_headers(kalco_window_support REUSE_FROM kalco_app)
endif()

function(add_window_program name)
    add_executable(${name} ${ARGN})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${test_bin})
    target_link_libraries(${name} PRIVATE kalco_window_support kalco_warnings)
    if(KALCO_PCH)
        target_precompile_headers(${name} REUSE_FROM kalco_app)
    endif()
endfunction()

foreach(tool window_script window_picture sheets_picture)
    file(GLOB tool_sources CONFIGURE_DEPENDS tests/app/${tool}/*.cpp tests/app/${tool}/*.h)
    add_window_program(${tool} ${tool_sources})
endforeach()
add_stories(stories_window window_script window)

# All in one program: reading Qt's headers and making their templates takes longer than the tests themselves.
file(GLOB window_tests CONFIGURE_DEPENDS tests/app/test_*.cpp)
# The images in memory of the tools' tests are those of the core tests.
add_window_program(window_tests tests/app/window_tests.cpp ${window_tests} tests/support/sheet_disc.cpp)
compile_together(window_tests 12)
# AUTOMOC would read all headers below each test first. The classes of the tests can be told without.
set(moc_folder ${CMAKE_CURRENT_BINARY_DIR}/window_tests_moc)
foreach(source ${window_tests})
    get_filename_component(name ${source} NAME_WE)
    qt6_generate_moc(${source} ${moc_folder}/${name}.moc)
    target_sources(window_tests PRIVATE ${moc_folder}/${name}.moc)
endforeach()
target_include_directories(window_tests PRIVATE ${moc_folder})
target_compile_definitions(window_tests PRIVATE
    KALCO_PROGRAM="$<TARGET_FILE:kalco>" KALCO_SOURCE="${PROJECT_SOURCE_DIR}")
add_dependencies(window_tests kalco)

# add_window_test NAME FILE [OPTION...]: the tests of a file, or those that the options name.
function(add_window_test name file)
    add_test(NAME ${name} COMMAND window_tests ${file} ${ARGN} -o ${results}/${name}.xml,junitxml -o -,txt)
    set_tests_properties(${name} PROPERTIES LABELS window TIMEOUT 600 ENVIRONMENT "${test_env}")
endfunction()

foreach(source ${window_tests})
    get_filename_component(name ${source} NAME_WE)
    add_window_test(${name} ${name})
endforeach()
# test_screens on the small screens that Kalco is to fit, test_layout with everything twice as large.
foreach(screen 1024x768 1366x768-144dpi 1920x1080-scale2)
    add_window_test(test_screens_${screen} test_screens)
    set_tests_properties(test_screens_${screen} PROPERTIES
        ENVIRONMENT "${test_env};QT_QPA_PLATFORM=offscreen:configfile=${screens}/${screen}.json")
endforeach()
add_window_test(test_layout_200_percent test_layout no_text_is_cut lists_grow_and_fields_do_not)
set_tests_properties(test_layout_200_percent PROPERTIES ENVIRONMENT "${test_env};QT_SCALE_FACTOR=2")
