// Any bytes as a script on a small image: it ends with one of the three exit statuses.

#include <sstream>

#include "ctl/script/script_runner.h"
#include "fuzz/editor_desk.h"

using namespace kalco;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 4096) return 0;
    std::istringstream script("choose \"disc.bin\"\nstart\n" + fuzz::Bytes(data, size).rest());
    std::ostringstream out;
    std::ostringstream complaints;
    test::Disc disc;
    disc.bytes = std::string(4096, 'K');
    script::ScriptPlatform platform(fuzz::EditorDesk::home().path(), out);
    Editor editor(platform, test::opener_of(disc));
    script::ModelStage stage(editor.form);
    const int status = script::run_script(script, stage, platform, out, complaints);
    fuzz::require(status >= script::exit_done && status <= script::exit_unrunnable);
    fuzz::require((status == script::exit_unrunnable) == !complaints.str().empty());
    fuzz::require(!disc.held);
    return 0;
}
