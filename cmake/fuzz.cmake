# One libFuzzer program for each fuzz/fuzz_*.cpp; its corpus is fuzz/corpus/<name without fuzz_>/.
# The other sources of fuzz/ are shared by all.

file(GLOB fuzz_sources CONFIGURE_DEPENDS fuzz/fuzz_*.cpp)
file(GLOB fuzz_shared CONFIGURE_DEPENDS fuzz/*.cpp)
list(REMOVE_ITEM fuzz_shared ${fuzz_sources})

# Those of the tests' support that the fuzzers need; the others need GoogleTest.
list(APPEND fuzz_shared tests/support/fake_files.cpp tests/support/filled_disc.cpp tests/support/disc_tables.cpp)

# What is looked for is in the program: the fuzzers' own code guides nothing and would be half of a run's time.
# Comparisons of numbers are not watched, which would be a third of it and would slow the tests too; the words of texts
# are learnt all the same, from memcmp.
foreach(target kalco_disc kalco_work kalco_editor kalco_ctl kalco_script kalcoctl)
    target_compile_options(${target} PRIVATE -fsanitize-coverage=inline-8bit-counters,pc-table)
endforeach()

add_library(fuzz_support STATIC ${fuzz_shared})
target_include_directories(fuzz_support PUBLIC ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/tests)
target_compile_options(fuzz_support PRIVATE -O1)
target_link_libraries(fuzz_support PUBLIC kalco_ctl kalco_script PRIVATE kalco_warnings)
compile_together(fuzz_support 12)
if(KALCO_PCH)
    target_precompile_headers(fuzz_support PRIVATE ${PROJECT_SOURCE_DIR}/fuzz/desk.h)
endif()

add_custom_target(fuzzers)
foreach(source ${fuzz_sources})
    get_filename_component(name ${source} NAME_WE)
    add_executable(${name} ${source})
    target_compile_options(${name} PRIVATE -O1)
    target_link_libraries(${name} PRIVATE fuzz_support kalco_warnings)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    if(KALCO_PCH)
        target_precompile_headers(${name} REUSE_FROM fuzz_support)
    endif()
    add_dependencies(fuzzers ${name})
endforeach()
