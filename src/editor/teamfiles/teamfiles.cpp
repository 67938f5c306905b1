#include "editor/teamfiles/teamfiles.h"

#include "editor/teamfiles/import_save.h"
#include "editor/teamfiles/team_exchange.h"
#include "editor/teamfiles/transfers.h"

namespace kalco {

void connect_teamfiles(frmKalco& form) {
    connect_team_exchange(form);
    connect_import_save(form);
    connect_transfers(form);
}

}  // namespace kalco
