#include "ctl/script/script_runner.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <new>
#include <sstream>
#include <stdexcept>

#include "ctl/script/script_language.h"
#include "ctl/script/script_source.h"
#include "editor/editor.h"
#include "support/filled_disc.h"
#include "support/shelf.h"
#include "support/temporary_home.h"

namespace kalco::script {
namespace {

const std::string dialog_line =
    R"({"event": "dialog", "filter": "Image CDRWIN (*.bin)|*.bin| Image CloneCD (*.img)|*.img| All Files (*.*)|*.*", )"
    R"("filterIndex": 1, "chosen": "disc.bin"})"
    "\n";
const std::string closed_line = R"({"event": "ended", "reason": "closed"})"
                                "\n";

class Scripts : public ::testing::Test {
protected:
    Scripts() { shelf.discs["disc.bin"].bytes = test::filled_image(); }

    /// Plays the lines behind the start of the program.
    int play(const std::string& lines) { return play_all("choose \"disc.bin\"\nstart\n" + lines); }

    int play_all(const std::string& lines) {
        std::istringstream script(lines);
        std::ostringstream out;
        std::ostringstream complaints;
        ScriptPlatform platform(home.path(), out);
        Editor editor(platform, shelf.opener());
        ModelStage stage(editor.form);
        const int status = run_script(script, stage, platform, complaints);
        output = out.str();
        complaint = complaints.str();
        return status;
    }

    /// What the lines print behind the start and before the end.
    std::string printed(const std::string& lines) {
        EXPECT_EQ(play(lines), exit_done) << complaint;
        EXPECT_EQ(output.substr(0, dialog_line.size()), dialog_line);
        EXPECT_EQ(output.substr(output.size() - closed_line.size()), closed_line);
        return output.substr(dialog_line.size(), output.size() - dialog_line.size() - closed_line.size());
    }

    void expect_complaint(const std::string& lines, const std::string& text) {
        EXPECT_EQ(play(lines), exit_unrunnable) << lines;
        EXPECT_EQ(complaint, text);
        EXPECT_FALSE(shelf.discs["disc.bin"].held);
        EXPECT_EQ(output.find("ended"), std::string::npos);
    }

    test::Disc& disc() { return shelf.discs["disc.bin"]; }

