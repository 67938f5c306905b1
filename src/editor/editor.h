#pragma once

#include "editor/window/frmKalco.h"

namespace kalco {

/// The whole editor: the window model with the handlers of every subsystem attached. The window program and the script
/// runner both stand on it and act on it through window/user.h only.
class Editor {
public:
    explicit Editor(Platform& platform, StorageOpener opener = open_file);

    frmKalco form;
};

}  // namespace kalco
