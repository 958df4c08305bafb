#include "tolerance/tolerance_database.h"

#include "calc/number_text.h"
#include "platform/gaugebase/gauge_base.h"
#include "platform/text/text_encoding.h"

namespace
{

// The first element is looked at whatever the count: fields without any short list are a broken library, and the
// array's argument check reports it.
bool IsListed(const CStringArray& shortList, const CString& code)
{
    if (shortList.GetAt(0) == code)
        return true;
    for (INT_PTR i = 1; i < shortList.GetCount(); ++i)
        if (shortList.GetAt(i) == code)
            return true;
    return false;
}

/// Adds entries behind each other and keeps the index of the one to be selected.
class BoxFiller
{
public:
    BoxFiller(CTolBox& box, const CString& current) : m_box(box), m_current(current) {}

    void Add(const CString& code, bool listed)
    {
        const int index = m_box.Insert(m_count++, code, listed);
        if (code == m_current)
            m_selected = index;
    }

    void Select()
    {
        if (m_selected != CB_ERR)
            m_box.SetCurSel(m_selected);
    }

private:
    CTolBox& m_box;
    const CString& m_current;
    int m_count = 0;
    int m_selected = CB_ERR;
};

}  // namespace

void FillTolBox(CTolBox& box, bool listedOnly)
{
    const CString current = box.EditText();
    box.ResetContent();
    box.SetEditText(current);  // where the system empties the edit part with the list

    CStringArray first;
    CStringArray second;
    CStringArray shortList;
    if (GetTolList(first, second, shortList) == 0)
        return;

    BoxFiller filler(box, current);
    if (listedOnly)
    {
        for (INT_PTR i = 0; i < shortList.GetCount(); ++i)
            filler.Add(shortList.GetAt(i), true);
    }
    else
    {
        for (INT_PTR a = 0; a < first.GetCount(); ++a)
            for (INT_PTR b = 0; b < second.GetCount(); ++b)
            {
                const CString code = first.GetAt(a) + second.GetAt(b);
                filler.Add(code, IsListed(shortList, code));
            }
    }
    filler.Select();
}

std::optional<DeviationPair> FieldDeviations(const CString& nominal, const CString& field)
{
    const auto size = static_cast<float>(TextToNumber(ToUtf8(nominal)));
    float lower = 0.0F;
    float upper = 0.0F;
    if (GetDimTol(size, ToUtf8(field).c_str(), &lower, &upper) == 0)
        return std::nullopt;
    return DeviationPair{.upper = LibraryDeviationText(upper), .lower = LibraryDeviationText(lower)};
}