    test::Shelf shelf;
    test::TemporaryHome home;
    std::string output;
    std::string complaint;
};

TEST_F(Scripts, CloseTheWindowAtTheirEnd) {
    EXPECT_EQ(printed(""), "");
    EXPECT_FALSE(disc().held);
    EXPECT_TRUE(home.has("Export"));
    EXPECT_EQ(play("close\n"), exit_done);
    EXPECT_EQ(output, dialog_line + closed_line);
}

TEST_F(Scripts, DoNothingBehindTheEnd) {
    EXPECT_EQ(play("close\nnonsense\nshow txtName"), exit_done);
    EXPECT_EQ(output, dialog_line + closed_line);
    EXPECT_EQ(complaint, "");
}

TEST_F(Scripts, MayHoldNothing) {
    EXPECT_EQ(play_all(""), exit_done);
    EXPECT_EQ(output, closed_line);
    EXPECT_EQ(play_all("# nothing\n\n   \n"), exit_done);
    EXPECT_EQ(output, closed_line);
    EXPECT_TRUE(shelf.opened.empty());
}

TEST_F(Scripts, MayHaveAnyLineEnds) {
    EXPECT_EQ(play_all("choose \"disc.bin\"\r\nstart\r\n# x\r\nshow ImportPending"), exit_done);
    EXPECT_EQ(output, dialog_line + R"({"show": "ImportPending", "value": 0})" + "\n" + closed_line);
}

TEST_F(Scripts, EndWhenTheFirstDialogIsCancelled) {
    EXPECT_EQ(play_all("choose cancel\nstart\nshow txtName\n"), exit_done);
    EXPECT_NE(output.find(R"("chosen": null})"), std::string::npos);
    EXPECT_EQ(output.substr(output.find('\n') + 1), R"({"event": "ended", "reason": "cancelled"})"
                                                    "\n");
}

TEST_F(Scripts, EndWhenTheImageIsDenied) {
    disc().held = true;
    EXPECT_EQ(play("show txtName\n"), exit_failed);
    EXPECT_EQ(output, dialog_line + R"({"event": "message", "icon": "stop", "buttons": "ok", )"
                                    R"("text": "Accesso negato, Immagine CD gi\u00e0 aperta", "answer": "ok"})"
                                    "\n"
                                    R"({"event": "ended", "reason": "denied"})"
                                    "\n");
    EXPECT_EQ(complaint, "");
}

TEST_F(Scripts, EndWithTheNumberOfAnErrorThatNothingCatches) {
    EXPECT_EQ(play_all("choose \"missing.bin\"\nstart\nshow ImagePath\npick cboSeqSQ 0\nshow txtName\n"), exit_failed);
    EXPECT_NE(output.find(R"({"show": "ImagePath", "value": "missing.bin"})"), std::string::npos);
    const std::string end = "{\"event\": \"ended\", \"reason\": \"error\", \"number\": 52}\n";
    EXPECT_EQ(output.substr(output.size() - end.size()), end);
    EXPECT_EQ(output.find("txtName"), std::string::npos);
    EXPECT_EQ(output.find("message"), std::string::npos);
    EXPECT_EQ(complaint, "");
}

TEST_F(Scripts, LetGoOfTheImageAfterAnError) {
    EXPECT_EQ(play("choose cancel\nclick cmdOpen\npick cboSeqSQ 0\ntype txtName \"Xyz\"\nclick cmdSaveCar\n"),
              exit_failed);
    EXPECT_NE(output.find("\"number\": 75}"), std::string::npos);
    EXPECT_FALSE(disc().held);
}

TEST_F(Scripts, TellAFailingWrite) {
    disc().failing_write = 1;
    EXPECT_EQ(play("pick cboSeqSQ 0\ntype txtName \"Xyz\"\nclick cmdSaveCar\n"), exit_failed);
    EXPECT_NE(output.find("\"number\": 61}"), std::string::npos);
    EXPECT_FALSE(disc().held);
}

TEST_F(Scripts, EndLikeARunTimeErrorWithAnyOtherFailure) {
    const auto play_over = [&](const std::exception_ptr& failure) {
        std::istringstream script("choose \"disc.bin\"\nstart\npick cboSeqSQ 0\nclick cmdSaveCar\n");
        std::ostringstream out;
        std::ostringstream complaints;
        ScriptPlatform platform(home.path(), out);
        Editor editor(platform, shelf.opener());
        editor.form.cmdSaveCar.click = [&] { std::rethrow_exception(failure); };
        ModelStage stage(editor.form);
        EXPECT_EQ(run_script(script, stage, platform, complaints), exit_failed);
        EXPECT_FALSE(disc().held);
        return out.str().substr(dialog_line.size());
    };
    EXPECT_EQ(play_over(std::make_exception_ptr(std::bad_alloc())),
              "{\"event\": \"ended\", \"reason\": \"error\", \"number\": 7}\n");
    EXPECT_EQ(play_over(std::make_exception_ptr(std::logic_error("x"))),
              "{\"event\": \"ended\", \"reason\": \"error\", \"number\": 5}\n");
}

TEST_F(Scripts, AreNotOverAtAReadError) {
    const auto play_up_to = [&](int fd) {
        DescriptorBuffer buffer(fd);
        std::istream script(&buffer);
        std::ostringstream out;
        std::ostringstream complaints;
        ScriptPlatform platform(home.path(), out);
        Editor editor(platform, shelf.opener());
        ModelStage stage(editor.form);
        const int status = run_script(script, stage, platform, complaints);
        EXPECT_EQ(out.str(), "");
        EXPECT_EQ(complaints.str(), "line 1: the script can't be read on\n");
        return status;
    };
    EXPECT_EQ(play_up_to(-1), exit_unrunnable);
    const int directory = ::open(home.path().c_str(), O_RDONLY);
    EXPECT_EQ(play_up_to(directory), exit_unrunnable);
    ::close(directory);
}

TEST_F(Scripts, HaveLinesOfABoundedLength) {
    const std::string longest = '#' + std::string((1 << 20) - 1, 'x');
    EXPECT_EQ(play_all(longest + '\n' + longest), exit_done);
    EXPECT_EQ(play_all('\n' + longest + "x"), exit_unrunnable);
    EXPECT_EQ(complaint, "line 2: the line is too long\n");
}

TEST_F(Scripts, EchoNamesCutAndWithoutControlCharacters) {
    const std::string name(90, 'x');
    expect_complaint("click " + name, "line 3: unknown control " + name.substr(0, 80) + "...\n");
    expect_complaint("show " + name, "line 3: nothing is named " + name.substr(0, 80) + "...\n");
    expect_complaint("click \x1Bx", "line 3: unknown control \\x1bx\n");
}

TEST_F(Scripts, TakeSavesBackAndMakeThemAgain) {
    const std::string team = "pick cboSeqSQ 10\npick listDat 3\n";
    const std::string save = team + "type txtName \"Nuovo\"\nclick cmdSaveCar\n";
    const std::string saved = R"({"event": "message", "icon": "information", "buttons": "ok", )"
                              R"("text": "Salvataggio effettuato con successo", "answer": "ok"})"
                              "\n";
    const std::string before = disc().bytes;
    EXPECT_EQ(printed("undo\nredo\n" + save + "undo\nundo\nredo\nredo\nundo\n"),
              R"({"event": "undone", "what": null})"
              "\n"
              R"({"event": "redone", "what": null})"
              "\n" +
                  saved +
                  R"({"event": "undone", "what": "Giocatore: Italy, Nuovo"})"
                  "\n"
                  R"({"event": "undone", "what": null})"
                  "\n"
                  R"({"event": "redone", "what": "Giocatore: Italy, Nuovo"})"
                  "\n"
                  R"({"event": "redone", "what": null})"
                  "\n"
                  R"({"event": "undone", "what": "Giocatore: Italy, Nuovo"})"
                  "\n");
    EXPECT_EQ(disc().bytes, before);
}

TEST_F(Scripts, ShowTheImageAgainAfterTakingBack) {
    const std::string state = printed("pick cboSeqSQ 10\npick listDat 3\nshow txtName\nshow listDat\n");
    const std::string line = state.substr(state.find('\n') + 1);
    const std::string again =
        printed("pick cboSeqSQ 10\npick listDat 3\ntype txtName \"Nuovo\"\nclick cmdSaveCar\nundo\npick listDat 3\n"
                "show listDat\n");
    EXPECT_EQ(again.substr(again.size() - line.size()), line);
}

TEST_F(Scripts, NeedTheStartFirst) {
    for (const char* line : {"tab 1", "pick cboSeqSQ 0", "doubleclick listNC 0", "click cmdNew", "type txtName \"x\"",
                             "focus txtName", "show txtName", "close", "undo", "redo"}) {
        EXPECT_EQ(play_all(std::string("\n# x\n") + line), exit_unrunnable) << line;
        EXPECT_EQ(complaint, "line 3: the program is not started\n");
        EXPECT_EQ(output, "");
    }
    EXPECT_EQ(play_all("answer no\nchoose \"disc.bin\"\nanswer yes\nstart\n"), exit_done);
}

TEST_F(Scripts, StartOnlyOnce) {
    expect_complaint("choose \"disc.bin\"\nstart\n", "line 4: the program is started already\n");
}

TEST_F(Scripts, NameTheLineThatCannotBeRun) {
    expect_complaint("nonsense", "line 3: unknown action nonsense\n");
    expect_complaint("\n\nclick cmdNowhere\n", "line 5: unknown control cmdNowhere\n");
    expect_complaint("show txtName txtNowhere\n", "line 3: nothing is named txtNowhere\n");
    EXPECT_NE(output.find("\"txtName\""), std::string::npos);
    expect_complaint("tab 6", "line 3: there is no tab 6\n");
    expect_complaint("tab -1", "line 3: there is no tab -1\n");
    expect_complaint("pick cboSeqSQ 96", "line 3: cboSeqSQ has no row 96\n");
    expect_complaint("pick cboSeqSQ -1", "line 3: cboSeqSQ has no row -1\n");
    expect_complaint("tab 2\npick listAtt 87", "line 4: listAtt has no row 87\n");
    expect_complaint("tab 2\ndoubleclick listAtt 87", "line 4: listAtt has no row 87\n");
}

TEST_F(Scripts, KnowWhatActsOnWhat) {
    for (const char* name : {"txtName", "cboVel", "listDat", "Frame3", "SSTab1", "imgStile", "pbFZ(1)"}) {
        expect_complaint(std::string("click ") + name,
                         std::string("line 3: ") + name + " is no button, option button or label\n");
    }
    for (const char* name : {"cmdNew", "cboVel", "listDat", "lblPos", "Frame3", "opCPC(1)"}) {
        expect_complaint(std::string("type ") + name + " \"x\"", std::string("line 3: ") + name + " is no text box\n");
    }
    for (const char* verb : {"pick", "doubleclick"}) {
        for (const char* name : {"cmdNew", "txtName", "lblPos", "Frame3", "opCPC(1)"}) {
            expect_complaint(std::string(verb) + ' ' + name + " 0",
                             std::string("line 3: ") + name + " is no combo or list box\n");
        }
    }
}

TEST_F(Scripts, NeedAPathForADialog) {
    EXPECT_EQ(play_all("start\n"), exit_unrunnable);
    EXPECT_EQ(complaint, "line 1: no path is queued for the file dialog\n");
    EXPECT_EQ(output, "");
    expect_complaint("click cmdOpen", "line 3: no path is queued for the file dialog\n");
}

TEST_F(Scripts, UseTheirPathsInTheirOrder) {
    shelf.discs["b.bin"].bytes = "x";
    EXPECT_EQ(play_all("choose \"disc.bin\"\nchoose \"b.bin\"\nchoose cancel\nstart\nshow ImagePath\nclick cmdOpen\n"
                       "show ImagePath\nclick cmdOpen\nshow ImagePath\n"),
              exit_done);
    std::string values;
    for (std::size_t at = 0; (at = output.find("\"value\": ", at)) != std::string::npos; ++at) {
        values += output.substr(at + 9, output.find('}', at) - at - 9) + ' ';
    }
    EXPECT_EQ(values, "\"disc.bin\" \"b.bin\" \"\" ");
}

TEST_F(Scripts, TellWhatTakesNoInput) {
    EXPECT_EQ(printed("click cmdSaveCar\ntype txtName \"x\"\npick listDat 5\ndoubleclick listDat 5\nfocus cboVel\n"
                      "click lblPos\n"),
              R"({"event": "refused", "control": "cmdSaveCar", "reason": "disabled"})"
              "\n"
              R"({"event": "refused", "control": "txtName", "reason": "disabled"})"
              "\n"
              R"({"event": "refused", "control": "listDat", "reason": "disabled"})"
              "\n"
              R"({"event": "refused", "control": "listDat", "reason": "disabled"})"
              "\n"
              R"({"event": "refused", "control": "cboVel", "reason": "disabled"})"
              "\n"
              R"({"event": "refused", "control": "lblPos", "reason": "disabled"})"
              "\n");
    EXPECT_EQ(
        printed("click cmdHelp\ntype Text1 \"x\"\npick listApp 0\nfocus cboSQNum\npick cboSeqSQ 63\nclick lblPos\n"),
        R"({"event": "refused", "control": "cmdHelp", "reason": "hidden"})"
        "\n"
        R"({"event": "refused", "control": "Text1", "reason": "hidden"})"
        "\n"
        R"({"event": "refused", "control": "listApp", "reason": "hidden"})"
        "\n"
        R"({"event": "refused", "control": "cboSQNum", "reason": "hidden"})"
        "\n"
        R"({"event": "refused", "control": "lblPos", "reason": "hidden"})"
        "\n");
}

TEST_F(Scripts, DriveTheWholeWayOfAnEdit) {
    EXPECT_EQ(
        printed("pick cboSeqSQ 0\npick listDat 3\ntype txtName \"bi\\u00c0nchi de\"\npick cboVel 7\n"
                "click cmdSaveCar\nshow listDat\nshow cboVel txtName\n")
            .substr(0, 134),
        R"({"event": "message", "icon": "information", "buttons": "ok", "text": "Salvataggio effettuato con successo", "answer": "ok"})"
        "\n{\"show\": \"");
    EXPECT_NE(output.find(R"("text": "19", "row": 7)"), std::string::npos);
    EXPECT_NE(output.find(R"({"show": "txtName", "enabled": true, "text": "Bi\u00e0nchi De", "maxLength": 10})"),
              std::string::npos);
    EXPECT_NE(disc().bytes, test::filled_image());
    EXPECT_FALSE(disc().held);
}

TEST_F(Scripts, SayNothingOfAFocusThatIsKept) {
    EXPECT_EQ(printed("pick cboSeqSQ 0\ntype txtML \"251\"\ntype txtName \"x\"\nshow txtML\ntype txtML \"250\"\ntab "
                      "1\nshow SSTab1\n"),
              R"({"event": "message", "icon": "information", "buttons": "ok", )"
              R"("text": "Inserire in Costo ML un valore\r\n     compreso fra 0 e 250", "answer": "ok"})"
              "\n"
              R"({"show": "txtML", "enabled": true, "text": "251", "maxLength": 3})"
              "\n"
              R"({"show": "SSTab1", "enabled": true, "tab": 1})"
              "\n");
}

TEST_F(Scripts, ShowSeveralControlsInTheirOrder) {
    EXPECT_EQ(printed("show SSTab1 ImportPending   SSTab1\nshow FormationX(2)\n"),
              R"({"show": "SSTab1", "enabled": true, "tab": 0})"
              "\n"
              R"({"show": "ImportPending", "value": 0})"
              "\n"
              R"({"show": "SSTab1", "enabled": true, "tab": 0})"
              "\n"
              "{\"show\": \"FormationX(2)\", \"value\": 0}\n");
}

TEST_F(Scripts, SaveNothingWhenTheyCannotBeRun) {
    expect_complaint("pick cboSeqSQ 0\ntype txtName \"Xyz\"\nnonsense\n", "line 5: unknown action nonsense\n");
    EXPECT_EQ(disc().bytes, test::filled_image());
}

class Questions : public ::testing::Test {
protected:
    Answer asked() { return platform.message("Salvare? \xE0", Icon::warning, Buttons::yes_no_cancel); }
    std::string printed() {
        std::string text = out.str();
        out.str({});
        return text;
    }

