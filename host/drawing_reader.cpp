#include "host/drawing_reader.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <fstream>
#include <initializer_list>
#include <limits>
#include <set>
#include <sstream>
#include <system_error>
#include <vector>

#include <nlohmann/json.hpp>

namespace
{
using Json = nlohmann::json;

constexpr double kLargestCoordinate = 1e6;  // millimetres: a kilometre, far beyond any drawing

[[noreturn]] void Refuse(const std::string& fileName, const std::string& place, const std::string& reason)
{
    throw DrawingError(fileName + ": " + (place.empty() ? "" : place + ": ") + reason);
}

/// A value of the file and where it stands, such as dimensions[2].nominal.
class Place
{
public:
    Place(const Json& value, const std::string& fileName) : m_value(value), m_fileName(fileName) {}

    const Json& Value() const { return m_value; }

    [[noreturn]] void Refuse(const std::string& reason) const { ::Refuse(m_fileName, m_path, reason); }

    Place Member(const std::string& name) const
    {
        return {m_value.at(name), m_fileName, m_path.empty() ? name : m_path + "." + name};
    }

    Place Element(std::size_t index) const
    {
        return {m_value.at(index), m_fileName, m_path + "[" + std::to_string(index) + "]"};
    }

    bool Has(const std::string& name) const { return m_value.contains(name); }

    /// Refuses a value that is no object and one with members of other names.
    void ExpectObject(std::initializer_list<std::string_view> members) const
    {
        if (!m_value.is_object())
            Refuse("must be an object");
        for (const auto& [name, value] : m_value.items())
            if (std::find(members.begin(), members.end(), name) == members.end())
                Member(name).Refuse("is not a member that a drawing knows");
    }

    void ExpectArray() const
    {
        if (!m_value.is_array())
            Refuse("must be an array");
    }

private:
    Place(const Json& value, const std::string& fileName, std::string path)
        : m_value(value), m_fileName(fileName), m_path(std::move(path))
    {
    }

