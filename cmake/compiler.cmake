# Flags for every target of the project.

add_library(kalco_warnings INTERFACE)
target_compile_options(kalco_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion $<$<BOOL:${KALCO_WERROR}>:-Werror>)

if(KALCO_SANITIZE)
    add_compile_options(-fsanitize=${KALCO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${KALCO_SANITIZE})
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
    # Dozens of programs with a sanitizer in each: the usual linker takes minutes for them.
    find_program(KALCO_LLD ld.lld)
    if(KALCO_LLD)
        add_link_options(-fuse-ld=lld)
    endif()
endif()

if(KALCO_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()

# ccache is optional. It needs telling that a precompiled header may stand for its text.
find_program(KALCO_CCACHE ccache)
if(KALCO_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${KALCO_CCACHE})
endif()
if(KALCO_PCH AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fpch-preprocess)
endif()
