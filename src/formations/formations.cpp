#include "formations/formations.h"

#include "formations/bars.h"
#include "formations/bars_file.h"
#include "formations/pitch.h"

namespace kalco {

void connect_formations(frmKalco& form) {
    connect_pitch(form);
    connect_bars(form);
    connect_bars_file(form);
}

}  // namespace kalco
