#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "disc/codec/letters.h"
#include "disc/image/history.h"
#include "disc/image/image.h"
#include "disc/set_pieces.h"
#include "editor/window/controls.h"
#include "editor/window/platform.h"

namespace kalco {

/// Indices of the tabs.
namespace tab {
inline constexpr int players = 0;
inline constexpr int league = 1;
inline constexpr int kickers = 2;
inline constexpr int transfers = 3;
inline constexpr int formations = 4;
inline constexpr int numbers = 5;
}  // namespace tab

/// How a run ended.
enum class Ending { closed, cancelled, denied };

/// Routines of subsystems that the window or a lower subsystem runs. Each is filled when its owner is connected; an
/// empty one has nothing to do.
struct Slots {
    Event NAMES_GIOC_NAZ;
    Event NAME_NO_CONTACT;
    Event CONTR_NAME_NC;
    Event Read_Bar;
    Event SALV_IMP;
    Event SAVE_IMP_ML;
    Event cmdImp;
};

inline constexpr int first_marker = 2;
inline constexpr int last_marker = 11;

/// The window: every control by its own name, and the run state. Handlers are free functions of the subsystems; they
/// attach themselves to the events here.
class frmKalco {
public:
    explicit frmKalco(Platform& services, StorageOpener opener = open_file);
    frmKalco(const frmKalco&) = delete;
    frmKalco& operator=(const frmKalco&) = delete;

    Registry registry;

    // A control's own name is its name in the registry.
#define KALCO_CONTROL(kind, name, ...)                                                                                 \
    kind name {                                                                                                        \
        registry, #name, __VA_ARGS__                                                                                   \
    }
#define KALCO_ARRAY(kind, name, first, ...)                                                                            \
    ControlArray<kind> name {                                                                                          \
        registry, #name, first, __VA_ARGS__                                                                            \
    }

    TabControl SSTab1;
    KALCO_CONTROL(CommandButton, cmdOpen, Place::anywhere(), "Apri Immagine CD");

    // Tab 0: teams and players.
    KALCO_CONTROL(ComboBox, cboSeqSQ, Place::on_tab(tab::players));
    KALCO_CONTROL(CommandButton, cmdNew, Place::on_tab(tab::players), "New");
    KALCO_CONTROL(Frame, Frame3, Place::on_tab(tab::players));
    KALCO_CONTROL(TextBox, txtSqShort, Frame3);
    KALCO_CONTROL(TextBox, txtSqHEX, Frame3);
    KALCO_CONTROL(TextBox, txtSqDec, Frame3);
    KALCO_CONTROL(CommandButton, cmdName, Frame3, "Modifica Nomi Squadre");
    KALCO_CONTROL(TextBox, txtSQ, Frame3);
    KALCO_CONTROL(ListBox, listDat, Frame3);
    KALCO_CONTROL(Label, Label34, Frame3, "N\xB0");
    KALCO_CONTROL(Label, lblPos, Frame3);
    KALCO_CONTROL(TextBox, txtName, Frame3);
    KALCO_CONTROL(Label, lblMl, Frame3, "Costo ML");
    KALCO_CONTROL(TextBox, txtML, Frame3);
    KALCO_CONTROL(ComboBox, cboRuolo, Frame3);
    KALCO_CONTROL(ComboBox, cboOutSide, Frame3);
    KALCO_CONTROL(TextBox, txtNum, Place::off_screen_in(Frame3));
    KALCO_CONTROL(ComboBox, cboPelle, Frame3);
    KALCO_CONTROL(ComboBox, cboCapelli, Frame3);
    KALCO_CONTROL(ImageBox, imgStile, Frame3);
    KALCO_CONTROL(ComboBox, cboColCap, Frame3);
    KALCO_CONTROL(ImageBox, imgColCap, Frame3);
    KALCO_CONTROL(ComboBox, cboStlBar, Frame3);
    KALCO_CONTROL(ImageBox, imgStBar, Frame3);
    KALCO_CONTROL(ComboBox, cboColBar, Frame3);
    KALCO_CONTROL(ImageBox, imgColBar, Frame3);
    KALCO_CONTROL(ComboBox, cboScarpa, Frame3);
    KALCO_CONTROL(ImageBox, imgScarpa, Frame3);
    KALCO_CONTROL(TextBox, txtAlt, Frame3, 3);
    KALCO_CONTROL(CommandButton, cmdSottH, Frame3, "-");
    KALCO_CONTROL(CommandButton, cmdAddH, Frame3, "+");
    KALCO_CONTROL(TextBox, txtEta, Frame3, 3);
    KALCO_CONTROL(CommandButton, cmdSottEta, Frame3, "-");
    KALCO_CONTROL(CommandButton, cmdAddEta, Frame3, "+");
    KALCO_CONTROL(ComboBox, cboFisico, Frame3);
    KALCO_CONTROL(ComboBox, cboPiede, Frame3);
    KALCO_CONTROL(ComboBox, cboAttacco, Frame3);
    KALCO_CONTROL(ComboBox, cboDifesa, Frame3);
    KALCO_CONTROL(ComboBox, cboEquil, Frame3);
    KALCO_CONTROL(ComboBox, cboRes, Frame3);
    KALCO_CONTROL(ComboBox, cboVel, Frame3);
    KALCO_CONTROL(ComboBox, cboAcc, Frame3);
    KALCO_CONTROL(ComboBox, cboPass, Frame3);
    KALCO_CONTROL(ComboBox, cboPot, Frame3);
    KALCO_CONTROL(ComboBox, cboPrec, Frame3);
    KALCO_CONTROL(ComboBox, cboElev, Frame3);
    KALCO_CONTROL(ComboBox, cboTesta, Frame3);
    KALCO_CONTROL(ComboBox, cboTecn, Frame3);
    KALCO_CONTROL(ComboBox, cboDribbl, Frame3);
    KALCO_CONTROL(ComboBox, cboCurv, Frame3);
    KALCO_CONTROL(ComboBox, cboPosit, Frame3);
    KALCO_CONTROL(ComboBox, cboReaz, Frame3);
    KALCO_CONTROL(CommandButton, cmdSaveCar, Frame3, "Salva");
    KALCO_CONTROL(CommandButton, cmdExp, Frame3, "Exporta Squadra");
    KALCO_CONTROL(CommandButton, cmdImp, Frame3, "Importa Squadra");
    KALCO_CONTROL(CommandButton, cmdImpML, Frame3, "Importa Squadra Default ML");

