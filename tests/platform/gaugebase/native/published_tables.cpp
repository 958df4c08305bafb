#include "tests/platform/gaugebase/native/published_tables.h"

#include <sstream>

namespace published
{

std::vector<std::vector<std::string>> Lines(std::string_view csv)
{
    std::vector<std::vector<std::string>> lines;
    std::istringstream text{std::string(csv)};
    std::string line;
    std::getline(text, line);  // heading
    while (std::getline(text, line))
    {
        std::vector<std::string> cells(1);
        for (const char letter : line)
        {
            if (letter == ',')
                cells.emplace_back();
            else
                cells.back() += letter;
        }
        lines.push_back(cells);
    }
    return lines;
}

}  // namespace published
