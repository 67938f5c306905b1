#include "editor/kickers/kickers.h"

#include "editor/kickers/kickers_file.h"
#include "editor/kickers/set_pieces.h"

namespace kalco {

void connect_kickers(frmKalco& form) {
    connect_set_pieces(form);
    connect_kickers_file(form);
}

}  // namespace kalco
