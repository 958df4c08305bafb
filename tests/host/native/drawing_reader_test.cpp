#include "host/drawing_reader.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace
{
/// The message with which the text is refused; empty when it is a drawing after all.
std::string Refusal(std::string_view json)
{
    try
    {
        ParseDrawing(json, "plate.json");
    }
    catch (const DrawingError& error)
    {
        return error.what();
    }
    return {};
}

/// A file of the test's own that is gone afterwards.
class TemporaryFile
{
public:
    TemporaryFile(const std::filesystem::path& name, std::string_view content)
        : m_path(std::filesystem::temp_directory_path() / name)
    {
        std::ofstream(m_path, std::ios::binary) << content;
    }
    ~TemporaryFile() { std::filesystem::remove(m_path); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const std::filesystem::path& Path() const { return m_path; }

private:
    std::filesystem::path m_path;
};
}  // namespace

TEST(ParseDrawing, ReadsEveryMember)
{
    const Drawing drawing = ParseDrawing(R"({ "title": "Gearbox shaft", "comment": "by hand",
        "dimensions": [ { "id": "A1", "name": "Länge", "kind": 3, "nominal": "40", "field": "h8", "upper": "0",
                          "lower": "-0.039", "caption": "left end", "increasing": 1, "weightFixed": 2,
                          "from": [1, 2.5], "to": [40, -3], "offset": -15.5 } ],
        "outlines": [ [[0,0],[40,0],[0,0]], [[1,2],[3,4]] ] })",
                                         "shaft.json");

    EXPECT_EQ(drawing.title, "Gearbox shaft");
    EXPECT_EQ(drawing.comment, "by hand");
    ASSERT_EQ(drawing.dimensions.size(), 1U);
    const DrawingDimension& a1 = drawing.dimensions[0];
    EXPECT_EQ(a1.id, "A1");
    EXPECT_EQ(a1.name, "Länge");
    EXPECT_EQ(a1.kind, 3);
    EXPECT_EQ(a1.nominal, "40");
    EXPECT_EQ(a1.field, "h8");
    EXPECT_EQ(a1.upper, "0");
    EXPECT_EQ(a1.lower, "-0.039");
    EXPECT_EQ(a1.caption, "left end");
    EXPECT_EQ(a1.increasing, 1);
    EXPECT_EQ(a1.weightFixed, 2);
    EXPECT_EQ(a1.from, (DrawingPoint{1, 2.5}));
    EXPECT_EQ(a1.to, (DrawingPoint{40, -3}));
    EXPECT_EQ(a1.offset, -15.5);
    ASSERT_EQ(drawing.outlines.size(), 2U);
    EXPECT_EQ(drawing.outlines[0], (std::vector<DrawingPoint>{{0, 0}, {40, 0}, {0, 0}}));
    EXPECT_EQ(drawing.outlines[1], (std::vector<DrawingPoint>{{1, 2}, {3, 4}}));
}

TEST(ParseDrawing, MissingTextsAreEmptyAndMissingNumbersZero)
{
    const Drawing drawing = ParseDrawing(R"({ "dimensions": [ {}, {} ] })", "plate.json");

    EXPECT_EQ(drawing.title, "");
    EXPECT_TRUE(drawing.outlines.empty());
    ASSERT_EQ(drawing.dimensions.size(), 2U);
    const DrawingDimension& dimension = drawing.dimensions[1];
    EXPECT_EQ(dimension.id + dimension.name + dimension.nominal + dimension.field + dimension.upper + dimension.lower +
                  dimension.caption,
              "");
    EXPECT_EQ(dimension.kind, 0);
    EXPECT_EQ(dimension.increasing, 0);
    EXPECT_EQ(dimension.weightFixed, 0);
    EXPECT_EQ(dimension.from, DrawingPoint{});
    EXPECT_EQ(dimension.to, DrawingPoint{});
    EXPECT_EQ(dimension.offset, 0);
}

TEST(ParseDrawing, AcceptsAByteOrderMark)
{
    EXPECT_EQ(Refusal("\xEF\xBB\xBF{ \"dimensions\": [] }"), "");
}