    // Tab 1: links of the Master League and No-Contact players.
    KALCO_CONTROL(Frame, Frame8, Place::on_tab(tab::league), "Link Squadre");
    KALCO_CONTROL(ListBox, listDefault, Frame8);
    KALCO_CONTROL(ListBox, listSQLink, Frame8);
    KALCO_CONTROL(TextBox, txtNmLgML, Frame8);
    KALCO_CONTROL(TextBox, txtNmShML, Frame8);
    KALCO_CONTROL(CommandButton, cmdLink, Frame8, "Link");
    KALCO_CONTROL(Frame, Frame9, Place::on_tab(tab::league), "Link No-Contact");
    KALCO_CONTROL(ComboBox, cboSqNC, Frame9);
    KALCO_CONTROL(Label, lblNameML, Frame9);
    KALCO_CONTROL(ListBox, listNC, Frame9);
    KALCO_CONTROL(Label, lblIndNaz, Frame9, "Nazionalit\xE0 Giocatore : ");
    KALCO_CONTROL(Label, lblNaz, Frame9);
    KALCO_CONTROL(ListBox, listAppNameNC, Frame9);
    KALCO_CONTROL(Label, lblNumGioc, Frame9, "0");
    KALCO_CONTROL(CommandButton, cmdImpNC, Frame9, "Importa Squadra");
    KALCO_CONTROL(CommandButton, cmdSaveNC, Frame9, "Salva Modifica");
    KALCO_CONTROL(CommandButton, cmdNuevo, Frame9, "New");
    KALCO_CONTROL(CommandButton, cmdHelp, Frame9, "Help");

    // Tab 2: set-piece takers and captains.
    KALCO_CONTROL(ComboBox, cboSquadra, Place::on_tab(tab::kickers));
    KALCO_CONTROL(TextBox, txtAtt, Place::on_tab(tab::kickers));
    KALCO_CONTROL(ListBox, listAtt, Place::on_tab(tab::kickers));
    KALCO_ARRAY(TextBox, txtNM, 1, 11, Place::on_tab(tab::kickers));
    KALCO_CONTROL(Frame, fraPZC, Place::on_tab(tab::kickers), "Punizioni\nCorte");
    KALCO_CONTROL(Frame, fraPZL, Place::on_tab(tab::kickers), "Punizioni\nLunghe");
    KALCO_CONTROL(Frame, fraCAD, Place::on_tab(tab::kickers), "Corners\nDX");
    KALCO_CONTROL(Frame, fraCAS, Place::on_tab(tab::kickers), "Corners\nSX");
    KALCO_CONTROL(Frame, fraRIG, Place::on_tab(tab::kickers), "Rigori");
    KALCO_CONTROL(Frame, fraCAP, Place::on_tab(tab::kickers), "Capitano");
    KALCO_ARRAY(OptionButton, opCPC, 0, 10, fraPZC);
    KALCO_ARRAY(OptionButton, opCPL, 0, 10, fraPZL);
    KALCO_ARRAY(OptionButton, opCAD, 0, 10, fraCAD);
    KALCO_ARRAY(OptionButton, opCAS, 0, 10, fraCAS);
    KALCO_ARRAY(OptionButton, opRIG, 0, 10, fraRIG);
    KALCO_ARRAY(OptionButton, opCAP, 0, 10, fraCAP);
    KALCO_CONTROL(Frame, fraKick, Place::on_tab(tab::kickers));
    KALCO_CONTROL(CommandButton, cmdCrea, fraKick, "&Salva");
    KALCO_CONTROL(CommandButton, cmdExpKick, fraKick, "&Export Kickers");
    KALCO_CONTROL(CommandButton, cmdImpKick, fraKick, "&Import Kickers");

