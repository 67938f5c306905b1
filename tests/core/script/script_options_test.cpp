#include "ctl/script/script_options.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "ctl/script/program_directory.h"
#include "ctl/script/script_runner.h"
#include "support/temporary_home.h"

namespace kalco::script {
namespace {

ScriptOptions parsed(const std::string& arguments) {
    CLI::App app;
    ScriptOptions options;
    const CLI::App& command = add_script_command(app, options);
    app.parse(arguments);
    EXPECT_TRUE(command.parsed());
    return options;
}

TEST(ScriptOptions, AreADirectoryAndAFile) {
    EXPECT_EQ(parsed("script").home, "");
    EXPECT_EQ(parsed("script").file, "");
    EXPECT_EQ(parsed("script a.kalco").file, "a.kalco");
    EXPECT_EQ(parsed("script --home /x a.kalco").home, "/x");
    EXPECT_EQ(parsed("script a.kalco --home /x").file, "a.kalco");
    EXPECT_THROW(parsed("script a b"), CLI::ParseError);
    EXPECT_THROW(parsed("script --house /x"), CLI::ParseError);
}

TEST(PlayScript, PlaysTheFileInItsDirectory) {
    const test::TemporaryHome home;
    ScriptOptions options;
    options.home = "/somewhere";
    options.file = home.write("a.kalco", "start\n");
    std::string played;
    const int status = play_script(options, [&](std::istream& script, const ScriptPlatform& platform) {
        std::getline(script, played);
        EXPECT_EQ(platform.program_directory(), "/somewhere");
        return 7;
    });
    EXPECT_EQ(status, 7);
    EXPECT_EQ(played, "start");
}

TEST(PlayScript, StandsInTheProgramsDirectoryWithoutAnother) {
    const test::TemporaryHome home;
    ScriptOptions options;
    options.file = home.write("a.kalco", "");
    play_script(options, [&](std::istream&, const ScriptPlatform& platform) {
        EXPECT_EQ(platform.program_directory(), program_directory());
        return 0;
    });
    EXPECT_TRUE(std::filesystem::is_directory(program_directory()));
}

TEST(PlayScript, ComplainsOfAFileThatCannotBeRead) {
    const test::TemporaryHome home;
    for (const std::string& file : {home.path("missing.kalco"), home.path()}) {
        ScriptOptions options;
        options.file = file;
        ::testing::internal::CaptureStderr();
        const int status = play_script(options, [](std::istream&, ScriptPlatform&) -> int {
            ADD_FAILURE() << "played";
            return 0;
        });
        EXPECT_EQ(status, exit_unrunnable);
        EXPECT_EQ(::testing::internal::GetCapturedStderr(), file + ": the script can't be read\n");
    }
}

}  // namespace
}  // namespace kalco::script
