#include "app/done.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <utility>

#include "app/text.h"
#include "disc/runtime_error.h"
#include "editor/formations/bars_file.h"
#include "editor/kickers/kickers_file.h"
#include "editor/numbers/number_editor.h"
#include "editor/teamfiles/team_exchange.h"
#include "editor/teamfiles/transfers.h"

namespace kalco::app {
namespace {

std::size_t changed_bytes(const SectorChange& change) {
    const std::size_t common = std::min(change.before.size(), change.after.size());
    std::size_t changed = std::max(change.before.size(), change.after.size()) - common;
    for (std::size_t i = 0; i < common; ++i) changed += change.before[i] != change.after[i] ? 1U : 0U;
    return changed;
}

/// A path that can't be told has no file either.
QString told_path(const std::function<std::string()>& path) {
    try {
        return QString::fromStdString(path());
    } catch (const RuntimeError&) {
        return {};
    }
}

qint64 time_of(const QString& path) {
    return QFileInfo(path).lastModified().toMSecsSinceEpoch();
}

}  // namespace

QString saved_text(const Save& save) {
    std::size_t bytes = 0;
    for (const SectorChange& change : save.sectors) bytes += changed_bytes(change);
    // "Giocatore: Italy, Favussolo" goes on in the middle of a line.
    QString what = qt_text(save.what);
    if (const auto colon = what.indexOf(u':'); colon >= 0) what.remove(colon, 1);
    if (what.isEmpty()) return QStringLiteral("Scritti %1 byte nell'immagine").arg(bytes);
    what[0] = what[0].toLower();
    return QStringLiteral("Salvato: %1 – %2 byte").arg(what).arg(bytes);
}

DoneWatch::DoneWatch(frmKalco& form, Listeners& listeners) {
    form.image.add_observer(*this);
    const auto chosen = [](const auto& list) { return [&list] { return list.row() >= 0; }; };
    const auto on_save = [&](CommandButton& button, std::function<bool()> acts) {
        listeners.before(button.click, [this] { saved_ = false; });
        listeners.after(button.click, [this, acts = std::move(acts)] {
            if (acts() && !saved_) done_ << QStringLiteral("Niente da scrivere: l'immagine è già così");
        });
    };
    on_save(form.cmdSaveCar, chosen(form.cboSeqSQ));
    on_save(form.cmdName, chosen(form.cboSeqSQ));
    on_save(form.cmdCrea, chosen(form.cboSquadra));
    on_save(form.cmdModifica, chosen(form.cboSeqSQ2));
    on_save(form.cmdSalva, chosen(form.cboSeqSQ2));
    on_save(form.cmdSaveNum, chosen(form.cboSQNum));

    const auto on_export = [&](CommandButton& button, const std::function<std::string()>& path) {
        listeners.before(button.click, [this, path] {
            path_ = told_path(path);
            was_there_ = QFileInfo::exists(path_);
            written_at_ = time_of(path_);
        });
        // A file that could not be written has been told already.
        listeners.after(button.click, [this] {
            if (path_.isEmpty() || !QFileInfo::exists(path_)) return;
            if (was_there_ && time_of(path_) == written_at_) return;
            const QString folder = QFileInfo(path_).dir().dirName();
            const QString file = folder + u'/' + QFileInfo(path_).fileName();
            done_ << (was_there_ ? file + QStringLiteral(", sostituito") : QStringLiteral("Scritto: ") + file);
        });
    };
    on_export(form.cmdExp, [&form] { return exported_team_path(form); });
    on_export(form.cmdExport, [&form] { return bars_file_path(form); });
    on_export(form.cmdExpKick, [&form] { return kickers_file_path(form); });
    on_export(form.cmdExpNum, [&form] { return numbers_file_path(form); });
    on_export(form.cmdSave1, [&form] { return transfer_file_path(form, form.txtSquadra1); });
    on_export(form.cmdSave2, [&form] { return transfer_file_path(form, form.txtSquadra2); });
}

QStringList DoneWatch::take() {
    return std::exchange(done_, {});
}

void DoneWatch::committed(const Save& save) {
    saved_ = true;
    done_ << saved_text(save);
}

}  // namespace kalco::app