    const Json& m_value;
    const std::string& m_fileName;
    std::string m_path;
};

std::string Text(const Place& object, const std::string& name)
{
    if (!object.Has(name))
        return {};
    const Place place = object.Member(name);
    if (!place.Value().is_string())
        place.Refuse("must be a text");
    return place.Value().get<std::string>();
}

std::int32_t Whole(const Place& object, const std::string& name)
{
    using Limits = std::numeric_limits<std::int32_t>;
    if (!object.Has(name))
        return 0;
    const Place place = object.Member(name);
    if (!place.Value().is_number_integer())
        place.Refuse("must be a whole number");
    // An unsigned value above the signed range would turn negative on the way through a signed type.
    if (place.Value().is_number_unsigned() && place.Value().get<std::uint64_t>() > std::uint64_t{Limits::max()})
        place.Refuse("is too large");
    const auto value = place.Value().get<std::int64_t>();
    if (value < Limits::min() || value > Limits::max())
        place.Refuse("is too large");
    return static_cast<std::int32_t>(value);
}

double Coordinate(const Place& place)
{
    if (!place.Value().is_number())
        place.Refuse("must be a number");
    const double value = place.Value().get<double>();
    if (std::abs(value) > kLargestCoordinate)
        place.Refuse("lies outside the drawing area of 1000000 mm");
    return value;
}

DrawingPoint Point(const Place& place)
{
    if (!place.Value().is_array() || place.Value().size() != 2)
        place.Refuse("must be a point [x, y]");
    return {Coordinate(place.Element(0)), Coordinate(place.Element(1))};
}

DrawingDimension Dimension(const Place& place)
{
    place.ExpectObject({"id", "name", "kind", "nominal", "field", "upper", "lower", "caption", "increasing",
                        "weightFixed", "from", "to", "offset"});
    DrawingDimension dimension;
    dimension.id = Text(place, "id");
    dimension.name = Text(place, "name");
    dimension.kind = Whole(place, "kind");
    dimension.nominal = Text(place, "nominal");
    dimension.field = Text(place, "field");
    dimension.upper = Text(place, "upper");
    dimension.lower = Text(place, "lower");
    dimension.caption = Text(place, "caption");
    dimension.increasing = Whole(place, "increasing");
    dimension.weightFixed = Whole(place, "weightFixed");
    if (place.Has("from"))
        dimension.from = Point(place.Member("from"));
    if (place.Has("to"))
        dimension.to = Point(place.Member("to"));
    if (place.Has("offset"))
        dimension.offset = Coordinate(place.Member("offset"));
    return dimension;
}

std::vector<DrawingDimension> Dimensions(const Place& place)
{
    place.ExpectArray();
    std::vector<DrawingDimension> dimensions;
    std::set<std::string> ids;
    for (std::size_t i = 0; i < place.Value().size(); ++i)
    {
        dimensions.push_back(Dimension(place.Element(i)));
        const std::string& id = dimensions.back().id;
        if (!id.empty() && !ids.insert(id).second)
            place.Element(i).Member("id").Refuse("\"" + id + "\" is the id of an earlier dimension");
    }
    return dimensions;
}

std::vector<std::vector<DrawingPoint>> Outlines(const Place& place)
{
    place.ExpectArray();
    std::vector<std::vector<DrawingPoint>> outlines;
    for (std::size_t i = 0; i < place.Value().size(); ++i)
    {
        const Place outline = place.Element(i);
        outline.ExpectArray();
        if (outline.Value().size() < 2)
            outline.Refuse("must have at least two points");
        std::vector<DrawingPoint> points;
        for (std::size_t j = 0; j < outline.Value().size(); ++j)
            points.push_back(Point(outline.Element(j)));
        outlines.push_back(std::move(points));
    }
    return outlines;
}

/// "line 3, column 7" of a byte, both counted from 1; a column is a character, not a byte.
std::string LineAndColumn(std::string_view text, std::size_t byte)
{
    std::size_t line = 1;
    std::size_t column = 1;
    for (const char unit : text.substr(0, byte == 0 ? 0 : byte - 1))
    {
        const bool continuesCharacter = (static_cast<unsigned char>(unit) & 0xC0U) == 0x80U;
        if (unit == '\n')
        {
            ++line;
            column = 1;
        }
        else if (!continuesCharacter)
            ++column;
    }
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

/// The part of the parser's message behind its own bookkeeping, such as "[...] parse error at line 1, column 2: ".
std::string Reason(const std::string& message)
{
    for (const std::string& mark : {std::string("column "), std::string("[")})
    {
        const std::size_t start = message.find(mark);
        const std::size_t end = message.find(mark == "[" ? "] " : ": ", start);
        if (start != std::string::npos && end != std::string::npos)
            return message.substr(end + 2);
    }
    return message;
}

/// Where in the file the parser stands: in each object and array around it the member or element that it reads now.
class ParserPlace
{
public:
    void EnterObject() { m_around.emplace_back(); }
    void EnterArray() { m_around.emplace_back().isArray = true; }
    /// False when the object has a member of that name already.
    bool EnterMember(const std::string& name)
    {
        m_around.back().member = name;
        return m_around.back().members.insert(name).second;
    }
    void LeaveContainer()
    {
        m_around.pop_back();
        LeaveValue();
    }
    void LeaveValue()
    {
        if (!m_around.empty())
            ++m_around.back().index;
    }

    std::string Path() const
    {
        std::string path;
        for (const Container& container : m_around)
        {
            if (container.isArray)
                path += "[" + std::to_string(container.index) + "]";
            else
                path += (path.empty() ? "" : ".") + container.member;
        }
        return path;
    }

private:
    struct Container
    {
        bool isArray = false;
        std::size_t index = 0;  // of an array
        std::string member;     // of an object
        std::set<std::string> members;
    };

    std::vector<Container> m_around;  // from the outermost
};

Json ParseJson(std::string_view text, const std::string& fileName)
{
    ParserPlace place;
    const auto follow = [&](int, Json::parse_event_t event, const Json& value) {
        switch (event)
        {
        case Json::parse_event_t::object_start:
            place.EnterObject();
            break;
        case Json::parse_event_t::array_start:
            place.EnterArray();
            break;
        case Json::parse_event_t::key:
            if (!place.EnterMember(value.get<std::string>()))
                Refuse(fileName, place.Path(), "is given twice");
            break;
        case Json::parse_event_t::object_end:
        case Json::parse_event_t::array_end:
            place.LeaveContainer();
            break;
        case Json::parse_event_t::value:
            place.LeaveValue();
            break;
        }
        return true;
    };
    try
    {
        return Json::parse(text, follow);
    }
    catch (const Json::parse_error& error)
    {
        Refuse(fileName, LineAndColumn(text, error.byte), Reason(error.what()));
    }
    catch (const Json::out_of_range& error)
    {
        Refuse(fileName, place.Path(), Reason(error.what()));
    }
}
}  // namespace

Drawing ParseDrawing(std::string_view json, const std::string& fileName)
{
    const Json document = ParseJson(json, fileName);
    const Place place(document, fileName);
    place.ExpectObject({"title", "comment", "dimensions", "outlines"});
    if (!place.Has("dimensions"))
        place.Refuse("has no member dimensions, so it is not a drawing");

    Drawing drawing;
    drawing.title = Text(place, "title");
    drawing.comment = Text(place, "comment");
    drawing.dimensions = Dimensions(place.Member("dimensions"));
    if (place.Has("outlines"))
        drawing.outlines = Outlines(place.Member("outlines"));
    return drawing;
}

Drawing ReadDrawingFile(const std::filesystem::path& file)
{
    const std::u8string utf8 = file.u8string();
    const std::string fileName(utf8.begin(), utf8.end());
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(file, error);
    if (!std::filesystem::exists(status))
        Refuse(fileName, "", "there is no such file");
    if (std::filesystem::is_directory(status))
        Refuse(fileName, "", "is a folder, not a drawing file");
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    if (!stream.is_open() || stream.bad())
        Refuse(fileName, "", "can't be read");
    return ParseDrawing(text.str(), fileName);
}
