# kalco_bench: the times of the selections and saves beside bare loops of the same reads and writes.

find_package(benchmark REQUIRED)
file(GLOB bench_sources CONFIGURE_DEPENDS bench/*.cpp)
add_executable(kalco_bench ${bench_sources})
target_include_directories(kalco_bench PRIVATE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/tests)
target_link_libraries(kalco_bench PRIVATE kalco_ctl kalco_script benchmark::benchmark kalco_warnings)
compile_together(kalco_bench 12)

# kalco_window_bench: the actions with the real widgets; run it with QT_QPA_PLATFORM=offscreen.
if(TARGET kalco_app)
    find_package(Qt6 REQUIRED COMPONENTS Test)
    file(GLOB window_bench_sources CONFIGURE_DEPENDS bench/window/*.cpp tests/app/support/*.cpp tests/app/support/*.h)
    add_executable(kalco_window_bench ${window_bench_sources})
    target_include_directories(kalco_window_bench PRIVATE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(kalco_window_bench PRIVATE
        kalco_ctl kalco_script kalco_app Qt6::Test benchmark::benchmark kalco_warnings)
    compile_together(kalco_window_bench 12)
    if(KALCO_PCH)
        target_precompile_headers(kalco_window_bench REUSE_FROM kalco_app)
    endif()
endif()
