# One libFuzzer program for each fuzz/fuzz_*.cpp; its corpus is fuzz/corpus/<name without fuzz_>/.
# The other sources of fuzz/ are shared by all.

file(GLOB fuzz_sources CONFIGURE_DEPENDS fuzz/fuzz_*.cpp)
file(GLOB fuzz_shared CONFIGURE_DEPENDS fuzz/*.cpp)
list(REMOVE_ITEM fuzz_shared ${fuzz_sources})

# Those of the tests' support that the fuzzers need; the others need GoogleTest.
list(APPEND fuzz_shared tests/support/fake_files.cpp tests/support/filled_disc.cpp tests/support/disc_tables.cpp)

add_compile_options(-fsanitize=fuzzer-no-link)
foreach(storey kalco_disc kalco_work kalco_editor)
    target_compile_options(${storey} PRIVATE -fsanitize=fuzzer-no-link)
endforeach()
include(cmake/ctl.cmake)

add_custom_target(fuzzers)
foreach(source ${fuzz_sources})
    get_filename_component(name ${source} NAME_WE)
    add_executable(${name} ${source} ${fuzz_shared})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE kalco_ctl kalco_script kalco_warnings)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    add_dependencies(fuzzers ${name})
endforeach()
