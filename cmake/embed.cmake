# Files of assets/ that are compiled into kalco_work; see src/work/embedded.h.

function(embed folder function)
    file(GLOB files CONFIGURE_DEPENDS ${folder}/*)
    set(source ${CMAKE_BINARY_DIR}/generated/${function}.cpp)
    set(script ${PROJECT_SOURCE_DIR}/cmake/embed_files.cmake)
    add_custom_command(OUTPUT ${source}
        COMMAND ${CMAKE_COMMAND} -D FOLDER=${folder} -D FUNCTION=${function} -D OUTPUT=${source} -P ${script}
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
        DEPENDS ${files} ${script}
        VERBATIM)
    target_sources(kalco_work PRIVATE ${source})
endfunction()

embed(assets/portrait portrait_parts)
embed(assets/report report_files)
