#include "ctl/open_image.h"

#include "ctl/command.h"
#include "disc/image/file_error.h"
#include "work/sheets/sheets.h"

namespace kalco::ctl {

void open_image(Image& image, const std::string& path, std::string_view command, std::int64_t least_sectors) {
    image.open(path);
    switch (image.found()) {
        case Beside::nothing: break;
        case Beside::interrupted_save:
            complain(command, path + ": a save that was interrupted has been taken back");
            break;
        case Beside::foreign_file:
            complain(command, path + ": a file with the name of its journal lies beside it; nothing can be saved");
            break;
    }
    const FileBytes bytes = [&image](std::int64_t offset, std::size_t count) {
        return image.read(offset + 1, static_cast<int>(count));
    };
    const ContainerReport report = look_at_container(image.length(), bytes, least_sectors);
    if (!report.refusal.empty()) throw FileError(path, report.refusal);
    if (!report.volume_descriptor) complain(command, path + ": it has no volume descriptor; is it the game's image?");
}

DiscBytes read_disc(const std::string& path, std::string_view command) {
    Image image(open_to_read);
    open_image(image, path, command);
    return read_sheets(image);
}

}  // namespace kalco::ctl
