#include "league/league.h"

#include "league/links.h"
#include "league/no_contact.h"

namespace kalco {

void connect_league(frmKalco& form) {
    connect_links(form);
    connect_no_contact(form);
}

}  // namespace kalco
