// Any bytes as a story: all its saves taken back give the image of the start, and all made again that of the end.

#include "fuzz/input.h"
#include "support/filled_disc.h"
#include "support/memory_storage.h"
#include "support/random_story.h"
#include "support/temporary_home.h"

using namespace kalco;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::string image = test::filled_image();
    static const test::TemporaryHome home;
    fuzz::Bytes bytes(data, size);
    test::Disc disc;
    disc.bytes = image;
    test::Desk desk(home, test::opener_of(disc), "disc.bin");
    test::RandomStory story(desk, [&bytes] { return static_cast<unsigned>(bytes.next() << 8 | bytes.next()); });
    for (std::size_t action = 0; action < size / 4; ++action) {
        // An error that nothing catches ends the program, and its history with it.
        if (fuzz::attempt([&story] { story.act(); }) != 0) break;
    }
    if (!desk.form.image.is_open()) return 0;
    const std::string end = disc.bytes;
    int saves = 0;
    while (desk.form.history.undo()) ++saves;
    fuzz::require(disc.bytes == image);
    while (desk.form.history.redo()) --saves;
    fuzz::require(disc.bytes == end);
    fuzz::require(saves == 0);
    return 0;
}
