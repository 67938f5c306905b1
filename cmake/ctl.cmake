# kalcoctl. Its parts are a library too, so that tests and window_script can share the script language.

find_package(CLI11 REQUIRED)
find_package(nlohmann_json REQUIRED)

file(GLOB_RECURSE ctl_sources CONFIGURE_DEPENDS ctl/*.cpp ctl/*.h)
set(ctl_main ${PROJECT_SOURCE_DIR}/ctl/main.cpp)
list(REMOVE_ITEM ctl_sources ${ctl_main})
set(ctl_library_sources ${ctl_sources})
list(FILTER ctl_library_sources INCLUDE REGEX "\\.cpp$")

if(ctl_library_sources)
    add_library(kalco_ctl STATIC ${ctl_sources})
    target_include_directories(kalco_ctl PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(kalco_ctl PUBLIC kalco_core nlohmann_json::nlohmann_json CLI11::CLI11 PRIVATE kalco_warnings)
endif()

if(EXISTS ${ctl_main})
    add_executable(kalcoctl ${ctl_main})
    target_include_directories(kalcoctl PRIVATE ${PROJECT_SOURCE_DIR})
    target_compile_definitions(kalcoctl PRIVATE KALCO_VERSION="${PROJECT_VERSION}")
    target_link_libraries(kalcoctl PRIVATE
        $<TARGET_NAME_IF_EXISTS:kalco_ctl> kalco_core nlohmann_json::nlohmann_json CLI11::CLI11 kalco_warnings)
    install(TARGETS kalcoctl RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
