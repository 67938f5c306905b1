#include "editor/league/league.h"

#include "editor/league/links.h"
#include "editor/league/no_contact.h"

namespace kalco {

void connect_league(frmKalco& form) {
    connect_links(form);
    connect_no_contact(form);
}

}  // namespace kalco
