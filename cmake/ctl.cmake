# kalcoctl. Its parts are libraries too, so that tests and window_script can share them: kalco_ctl works on the disc
# without the editor, kalco_script drives the editor.

find_package(CLI11 REQUIRED)
find_package(nlohmann_json REQUIRED)
find_package(pugixml REQUIRED)

file(GLOB_RECURSE ctl_sources CONFIGURE_DEPENDS ctl/*.cpp ctl/*.h)
list(REMOVE_ITEM ctl_sources ${PROJECT_SOURCE_DIR}/ctl/main.cpp)
set(script_sources ${ctl_sources})
list(FILTER script_sources INCLUDE REGEX "/ctl/script/")
list(FILTER ctl_sources EXCLUDE REGEX "/ctl/script/")
# Those that declare options to the parser stand together: compiling the parser takes longer than all that use it.
set(command_sources ${ctl_sources})
list(FILTER command_sources INCLUDE REGEX "_(command|options)\\.cpp$")
list(REMOVE_ITEM ctl_sources ${command_sources})
list(PREPEND ctl_sources ${command_sources})

add_library(kalco_ctl STATIC ${ctl_sources})
target_link_libraries(kalco_ctl PUBLIC kalco_work pugixml::pugixml)
add_library(kalco_script STATIC ${script_sources})
target_link_libraries(kalco_script PUBLIC kalco_ctl kalco_editor)
foreach(part kalco_ctl kalco_script)
    target_include_directories(${part} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${part} PUBLIC nlohmann_json::nlohmann_json CLI11::CLI11 PRIVATE kalco_warnings)
endforeach()

target_compile_definitions(kalco_ctl PUBLIC KALCO_VERSION="${PROJECT_VERSION}")
compile_together(kalco_ctl 12)
compile_together(kalco_script 12)
if(KALCO_PCH)
    target_precompile_headers(kalco_ctl PRIVATE <CLI/CLI.hpp> <nlohmann/json.hpp>)
    target_precompile_headers(kalco_script REUSE_FROM kalco_ctl)
endif()

add_executable(kalcoctl ${PROJECT_SOURCE_DIR}/ctl/main.cpp)
target_link_libraries(kalcoctl PRIVATE kalco_ctl kalco_script kalco_warnings)
if(KALCO_PCH)
    target_precompile_headers(kalcoctl REUSE_FROM kalco_ctl)
endif()
install(TARGETS kalcoctl RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