    // Tab 3: transfers between two team files.
    KALCO_CONTROL(CommandButton, cmdTeam1, Place::on_tab(tab::transfers), "Apri Squadra 1...");
    KALCO_CONTROL(TextBox, txtSquadra1, Place::on_tab(tab::transfers));
    KALCO_CONTROL(ListBox, ListVende, Place::on_tab(tab::transfers));
    KALCO_CONTROL(CommandButton, cmdteam2, Place::on_tab(tab::transfers), "Apri Squadra 2...");
    KALCO_CONTROL(TextBox, txtSquadra2, Place::on_tab(tab::transfers));
    KALCO_CONTROL(ListBox, ListCompra, Place::on_tab(tab::transfers));
    KALCO_CONTROL(Frame, fraScambio, Place::on_tab(tab::transfers), "Tipo di Scambio");
    KALCO_CONTROL(OptionButton, OpNREC, fraScambio, "Non Reciproco", true);
    KALCO_CONTROL(OptionButton, OpRec, fraScambio, "Reciproco");
    KALCO_CONTROL(CommandButton, cmdTransfer, Place::on_tab(tab::transfers), "<---------  --------->");
    KALCO_CONTROL(CommandButton, cmdSave1, Place::on_tab(tab::transfers), "SaveTeam&1");
    KALCO_CONTROL(CommandButton, cmdSave2, Place::on_tab(tab::transfers), "SaveTeam&2");

    // Tab 4: formations and strength bars.
    KALCO_CONTROL(ComboBox, cboSeqSQ2, Place::on_tab(tab::formations));
    KALCO_CONTROL(TextBox, txtSqHEX2, Place::on_tab(tab::formations));
    KALCO_CONTROL(Frame, Frame6, Place::on_tab(tab::formations));
    KALCO_ARRAY(PitchMarker, lblGioc, first_marker, last_marker, Frame6);
    KALCO_CONTROL(ComboBox, cboMod, Frame6);
    KALCO_CONTROL(CommandButton, cmdModifica, Frame6, "Salva &Modifica ");
    KALCO_CONTROL(Label, lblNameG, Place::on_tab(tab::formations));
    KALCO_CONTROL(ComboBox, cboRL, Place::on_tab(tab::formations));
    KALCO_CONTROL(Frame, fraCord, Place::on_tab(tab::formations));
    KALCO_CONTROL(CommandButton, cmdUp, fraCord);
    KALCO_CONTROL(CommandButton, cmdLeft, fraCord);
    KALCO_CONTROL(CommandButton, cmdRight, fraCord);
    KALCO_CONTROL(CommandButton, cmdDown, fraCord);
    KALCO_ARRAY(CommandButton, cmdMeno, 1, 5, Place::on_tab(tab::formations), [](int) { return std::string("-"); });
    KALCO_ARRAY(StrengthBar, pbFZ, 1, 5, Place::on_tab(tab::formations));
    KALCO_ARRAY(CommandButton, cmdPiu, 1, 5, Place::on_tab(tab::formations), [](int) { return std::string("+"); });
    KALCO_CONTROL(CommandButton, cmdSalva, Place::on_tab(tab::formations), "Salva Barre");
    KALCO_CONTROL(Frame, fraImpExp, Place::on_tab(tab::formations));
    KALCO_CONTROL(CommandButton, cmdExport, fraImpExp, "Export Fomazioni && Barre");
    KALCO_CONTROL(CommandButton, cmdImport, fraImpExp, "Import Fomazioni && Barre");

