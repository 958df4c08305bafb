#include "host/played_frame.h"

#include <stdexcept>

#include "host/drawing_reader.h"
#include "host/exchanged_records.h"
#include "platform/text/text_encoding.h"

void PlayedFrame::LoadDrawing(const std::filesystem::path& file)
{
    m_frame.ShowDrawing(ReadDrawingFile(file));
}

void PlayedFrame::OpenDialog(const std::optional<std::string>& label)
{
    if (m_frame.Protocol().HasWindow())
        throw std::runtime_error("the calculation dialog is open already");
    const std::optional<CString> text = label ? std::optional(FromUtf8(*label)) : std::nullopt;
    if (!m_frame.OpenCalculation(text))
        throw std::runtime_error("the calculation dialog can't be opened");
}

void PlayedFrame::Pick(const std::string& dimension)
{
    m_frame.ClickDimension(Object(dimension));
}

void* PlayedFrame::ObjectOf(const std::string& dimension) const
{
    return const_cast<DrawingObject*>(&Object(dimension));
}

std::optional<std::string> PlayedFrame::DimensionOf(const void* object) const
{
    const DrawingObject* const known = m_frame.Objects().Known(object);
    return known == nullptr ? std::nullopt : std::optional(known->Name());
}

CDimParams PlayedFrame::RecordOf(const std::string& dimension) const
{
    return ToParams(Object(dimension).dimension);
}

const DrawingObject& PlayedFrame::Object(const std::string& dimension) const
{
    const DrawingObject* const object = m_frame.Objects().Find(dimension);
    if (object == nullptr)
        throw std::runtime_error("the drawing has no dimension " + dimension);
    return *object;
}
