# kalco_bench: the times of the selections and saves beside bare loops of the same reads and writes.

find_package(benchmark REQUIRED)
file(GLOB bench_sources CONFIGURE_DEPENDS bench/*.cpp)
if(bench_sources)
    add_executable(kalco_bench ${bench_sources})
    target_include_directories(kalco_bench PRIVATE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(kalco_bench PRIVATE
        $<TARGET_NAME_IF_EXISTS:kalco_ctl> kalco_core benchmark::benchmark kalco_warnings)
endif()
