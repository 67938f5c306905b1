// Any bytes as a flat OpenDocument spreadsheet: they are tables or refused, and tables written once come back the same.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "ctl/fods/fods_reader.h"
#include "ctl/fods/fods_writer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kalco;
    try {
        const Tables read = ctl::tables_of_fods(std::string(data, data + size));
        const std::string written = ctl::fods_of_tables(read);
        // A header that is too wide is refused only when it is read back; nothing else may be.
        const std::string again = ctl::fods_of_tables(ctl::tables_of_fods(written));
        if (again != written) std::abort();
    } catch (const TableError&) {
        // What is no workbook.
    }
    return 0;
}
