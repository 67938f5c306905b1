// Any bytes as a flat OpenDocument spreadsheet: they are tables or refused. Tables that were written and read once,
// which drops cells without a column and rows that are empty then, come back the same.

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
        // A header that is too wide is refused only when it is read back; nothing else may be.
        const Tables once = ctl::tables_of_fods(ctl::fods_of_tables(read));
        if (once.size() != read.size()) std::abort();
        const std::string written = ctl::fods_of_tables(once);
        if (ctl::fods_of_tables(ctl::tables_of_fods(written)) != written) std::abort();
    } catch (const TableError&) {
        // What is no workbook.
    }
    return 0;
}
