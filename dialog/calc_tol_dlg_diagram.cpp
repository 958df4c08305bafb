// The calculation dialog's picture: every paint computes the closing link and draws it.

#include <vector>

#include "diagram/chain_diagram_layout.h"
#include "dialog/calc_tol_dlg.h"
#include "dialog/columns.h"
#include "dialog/row_values.h"
#include "platform/moduleskin/module_skin.h"
#include "platform/moduleskin/resource.h"
#include "platform/text/text_encoding.h"

namespace
{

std::string ResourceText(UINT id)
{
    CString text;
    text.LoadString(id);
    return ToUtf8(text);
}

}  // namespace

// The picture is drawn into its own control; the dialog has nothing to paint itself.
void CCalcTolDlg::OnPaint()
{
    const CPaintDC paint(this);
    const CModuleSkin skin(kModuleCalcTol);
    m_diagram.ShowDrawing(LayoutChainDiagram(DiagramInput()));
}

ChainDiagramInput CCalcTolDlg::DiagramInput()
{
    CRect area;
    m_diagram.GetClientRect(&area);
    ChainDiagramInput input;
    input.width = area.Width();
    input.height = area.Height();
    input.method = m_calcMethod;
    if (GetCloseObject() == nullptr)
        return input;

    std::vector<ComponentLink> links;
    for (const Row* link = ChainRow()->FirstChild(); link != nullptr; link = link->NextSibling())
        links.push_back(ComponentLinkOf(*link));
    const Row& closing = *ClosingRow();
    input.closing = ClosingLinkOf(closing);
    input.nominalText = ToUtf8(closing.Text(kColumnNominal));
    input.result = Calculate(m_calcMethod, links, input.closing);
    input.caption = ResourceText(IDS_DIAGRAM_CAPTION);
    input.upperWord = ResourceText(IDS_UPPER_LIMIT);
    input.lowerWord = ResourceText(IDS_LOWER_LIMIT);
    input.mismatchLines = {ResourceText(IDS_MISMATCH_LINE_1), ResourceText(IDS_MISMATCH_LINE_2),
                           ResourceText(IDS_MISMATCH_LINE_3)};
    return input;
}
