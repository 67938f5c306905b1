#include "ctl/open_image.h"

#include "ctl/command.h"
#include "disc/image/file_error.h"
#include "work/container.h"
#include "work/sheets/sheets.h"

namespace kalco::ctl {

void open_image(Image& image, const std::string& path, std::string_view command) {
    image.open(path);
    const ContainerReport report = look_at_container(image.length(), [&image](std::int64_t offset, std::size_t bytes) {
        return image.read(offset + 1, static_cast<int>(bytes));
    });
    if (!report.refusal.empty()) throw FileError(path, report.refusal);
    if (!report.volume_descriptor) {
        complain(command, path + ": it has no volume descriptor; is it the game's image?");
    }
    if (image.found() == Beside::interrupted_save) {
        complain(command, path + ": a save that was interrupted has been taken back");
    }
    if (image.found() == Beside::foreign_file) {
        complain(command, path + ": a file with the name of its journal lies beside it; nothing can be saved");
    }
}

DiscBytes read_disc(const std::string& path, std::string_view command) {
    Image image(open_to_read);
    open_image(image, path, command);
    return read_sheets(image);
}

}  // namespace kalco::ctl
