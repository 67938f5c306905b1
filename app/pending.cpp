#include "app/pending.h"

#include "app/text.h"
#include "disc/teams.h"

namespace kalco::app {
namespace {

/// The save button of the first tab writes the whole roster of its lists.
QString pending_on_players(const frmKalco& form) {
    if (form.cboSeqSQ.row() < 0 || !form.cmdSaveCar.takes_input()) return {};
    const bool default_team = form.ImportPending == 0;
    const QString where = form.SSTab1.tab() == tab::players ? QString() : QStringLiteral(" in «Squadre & Giocatori»");
    const QString target = default_team ? qt_text(default_team_name) : qt_text(form.cboSeqSQ.text()).trimmed();
    return QStringLiteral("● Importazione in sospeso: niente arriva all'immagine finché%1 non si preme «Salva», che "
                          "scrive i giocatori in lista in %2.")
        .arg(where, target);
}

}  // namespace

QString pending_text(const frmKalco& form) {
    if (form.ImportPending == 0 && form.ImportPendingML == 0) return {};
    if (form.SSTab1.tab() == tab::league && form.cmdSaveNC.takes_input()) {
        return QStringLiteral("● Importazione in sospeso: niente arriva all'immagine finché non si preme «Salva "
                              "Modifica», che scrive i giocatori importati al posto dei %1 scelti.")
            .arg(form.listAppNameNC.count());
    }
    return pending_on_players(form);
}

}  // namespace kalco::app