    std::ostringstream out;
    ScriptPlatform platform{"/home/x", out};
};

TEST_F(Questions, AreAnsweredFromTheQueue) {
    platform.queue_answer(Answer::no);
    platform.queue_answer(Answer::cancel);
    platform.queue_answer(Answer::yes);
    EXPECT_EQ(asked(), Answer::no);
    EXPECT_EQ(
        printed(),
        R"({"event": "message", "icon": "warning", "buttons": "yes-no-cancel", "text": "Salvare? \u00e0", "answer": "no"})"
        "\n");
    EXPECT_EQ(platform.message("x", Icon::stop, Buttons::ok), Answer::ok);
    EXPECT_EQ(printed(), R"({"event": "message", "icon": "stop", "buttons": "ok", "text": "x", "answer": "ok"})"
                         "\n");
    EXPECT_EQ(asked(), Answer::cancel);
    EXPECT_EQ(asked(), Answer::yes);
}

TEST_F(Questions, NeedAnAnswer) {
    EXPECT_THROW(asked(), ScriptError);
    EXPECT_EQ(printed(), "");
}

TEST_F(Questions, LeaveDialogsAlone) {
    platform.queue_choice("/tmp/a.DAT");
    platform.queue_choice("");
    EXPECT_EQ(platform.open_dialog("*.DAT|*.DAT", "/anywhere"), "/tmp/a.DAT");
    EXPECT_EQ(printed(), R"({"event": "dialog", "filter": "*.DAT|*.DAT", "filterIndex": 1, "chosen": "/tmp/a.DAT"})"
                         "\n");
    EXPECT_EQ(platform.open_dialog("*.DAT|*.DAT", "/anywhere"), "");
    EXPECT_EQ(printed(), R"({"event": "dialog", "filter": "*.DAT|*.DAT", "filterIndex": 1, "chosen": null})"
                         "\n");
    EXPECT_THROW(platform.open_dialog("*.DAT|*.DAT", "/anywhere"), ScriptError);
    EXPECT_EQ(platform.program_directory(), "/home/x");
}

}  // namespace
}  // namespace kalco::script
