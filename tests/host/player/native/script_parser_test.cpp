#include "host/player/script_parser.h"

#include <fstream>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "host/player/key_name.h"
#include "host/player/step_table.h"

namespace
{

Step ParseLine(const std::string& line)
{
    const Script script = ParseScript(line, "play.txt");
    if (script.steps.size() != 1)
        throw std::logic_error("one step expected");
    return script.steps.front();
}

std::string ErrorOf(const std::string& text)
{
    try
    {
        ParseScript(text, "play.txt");
    }
    catch (const ScriptError& error)
    {
        return error.what();
    }
    return "no error";
}

}  // namespace

TEST(ScriptParser, AScriptIsItsStepsWithTheirLines)
{
    const Script script =
        ParseScript("\xEF\xBB\xBF# a play\r\n\r\nopen \"Shaft\"   # label\r\n  print\n", "dir/play.txt");
    ASSERT_EQ(script.steps.size(), 2U);
    EXPECT_EQ(script.file, "dir/play.txt");
    EXPECT_EQ(script.steps[0].line, 3);
    EXPECT_EQ(script.steps[0].name, "open");
    EXPECT_EQ(script.steps[0].source, "open \"Shaft\"");
    EXPECT_EQ(script.steps[1].line, 4);
    EXPECT_EQ(script.steps[1].name, "print");
}

TEST(ScriptParser, AnEmptyScriptHasNoSteps)
{
    EXPECT_TRUE(ParseScript("", "play.txt").steps.empty());
    EXPECT_TRUE(ParseScript("# nothing\n\n", "play.txt").steps.empty());
}

// At least one line for every step of the table, with everything that may be left out both left out and given.
TEST(ScriptParser, EveryStepCanBeWritten)
{
    const char* const kLines[] = {
        "drawing gearbox.json",
        "drawing \"my drawing.json\"",
        "open",
        "open \"Shaft\"",
        "open @1083",
        "command 32788",
        "command link 1",
        "pick A1",
        "pick \"A 1\"",
        "answer off",
        "answer on 1 107",
        "call CancelDialog",
        "call AddToList A1",
        "call AddToList null",
        "on 32 SetDlgParams A1",
        "on 1 SetCurrentFRowData upper=\"0.2\" weightFixed=1",
        "press link 1004",
        "press message ok",
        "type link 1007 \"0.1\"",
        "choose calc 1000/302 1",
        "slide weight 1021 7",
        "click calc 1000 0 1",
        "click calc 1000 0 0 expand",
        "click calc 1002 0 0 check",
        "click-at host window 10 20",
        "click-at calc 1035 w/2+60 h-20 right",
        "click-at calc 1000 w/2 h/2 double at 1 2",
        "click-at calc 1000 w/2 h/2 at 1 2 double",
        "key calc 1000 Shift+Tab",
        "char calc 1000 \"12\"",
        "menu-pick 32780",
        "menu-dismiss",
        "cancel-dialog",
        "end-modal",
        "close-dialog",
        "expect-open link",
        "expect-closed message",
        "expect-text message text @52703",
        "expect-text link 1007 \"0.1\"",
        "expect-enabled link 1007 yes",
        "expect-visible link 1014 no",
        "expect-checked link 1009 yes",
        "expect-selected link 1006 -1",
        "expect-count link 1006 2",
        "expect-rows calc 1000 3",
        "expect-cell calc 1000 0 0 \"Shaft\"",
        "expect-focus calc 1000 1 -1",
        "expect-menu 32788 enabled",
        "expect-menu 32788 enabled checked",
        "expect-context 1000 32780 disabled",
        "expect-notified",
        "expect-notified 32 1",
        "expect-objects",
        "expect-objects A1 A2",
        "expect-closing-object none",
        "expect-closing-object X",
        "expect-message 52703",
        "expect-record 1 dim upper \"0.1\"",
        "expect-record now variable mean \"40.1\"",
        "expect-focused none",
        "expect-focused link none",
        "expect-focused link 1015",
        "expect-column calc 1000 0 @1083 left 130",
        "expect-entry link 1017 0 \"H7\"",
        "expect-entry link 1006 0 @52718 52718 plain",
        "expect-entry link 1017 0 \"H7\" bold",
        "expect-image link 1014 1003",
        "expect-image link 1014 none",
        "expect-image calc 1000 9 1",
        "expect-style calc 1000 list 0xB1 0xB1",
        "expect-style link 1017 box 19 19",
        "expect-rect calc 1000 * * w/2 100",
        "expect-rect calc 1000/302 0 0 w h at 1 5",
        "mark",
        "expect-steady",
        "expect-pixel calc 1035 10 10 00FF00",
        "expect-pixel calc 1000 w-3 h/2 F0DC28 8 at 1 2",
        "print",
        "screenshot calc build/calc.png",
    };
    std::set<std::string> written;
    for (const char* line : kLines)
    {
        SCOPED_TRACE(line);
        EXPECT_NO_THROW(written.insert(ParseLine(line).name));
    }
    for (const StepForm& form : StepForms())
        EXPECT_TRUE(written.contains(std::string(form.name))) << form.name;
    EXPECT_EQ(written.size(), StepForms().size());
}

