// Any bytes as a script on a small image: it ends with one of the three exit statuses.

#include <sstream>

#include "ctl/script/script_runner.h"
#include "fuzz/desk.h"

using namespace kalco;

namespace {

class MemoryPlatform final : public script::ScriptPlatform {
public:
    explicit MemoryPlatform(std::ostream& out) : ScriptPlatform("home", out) {}
    SideFiles& side_files() const override { return files_; }

private:
    mutable fuzz::MemoryFiles files_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 4096) return 0;
    std::istringstream script("choose \"disc.bin\"\nstart\n" + fuzz::Bytes(data, size).rest());
    std::ostringstream out;
    std::ostringstream complaints;
    fuzz::Disc disc;
    disc.fill("K", 4096);
    MemoryPlatform platform(out);
    Editor editor(platform, fuzz::opener_of(disc));
    script::ModelStage stage(editor.form);
    const int status = script::run_script(script, stage, platform, complaints);
    fuzz::require(status >= script::exit_done && status <= script::exit_unrunnable, "the status is one of three");
    fuzz::require((status == script::exit_unrunnable) == !complaints.str().empty(),
                  "a script that can't be run is complained of, and only such a one");
    fuzz::require(!disc.held, "the image is closed at the end");
    return 0;
}