TEST(ParseDrawing, RefusalNamesFilePlaceAndReason)
{
    struct Case
    {
        const char* json;
        const char* message;
    };
    const Case cases[] = {
        {R"([])", "plate.json: must be an object"},
        {R"({})", "plate.json: has no member dimensions, so it is not a drawing"},
        {R"({ "dimensions": {} })", "plate.json: dimensions: must be an array"},
        {R"({ "dimensions": [ 1 ] })", "plate.json: dimensions[0]: must be an object"},
        {R"({ "dimensions": [ {}, {}, { "nominal": 40 } ] })", "plate.json: dimensions[2].nominal: must be a text"},
        {R"({ "dimensions": [ { "nominl": "40" } ] })",
         "plate.json: dimensions[0].nominl: is not a member that a drawing knows"},
        {R"({ "dimensions": [], "Outlines": [] })", "plate.json: Outlines: is not a member that a drawing knows"},
        {R"({ "dimensions": [ { "kind": 1.5 } ] })", "plate.json: dimensions[0].kind: must be a whole number"},
        {R"({ "dimensions": [ { "increasing": true } ] })",
         "plate.json: dimensions[0].increasing: must be a whole number"},
        {R"({ "dimensions": [ { "kind": 2147483648 } ] })", "plate.json: dimensions[0].kind: is too large"},
        {R"({ "dimensions": [ { "kind": 18446744073709551615 } ] })", "plate.json: dimensions[0].kind: is too large"},
        {R"({ "dimensions": [ { "kind": -2147483649 } ] })", "plate.json: dimensions[0].kind: is too large"},
        {R"({ "dimensions": [ { "from": [1] } ] })", "plate.json: dimensions[0].from: must be a point [x, y]"},
        {R"({ "dimensions": [ { "to": [1, 2, 3] } ] })", "plate.json: dimensions[0].to: must be a point [x, y]"},
        {R"({ "dimensions": [ { "to": [1, "2"] } ] })", "plate.json: dimensions[0].to[1]: must be a number"},
        {R"({ "dimensions": [ { "offset": "5" } ] })", "plate.json: dimensions[0].offset: must be a number"},
        {R"({ "dimensions": [ { "offset": 1000001 } ] })",
         "plate.json: dimensions[0].offset: lies outside the drawing area of 1000000 mm"},
        {R"({ "dimensions": [ { "id": "A" }, { "id": "A" } ] })",
         "plate.json: dimensions[1].id: \"A\" is the id of an earlier dimension"},
        {R"({ "title": 5, "dimensions": [] })", "plate.json: title: must be a text"},
        {R"({ "dimensions": [], "outlines": [ 5 ] })", "plate.json: outlines[0]: must be an array"},
        {R"({ "dimensions": [], "outlines": [ [[0,0]] ] })", "plate.json: outlines[0]: must have at least two points"},
        {R"({ "dimensions": [], "outlines": [ [[0,0],[0]] ] })", "plate.json: outlines[0][1]: must be a point [x, y]"},
        {R"({ "title": "A", "title": "B", "dimensions": [] })", "plate.json: title: is given twice"},
        {R"({ "dimensions": [ {}, { "from": [0, 0], "id": "A", "id": "B" } ] })",
         "plate.json: dimensions[1].id: is given twice"},
        {R"({ "dimensions": [ { "from": { "x": 1, "y": 2, "x": 3 } } ] })",
         "plate.json: dimensions[0].from.x: is given twice"},
        {R"({ "dimensions": [ { "id": "A" }, { "kind": 1, "offset": 1e999 } ] })",
         "plate.json: dimensions[1].offset: number overflow parsing '1e999'"},
        {R"({ "dimensions": [], "outlines": [ [], [[0, 0], [-1e999, 0]] ] })",
         "plate.json: outlines[1][1][0]: number overflow parsing '-1e999'"},
    };
    for (const Case& refused : cases)
    {
        SCOPED_TRACE(refused.json);
        EXPECT_EQ(Refusal(refused.json), refused.message);
    }
}

// The second line is {"dimensions": [ "ä" "b" ]}: the text "b" begins at character 22 of it.
TEST(ParseDrawing, BrokenSyntaxIsRefusedWithLineAndColumn)
{
    const std::string message = Refusal("\n{\"dimensions\": [ \"\xC3\xA4\" \"b\" ]}");

    EXPECT_EQ(message.find("plate.json: line 2, column "), 0U) << message;
    EXPECT_NE(message.find("syntax error while parsing array"), std::string::npos) << message;
    EXPECT_EQ(message.find("json.exception"), std::string::npos) << message;
}

TEST(ParseDrawing, EmptyTextIsRefused)
{
    EXPECT_EQ(Refusal("").find("plate.json: line 1, column 1: "), 0U) << Refusal("");
}

TEST(ParseDrawing, TextThatIsNotUtf8IsRefused)
{
    EXPECT_EQ(Refusal("{ \"title\": \"\xFF\", \"dimensions\": [] }").find("plate.json: line 1, column "), 0U);
}

TEST(ReadDrawingFile, ReadsAFileWhoseNameIsNotAscii)
{
    const TemporaryFile file(std::filesystem::path(u8"чертёж-host.json"), R"({ "title": "T", "dimensions": [] })");

    EXPECT_EQ(ReadDrawingFile(file.Path()).title, "T");
}

TEST(ReadDrawingFile, MissingFileIsRefusedWithItsName)
{
    try
    {
        ReadDrawingFile("no-such-folder/plate.json");
        FAIL() << "was read";
    }
    catch (const DrawingError& error)
    {
        EXPECT_STREQ(error.what(), "no-such-folder/plate.json: there is no such file");
    }
}

TEST(ReadDrawingFile, FolderIsRefused)
{
    const std::filesystem::path folder = std::filesystem::temp_directory_path();
    try
    {
        ReadDrawingFile(folder);
        FAIL() << "was read";
    }
    catch (const DrawingError& error)
    {
        EXPECT_NE(std::string(error.what()).find(": is a folder, not a drawing file"), std::string::npos);
    }
}