TEST(ScriptParser, AWindowAndAControlAreRead)
{
    const Step step = ParseLine("press calc 1000/302");
    EXPECT_EQ(step.window, WindowRole::kCalc);
    EXPECT_EQ(step.control.ids, (std::vector<int>{1000, 302}));
    EXPECT_EQ(step.control.name, "1000/302");
    EXPECT_TRUE(ParseLine("press calc window").control.IsWindow());
    EXPECT_EQ(ParseLine("press message ok").control.ids, (std::vector<int>{ControlPath::kMessageOk}));
    EXPECT_EQ(ParseLine("press message text").control.ids, (std::vector<int>{ControlPath::kMessageText}));
}

TEST(ScriptParser, ACommandWithoutAWindowHasNone)
{
    EXPECT_EQ(ParseLine("command 32788").window, std::nullopt);
    EXPECT_EQ(ParseLine("command 32788").number, 32788);
    EXPECT_EQ(ParseLine("command link 1").window, WindowRole::kLink);
    EXPECT_EQ(ParseLine("command link 1").number, 1);
}

TEST(ScriptParser, ATextIsQuotedOrTheNumberOfAString)
{
    EXPECT_EQ(ParseLine("open \"@7\"").text->text, "@7");
    EXPECT_EQ(ParseLine("open \"@7\"").text->resource, std::nullopt);
    EXPECT_EQ(ParseLine("open @52705").text->resource, 52705);
    EXPECT_EQ(ParseLine("open").text, std::nullopt);
}

TEST(ScriptParser, NumbersMayBeHexadecimal)
{
    const Step step = ParseLine("expect-style calc 1000 exstyle 0x200 0");
    EXPECT_EQ(step.number, 0x200);
    EXPECT_EQ(step.second, 0);
    EXPECT_TRUE(step.Chose("exstyle"));
}

TEST(ScriptParser, ACellIsRowAndColumn)
{
    const Step step = ParseLine("expect-cell calc 1000 2 5 \"x\"");
    EXPECT_EQ(step.cell->row, 2);
    EXPECT_EQ(step.cell->column, 5);
    EXPECT_EQ(ParseLine("expect-image calc 1000 9 4").cell->row, 4);
    EXPECT_EQ(ParseLine("expect-image calc 1000 9").cell, std::nullopt);
}

TEST(ScriptParser, WhatMayBeLeftOutComesInAnyOrder)
{
    for (const char* line : {"click-at calc 1000 1 2 double at 3 4", "click-at calc 1000 1 2 at 3 4 double"})
    {
        SCOPED_TRACE(line);
        const Step step = ParseLine(line);
        EXPECT_TRUE(step.Chose("double"));
        EXPECT_EQ(step.cell->row, 3);
        EXPECT_EQ(step.cell->column, 4);
        EXPECT_EQ(step.measures.at(1).Of(0, 0), 2);
    }
}

TEST(ScriptParser, APixelHasColourToleranceAndPlace)
{
    const Step step = ParseLine("expect-pixel calc 1000 w-3 h/2 F0dC28 8 at 1 2");
    EXPECT_EQ(step.colour, 0xF0DC28U);
    EXPECT_EQ(step.number, 8);
    EXPECT_EQ(step.cell->column, 2);
    EXPECT_EQ(ParseLine("expect-pixel calc 1000 1 1 000000 at 1 2").number, std::nullopt);
}

