#include "editor.h"

#include <utility>

#include "window/shell.h"

namespace kalco {

Editor::Editor(Platform& platform, StorageOpener opener) : form(platform, std::move(opener)) {
    connect_window(form);
}

}  // namespace kalco
