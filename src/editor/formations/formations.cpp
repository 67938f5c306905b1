#include "editor/formations/formations.h"

#include "editor/formations/bars.h"
#include "editor/formations/bars_file.h"
#include "editor/formations/pitch.h"

namespace kalco {

void connect_formations(frmKalco& form) {
    connect_pitch(form);
    connect_bars(form);
    connect_bars_file(form);
}

}  // namespace kalco
