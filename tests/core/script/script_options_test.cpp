#include "ctl/script/script_options.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <istream>
#include <ostream>

#include "ctl/script/program_directory.h"
#include "ctl/script/script_runner.h"
#include "disc/image/file_error.h"
#include "editor/window/system_directories.h"
#include "support/temporary_home.h"

namespace kalco::script {
namespace {

ScriptOptions options_of(const std::string& arguments) {
    CLI::App app;
    ScriptOptions options;
    const CLI::App& command = add_script_command(app, options);
    app.parse(arguments);
    EXPECT_TRUE(command.parsed());
    return options;
}

TEST(ScriptOptions, AreADirectoryAndAFile) {
    EXPECT_EQ(options_of("script").home, std::nullopt);
    EXPECT_EQ(options_of("script").file, "");
    EXPECT_EQ(options_of("script a.kalco").file, "a.kalco");
    EXPECT_EQ(options_of("script --home /x a.kalco").home, "/x");
    EXPECT_EQ(options_of("script -").file, "-");
    EXPECT_EQ(options_of("script a.kalco --home /x").file, "a.kalco");
    EXPECT_THROW(options_of("script a b"), CLI::ParseError);
    EXPECT_THROW(options_of("script --house /x"), CLI::ParseError);
}

TEST(PlayScript, PlaysTheFileInItsDirectory) {
    const test::TemporaryHome home;
    ScriptOptions options;
    options.home = home.path();
    options.file = home.write("a.kalco", "start\n");
    std::string played;
    const int status = play_script(options, [&](std::istream& script, const ScriptPlatform& platform, std::ostream&) {
        std::getline(script, played);
        EXPECT_EQ(platform.program_directory(), home.path());
        return 7;
    });
    EXPECT_EQ(status, 7);
    EXPECT_EQ(played, "start");
}

TEST(PlayScript, StandsInTheProgramsDirectoryWithoutAnother) {
    const test::TemporaryHome home;
    ScriptOptions options;
    options.file = home.write("a.kalco", "");
    play_script(options, [&](std::istream&, const ScriptPlatform& platform, std::ostream&) {
        EXPECT_EQ(platform.program_directory(), program_directory());
        return 0;
    });
    EXPECT_TRUE(std::filesystem::is_directory(program_directory()));
}

TEST(PlayScript, TellsWhyAScriptCannotBeRun) {
    const test::TemporaryHome home;
    ScriptOptions options;
    options.home = home.path();
    options.file = home.write("a.kalco", "");
    ::testing::internal::CaptureStderr();
    play_script(options, [](std::istream&, ScriptPlatform&, std::ostream& complaints) {
        complaints << "line 1: x\n";
        return exit_unrunnable;
    });
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "kalcoctl script: " + options.file + ": line 1: x\n");
}

/// What play_script throws; nothing is played.
std::string refusal(const ScriptOptions& options) {
    try {
        play_script(options, [](std::istream&, ScriptPlatform&, std::ostream&) -> int {
            ADD_FAILURE() << "played";
            return 0;
        });
    } catch (const FileError& failure) {
        return failure.what();
    }
    return {};
}

TEST(PlayScript, NeedsAFileThatCanBeRead) {
    const test::TemporaryHome home;
    ScriptOptions options;
    options.home = home.path();
    options.file = home.path("missing.kalco");
    EXPECT_EQ(refusal(options), options.file + ": the script can't be read: No such file or directory");
}

TEST(PlayScript, NeedsAHomeThatCanBeWritten) {
    const test::TemporaryHome home;
    ScriptOptions options;
    options.file = home.write("a.kalco", "");
    for (const std::string& directory : {std::string(), home.path("missing"), options.file, std::string("/dev/null")}) {
        options.home = directory;
        EXPECT_EQ(refusal(options), directory + ": no directory for side files");
    }
}

TEST(ProgramDirectories, OfTheSystemKeepNoSideFiles) {
    for (const char* directory : {"/bin", "/sbin", "/usr/bin", "/usr/bin/", "/usr/sbin", "/usr/games", "/usr/local/bin",
                                  "/usr/local/sbin", "/usr/local/games", "/app/bin"}) {
        EXPECT_TRUE(is_system_program_directory(directory)) << directory;
    }
    for (const char* directory :
         {"", "/", "/usr", "/usr/bin/kalco", "/home/x/bin", "/opt/kalco/bin", "bin", "/usr/lib"}) {
        EXPECT_FALSE(is_system_program_directory(directory)) << directory;
    }
}

}  // namespace
}  // namespace kalco::script
