# One libFuzzer program for each fuzz/fuzz_*.cpp; its corpus is fuzz/corpus/<name without fuzz_>/.
# The other sources of fuzz/ are shared by all.

file(GLOB fuzz_sources CONFIGURE_DEPENDS fuzz/fuzz_*.cpp)
file(GLOB fuzz_shared CONFIGURE_DEPENDS fuzz/*.cpp)
if(fuzz_sources)
    list(REMOVE_ITEM fuzz_shared ${fuzz_sources})
endif()

add_compile_options(-fsanitize=fuzzer-no-link)
target_compile_options(kalco_core PRIVATE -fsanitize=fuzzer-no-link)
if(EXISTS ${PROJECT_SOURCE_DIR}/ctl)
    include(cmake/ctl.cmake)
endif()

add_custom_target(fuzzers)
foreach(source ${fuzz_sources})
    get_filename_component(name ${source} NAME_WE)
    add_executable(${name} ${source} ${fuzz_shared})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE $<TARGET_NAME_IF_EXISTS:kalco_ctl> kalco_core kalco_warnings)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    add_dependencies(fuzzers ${name})
endforeach()