TEST(ScriptParser, AnEntryHasDataAndManner)
{
    const Step step = ParseLine("expect-entry link 1006 1 \"decreasing\" 52719 bold");
    EXPECT_EQ(step.number, 1);
    EXPECT_EQ(step.second, 52719);
    EXPECT_TRUE(step.Chose("bold"));
    EXPECT_EQ(ParseLine("expect-entry link 1006 1 \"x\" plain").second, std::nullopt);
}

TEST(ScriptParser, AChoiceIsAPlainWordAndAQuotedOneAName)
{
    EXPECT_TRUE(ParseLine("expect-closing-object none").Chose("none"));
    EXPECT_EQ(ParseLine("expect-closing-object \"none\"").words, (std::vector<std::string>{"none"}));
    EXPECT_TRUE(ParseLine("call AddToList null").Chose("null"));
    EXPECT_EQ(ParseLine("call AddToList \"null\"").words, (std::vector<std::string>{"AddToList", "null"}));
}

TEST(ScriptParser, ACallHasItsObjectAndItsFields)
{
    const Step step = ParseLine("on 107 SetDlgParams A2 upper=\"0.2\" kind=3 caption=@52705");
    EXPECT_EQ(step.number, 107);
    EXPECT_EQ(step.words, (std::vector<std::string>{"SetDlgParams", "A2"}));
    ASSERT_EQ(step.fields.size(), 3U);
    EXPECT_EQ(step.fields[0].field, RecordField::kUpperDev);
    EXPECT_EQ(step.fields[0].value.text, "0.2");
    EXPECT_EQ(step.fields[1].field, RecordField::kDimKind);
    EXPECT_EQ(step.fields[1].value.text, "3");
    EXPECT_EQ(step.fields[2].value.resource, 52705);
}

TEST(ScriptParser, ListsTakeAllWordsThatAreLeft)
{
    EXPECT_EQ(ParseLine("expect-notified 32 1 246").codes, (std::vector<int>{32, 1, 246}));
    EXPECT_TRUE(ParseLine("expect-notified").codes.empty());
    EXPECT_EQ(ParseLine("expect-objects A1 \"A 2\"").words, (std::vector<std::string>{"A1", "A 2"}));
    EXPECT_EQ(ParseLine("answer off 1 107").codes, (std::vector<int>{1, 107}));
}

TEST(ScriptParser, ARecordStepNamesWhoseFieldAndWhen)
{
    const Step inside = ParseLine("expect-record 107 closing kind \"1\"");
    EXPECT_EQ(inside.number, 107);
    EXPECT_TRUE(inside.Chose("closing"));
    EXPECT_EQ(inside.field, RecordField::kDimKind);
    const Step now = ParseLine("expect-record now variable law \"1\"");
    EXPECT_EQ(now.number, std::nullopt);
    EXPECT_TRUE(now.Chose("now"));
    EXPECT_EQ(now.field, RecordField::kLaw);
}

TEST(ScriptParser, EveryKeyIsKnown)
{
    const char* const kKeys[] = {
        "Tab",       "Shift+Tab",  "Enter", "F2",       "Space",          "PageUp",  "PageDown", "Home",
        "End",       "Left",       "Right", "Up",       "Down",           "Plus",    "Minus",    "Escape",
        "Ctrl+Left", "Ctrl+Right", "F4",    "Ctrl+Tab", "Ctrl+Shift+Tab", "Alt+Down"};
    for (const char* key : kKeys)
    {
        SCOPED_TRACE(key);
        EXPECT_EQ(ParseLine(std::string("key calc 1000 ") + key).words, (std::vector<std::string>{key}));
    }
    EXPECT_EQ(std::size(kKeys), KeyNames().size());
}

TEST(ScriptParser, EveryOperationOfTheInterfaceCanBeCalled)
{
    for (const Operation& operation : Operations())
    {
        SCOPED_TRACE(operation.name);
        std::string line = "call " + std::string(operation.name);
        if (operation.form == CallForm::kText)
            line += " \"x\"";
        if (operation.form == CallForm::kObject)
            line += " A1";
        EXPECT_NO_THROW(ParseLine(line));
    }
}

TEST(ScriptParser, AnErrorNamesFileLineReasonAndForm)
{
    EXPECT_EQ(ErrorOf("print\n\npress link"), "play.txt:3: CONTROL is missing (press WINDOW CONTROL)");
    EXPECT_EQ(ErrorOf("jump"), "play.txt:1: there is no step jump");
}