    // Tab 5: shirt numbers.
    KALCO_CONTROL(ComboBox, cboSQNum, Place::on_tab(tab::numbers));
    KALCO_CONTROL(TextBox, txtSqSel, Place::on_tab(tab::numbers));
    KALCO_CONTROL(ListBox, ListName, Place::on_tab(tab::numbers));
    KALCO_CONTROL(ListBox, ListNum, Place::on_tab(tab::numbers));
    KALCO_CONTROL(TextBox, txtNumMod, Place::on_tab(tab::numbers));
    KALCO_CONTROL(CommandButton, cmdModNum, Place::on_tab(tab::numbers), "Modifica Numero");
    KALCO_CONTROL(CommandButton, cmdSaveNum, Place::on_tab(tab::numbers), "Salva Modifica");
    KALCO_CONTROL(CommandButton, cmdImpNum, Place::on_tab(tab::numbers), "Importa Numeri");
    KALCO_CONTROL(CommandButton, cmdExpNum, Place::on_tab(tab::numbers), "Exporta Numeri");
    KALCO_ARRAY(NumberCell, lblNum, 1, 99, Place::on_tab(tab::numbers));

    // Never on the screen: what the handlers keep between operations.
    KALCO_CONTROL(TextBox, Text1, Place::off_screen());
    KALCO_CONTROL(TextBox, Text2, Place::off_screen());
    KALCO_CONTROL(TextBox, Text3, Place::off_screen());
    KALCO_CONTROL(TextBox, Text4, Place::off_screen());
    KALCO_CONTROL(TextBox, Text5, Place::off_screen());
    KALCO_CONTROL(TextBox, Text6, Place::off_screen());
    KALCO_CONTROL(TextBox, Text7, Place::off_screen());
    KALCO_CONTROL(TextBox, txtHex, Place::off_screen());
    KALCO_CONTROL(ListBox, listApp, Place::off_screen());
    KALCO_CONTROL(ListBox, listAppIMP, Place::off_screen());
    KALCO_CONTROL(ListBox, ListFile, Place::off_screen());
    KALCO_CONTROL(ListBox, listApp2, Place::off_screen());
    KALCO_CONTROL(ListBox, ListAppOrigName, Place::off_screen());
    KALCO_CONTROL(ListBox, listNameGiocNaz, Place::off_screen());
    KALCO_CONTROL(ListBox, listHexLinkNames, Place::off_screen());
    KALCO_CONTROL(ListBox, listHexNC, Place::off_screen());
    KALCO_CONTROL(ListBox, listAppNC, Place::off_screen());
    KALCO_CONTROL(ListBox, ListAppIDX, Place::off_screen());
    KALCO_CONTROL(ListBox, listTras1, Place::off_screen());
    KALCO_CONTROL(ListBox, listTras2, Place::off_screen());

#undef KALCO_CONTROL
#undef KALCO_ARRAY

    Platform& platform;
    Image image;  ///< Handle 1.
    History history{image};
    std::string ImagePath;
    int ImportPending = 0;
    int ImportPendingML = 0;
    Slots slots;

    /// The output of the letter codec, which the next name may repeat.
    LetterEncoder letters;

    /// The names of the team as its selection showed them; a rename measures its fill against them.
    struct TeamNames {
        std::string full_width;
        std::string short_name;
        std::string table_name;
    };
    TeamNames old_names;

    /// The marker last clicked; the row of the team and the loops of save and export use the same variable.
    int SelectedMarker = 0;
    std::array<int, last_marker + 1> FormationX{};
    std::array<int, last_marker + 1> FormationY{};

    /// The last result of a packing of shirt numbers, digits without blanks. It outlives the choice of a team.
    std::string PackedNumberText;

    /// The current picks of the six set-piece columns, two digits each.
    std::array<std::string, set_piece_bytes> set_piece_picks;

    /// How the run ended; unset while it goes on.
    std::optional<Ending> ended;

    /// The control that has the focus, nullptr before the first user action.
    Control* focused() const {
        return focused_;
    }
    /// Moves the focus: the loss of focus of the old control runs first. False when its handler took the focus back.
    bool set_focus(Control& target);

    /// Opens ImagePath on handle 1, and tells the user what lay beside it.
    void open_image();
    /// Closes handle 1 and opens ImagePath again: the flush that ends every save.
    void reopen_image();
    void inform(const std::string& text);
    /// Commits what was written and tells of it. `what` names the save in a few words; the message comes only when the
    /// bytes are on the disk.
    void tell_saved(std::string_view what, const std::string& text = "Salvataggio effettuato con successo");

private:
    Control* focused_ = nullptr;
    std::string history_path_;  ///< The image that the history is about.
    /// Is to get the focus as soon as another control has lost it.
    Control* arriving_ = nullptr;
};

}  // namespace kalco
