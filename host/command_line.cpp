#include "host/command_line.h"

#include <algorithm>

#include <CLI/CLI.hpp>

namespace
{

constexpr int kMistake = 2;
constexpr int kLongestPlay = 24 * 60 * 60;  // seconds

}  // namespace

CommandLine ParseCommandLine(const std::vector<std::string>& arguments)
{
    CommandLine commandLine;
    int timeout = static_cast<int>(commandLine.timeout.count());
    CLI::App app("Shows a drawing whose dimensions can be picked for the dimension-chain calculator.", "SampleHost");
    app.add_option("--drawing", commandLine.drawing, "drawing to show (default: one that comes with the program)")
        ->type_name("FILE");
    CLI::Option* const play =
        app.add_option("--play", commandLine.play, "play this script in the windows, then end")->type_name("FILE");
    app.add_option("--timeout", timeout,
                   "stop a play that has not ended after so many seconds, with exit code 3 (default: 120)")
        ->check(CLI::Range(1, kLongestPlay))
        ->option_text("SECONDS")
        ->needs(play);

    std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());  // as the library wants them
    try
    {
        app.parse(reversed);
    }
    catch (const CLI::CallForHelp&)
    {
        throw CommandLineExit(app.help(), 0);
    }
    catch (const CLI::ParseError& error)
    {
        throw CommandLineExit(std::string("SampleHost: ") + error.what() + "\nRun SampleHost --help for the options.\n",
                              kMistake);
    }
    commandLine.timeout = std::chrono::seconds(timeout);
    return commandLine;
}
