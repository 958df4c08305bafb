#include "host/command_line.h"

#include <gtest/gtest.h>

namespace
{
using Arguments = std::vector<std::string>;

struct Refusal
{
    std::string text;
    int exitCode = -1;
};

Refusal RefusalOf(const Arguments& arguments)
{
    try
    {
        ParseCommandLine(arguments);
    }
    catch (const CommandLineExit& exit)
    {
        return {exit.what(), exit.ExitCode()};
    }
    return {};
}
}  // namespace

TEST(CommandLine, WithoutArgumentsShowsTheDefaultDrawing)
{
    const CommandLine commandLine = ParseCommandLine({});

    EXPECT_EQ(commandLine.drawing, std::nullopt);
    EXPECT_EQ(commandLine.play, std::nullopt);
    EXPECT_EQ(commandLine.timeout, std::chrono::seconds(120));
}

TEST(CommandLine, ReadsAllOptions)
{
    const CommandLine commandLine =
        ParseCommandLine({"--drawing", "my plate.json", "--play=road.play", "--timeout", "30"});

    EXPECT_EQ(commandLine.drawing, "my plate.json");
    EXPECT_EQ(commandLine.play, "road.play");
    EXPECT_EQ(commandLine.timeout, std::chrono::seconds(30));
}

TEST(CommandLine, HelpNamesEveryOptionAndIsNoMistake)
{
    const Refusal help = RefusalOf({"--help"});

    EXPECT_EQ(help.exitCode, 0);
    for (const char* const option : {"--drawing", "--play", "--timeout", "--help"})
        EXPECT_NE(help.text.find(option), std::string::npos) << option;
}

TEST(CommandLine, MistakesAreNamed)
{
    struct Case
    {
        Arguments arguments;
        const char* named;
    };
    const Case cases[] = {
        {{"--drwaing", "a.json"}, "--drwaing"},
        {{"plate.json"}, "plate.json"},
        {{"--drawing"}, "--drawing"},
        {{"--play", "a.play", "--timeout", "soon"}, "--timeout"},
        {{"--play", "a.play", "--timeout", "0"}, "--timeout"},
        {{"--play", "a.play", "--timeout", "-5"}, "--timeout"},
        {{"--timeout", "5"}, "--play"},
        {{"--play", "a.play", "--play", "b.play"}, "--play"},
    };
    for (const Case& tested : cases)
    {
        SCOPED_TRACE(testing::PrintToString(tested.arguments));
        const Refusal refusal = RefusalOf(tested.arguments);
        EXPECT_EQ(refusal.exitCode, 2);
        EXPECT_NE(refusal.text.find(tested.named), std::string::npos) << refusal.text;
    }
}
