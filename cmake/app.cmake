# The window. Everything but main.cpp is a library, so that the window tests link what the program runs.

file(GLOB_RECURSE app_sources CONFIGURE_DEPENDS app/*.cpp app/*.h)
file(GLOB_RECURSE app_forms CONFIGURE_DEPENDS app/*.ui)
file(GLOB app_resources CONFIGURE_DEPENDS assets/*.qrc app/*.qrc)
set(app_main ${PROJECT_SOURCE_DIR}/app/main.cpp)
list(REMOVE_ITEM app_sources ${app_main})

find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets Svg SvgWidgets)

add_library(kalco_app STATIC ${app_sources} ${app_forms})
set_target_properties(kalco_app PROPERTIES
    AUTOMOC ON AUTOUIC ON AUTOUIC_SEARCH_PATHS "${PROJECT_SOURCE_DIR}/app/forms;${PROJECT_SOURCE_DIR}/app")
target_include_directories(kalco_app PUBLIC ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/app)
# The window model has a member named as one of Qt's macros.
target_compile_definitions(kalco_app PUBLIC QT_NO_KEYWORDS)
target_link_libraries(kalco_app PUBLIC kalco_editor kalco_ctl Qt6::Core Qt6::Gui Qt6::Widgets Qt6::Svg Qt6::SvgWidgets
                                PRIVATE kalco_warnings)
compile_together(kalco_app 24)
if(KALCO_PCH)
    target_precompile_headers(kalco_app PRIVATE <QtWidgets/QtWidgets> <functional> <map> <memory> <string> <vector>)
endif()

# Objects, not an archive: the linker drops the registration of resources that nothing refers to.
add_library(kalco_pictures OBJECT ${app_resources})
set_target_properties(kalco_pictures PROPERTIES AUTORCC ON LINKER_LANGUAGE CXX)
target_link_libraries(kalco_pictures PRIVATE Qt6::Core)
target_link_libraries(kalco_app INTERFACE $<TARGET_OBJECTS:kalco_pictures>)
add_dependencies(kalco_app kalco_pictures)

add_executable(kalco ${app_main})
target_link_libraries(kalco PRIVATE kalco_app kalco_warnings)
install(TARGETS kalco RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
# The Italian words of Qt's own dialogs come along.
find_file(KALCO_QT_WORDS qtbase_it.qm
    HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_TRANSLATIONS} ${QT6_INSTALL_PREFIX}/share/qt6/translations)
if(KALCO_QT_WORDS)
    install(FILES ${KALCO_QT_WORDS} DESTINATION ${CMAKE_INSTALL_DATADIR}/kalco/translations)
else()
    message(STATUS "Qt's Italian translation is missing: its dialogs will speak English where the system has none")
endif()
