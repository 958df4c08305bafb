#include "host/player/measure.h"

#include <cctype>
#include <cstdlib>
#include <stdexcept>

namespace
{

constexpr std::size_t kMostDigits = 6;  // a place on a screen never needs more, and products stay inside an int

int Apply(char operation, int left, int right)
{
    switch (operation)
    {
    case '+':
        return left + right;
    case '-':
        return left - right;
    case '*':
        return left * right;
    default:
        return right == 0 ? 0 : left / right;
    }
}

bool IsDigit(char character)
{
    return std::isdigit(static_cast<unsigned char>(character)) != 0;
}

}  // namespace

Measure Measure::Parse(std::string_view text)
{
    Measure measure;
    measure.m_text = text;
    if (text == "*")
        return measure;

    std::size_t at = 0;
    char operation = '+';
    if (text.starts_with('-'))
    {
        operation = '-';
        ++at;
    }
    while (true)
    {
        Part part{operation, 0, 0};
        const std::size_t start = at;
        while (at < text.size() && IsDigit(text[at]))
            ++at;
        if (at > start)
        {
            if (at - start > kMostDigits)
                throw std::invalid_argument("number too large in \"" + measure.m_text + "\"");
            part.number = std::atoi(measure.m_text.c_str() + start);
        }
        else if (at < text.size() && (text[at] == 'w' || text[at] == 'h'))
        {
            part.unit = text[at];
            ++at;
        }
        else
        {
            throw std::invalid_argument("\"" + measure.m_text + "\" is not a place: write it from numbers, w and h");
        }
        measure.m_parts.push_back(part);
        if (at == text.size())
            return measure;
        operation = text[at];
        if (std::string_view("+-*/").find(operation) == std::string_view::npos)
            throw std::invalid_argument("\"" + measure.m_text + "\" is not a place: write it from numbers, w and h");
        ++at;
    }
}

int Measure::Of(int width, int height) const
{
    int sum = 0;
    int term = 0;
    for (const Part& part : m_parts)
    {
        int value = part.number;
        if (part.unit == 'w')
            value = width;
        else if (part.unit == 'h')
            value = height;

        if (part.operation == '+' || part.operation == '-')
        {
            sum += term;
            term = Apply(part.operation, 0, value);
        }
        else
        {
            term = Apply(part.operation, term, value);
        }
    }
    return sum + term;
}
