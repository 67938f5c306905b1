# cmake -D FOLDER=<folder> -D FUNCTION=<name> -D OUTPUT=<file.cpp> -P embed_files.cmake: the texts of a folder as C++
# data, by name. The function stands in work/embedded.h.

file(GLOB files ${FOLDER}/*)
list(SORT files)
set(rows "")
foreach(file ${files})
    get_filename_component(name ${file} NAME_WE)
    file(READ ${file} text)
    string(APPEND rows "    {\"${name}\", R\"embedded(${text})embedded\"},\n")
endforeach()
list(LENGTH files count)
file(WRITE ${OUTPUT} "// Made of ${FOLDER} by cmake/embed_files.cmake.
#include \"work/embedded.h\"

#include <array>

namespace kalco {
namespace {

constexpr std::array<EmbeddedFile, ${count}> files_of_${FUNCTION}{{
${rows}}};

}  // namespace

std::span<const EmbeddedFile> ${FUNCTION}() {
    return files_of_${FUNCTION};
}

}  // namespace kalco
")
