#include "teamfiles/teamfiles.h"

#include "teamfiles/import_save.h"
#include "teamfiles/team_exchange.h"
#include "teamfiles/transfers.h"

namespace kalco {

void connect_teamfiles(frmKalco& form) {
    connect_team_exchange(form);
    connect_import_save(form);
    connect_transfers(form);
}

}  // namespace kalco