TEST(ScriptParser, WhatIsNoStepIsRefusedWithItsReason)
{
    const struct
    {
        const char* line;
        const char* reason;
    } kCases[] = {
        {"drawing", "FILE is missing"},
        {"open Shaft", "unexpected Shaft"},
        {"press dialog 1004", "dialog is no window"},
        {"press link OK", "OK is no control"},
        {"press link 70000", "70000 is no control"},
        {"press link 1000/", "1000/ is no control"},
        {"press link \"1004\"", "a control is a number, not the text \"1004\""},
        {"press link ok", "ok is no control"},
        {"press link 1004 twice", "unexpected twice"},
        {"type link 1007 0.1", "a text stands in double quotes or is @N, not 0.1"},
        {"type link 1007 @x", "the string behind @ must be a number"},
        {"choose link 1006 first", "N must be a number, not first"},
        {"slide weight 1021 -2", "N must be from -1"},
        {"command 70000", "ID must be from 0 to 65535"},
        {"expect-text message window", "TEXT is missing"},
        {"expect-enabled link 1007 maybe", "one of yes|no must stand instead of maybe"},
        {"expect-enabled link 1007", "yes|no is missing"},
        {"click calc 1000 0", "COLUMN is missing"},
        {"click calc 1000 0 0 middle", "unexpected middle"},
        {"click calc 1000 0 0 left right", "unexpected right"},
        {"click-at calc 1000 w+ 1", "\"w+\" is not a place"},
        {"click-at calc 1000 * 1", "X can't be any here"},
        {"click-at calc 1000 1 1 at 1", "COLUMN is missing"},
        {"key calc 1000 F1", "F1 is no key"},
        {"expect-pixel calc 1035 1 1 green", "a colour is six hexadecimal digits"},
        {"expect-pixel calc 1035 1 1 00FF00 300", "TOLERANCE must be from 0 to 255"},
        {"expect-record 1 dim law \"1\"", "the record of a dimension has no field \"law\""},
        {"expect-record 35 variable weightFixed \"1\"", "the record of a distribution has no field \"weightFixed\""},
        {"expect-record 1 dim size \"1\"", "\"size\" is no field"},
        {"expect-record soon dim name \"1\"", "CODE must be a number, not soon"},
        {"expect-focused 1015", "WINDOW is missing"},
        {"call Explode", "Explode is no operation"},
        {"call AddToList", "AddToList needs a dimension or null"},
        {"call SetFileName", "SetFileName needs a text"},
        {"call Delete now", "Delete doesn't take now"},
        {"call SetDlgParams A1 A2", "a field of a record is written name=\"value\", not A2"},
        {"call SetVariableFRowData A1", "a field of a record is written name=\"value\", not A1"},
        {"call SetVariableFRowData upper=1 increasing=1", "the record of a distribution has no field \"increasing\""},
        {"on SetDlgParams A1", "CODE must be a number, not SetDlgParams"},
        {"expect-notified 1 x", "CODE must be a number, not x"},
        {"open \"Shaft", "the text's closing quote is missing"},
        {"open \"a\\t\"", "a backslash in a text"},
        {"menu-dismiss 1", "unexpected 1"},
    };
    for (const auto& [line, reason] : kCases)
    {
        SCOPED_TRACE(line);
        const std::string error = ErrorOf(line);
        EXPECT_TRUE(error.starts_with("play.txt:1: ")) << error;
        EXPECT_NE(error.find(reason), std::string::npos) << error;
    }
}

TEST(ScriptParser, AMissingFileIsNamed)
{
    try
    {
        ParseScriptFile("no/such/play.txt");
        FAIL() << "no error";
    }
    catch (const ScriptError& error)
    {
        EXPECT_STREQ(error.what(), "no/such/play.txt: the script can't be opened");
    }
}

TEST(ScriptParser, AFileIsRead)
{
    const std::filesystem::path file = std::filesystem::temp_directory_path() / "script_parser_test.txt";
    std::ofstream(file, std::ios::binary) << "print\r\nmark\r\n";
    const Script script = ParseScriptFile(file);
    std::filesystem::remove(file);
    ASSERT_EQ(script.steps.size(), 2U);
    EXPECT_EQ(script.steps[1].name, "mark");
    EXPECT_EQ(script.file, file);
}
