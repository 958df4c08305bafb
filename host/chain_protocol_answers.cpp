// What the host does when a child dialog was confirmed.

#include "host/chain_protocol.h"

#include "host/exchanged_records.h"

void ChainProtocol::AcceptLink()
{
    CDimParams params;
    m_dialog->GetDimDlgParams(params);
    if (params.nominal.IsEmpty())
        return;  // nothing was loaded
    if (m_round == ChainRound::kEditing || m_round == ChainRound::kEditingLink)
        RewriteLink(params);
    else
        AddLink(params);
}

void ChainProtocol::AddLink(const CDimParams& params)
{
    const DrawingObject* const object = ObjectFor(params);
    if (object == nullptr)
        return;
    FollowChain();
    const std::size_t before = m_copy.Links().size();
    m_dialog->AddToList(const_cast<DrawingObject*>(object));
    FollowChain();
    if (m_copy.Links().size() == before + 1)
        m_copy.SetLastLink(ToCopy(params));
}

void ChainProtocol::RewriteLink(CDimParams& params)
{
    m_dialog->SetCurrentFRowData(params);
    FollowChain();
    std::optional<CopiedLink> values;
    if (m_editedLink && m_copy.Links().at(*m_editedLink).values)
        values = Rewritten(*m_copy.Links()[*m_editedLink].values, params);
    ChangeEditedLink(values);
}

void ChainProtocol::AcceptClosing()
{
    CDimParams params;
    m_dialog->GetCloseDimDlgParams(params);
    if (params.nominal.IsEmpty())
        return;
    CopiedLink values = ToCopy(params);
    if (m_round == ChainRound::kEditing || m_round == ChainRound::kEditingClosing)
    {
        FollowChain();
        if (!m_copy.Closing())
            return;  // deleted meanwhile: there is nothing to rewrite
        m_dialog->SetCloseFRowData(params);
        if (!m_copy.Closing()->values)
            return;
        values.law = m_copy.Closing()->values->law;
        m_copy.SetClosing(m_copy.Closing()->object, values);
        return;
    }
    const DrawingObject* const object = ObjectFor(params);
    if (object == nullptr)
        return;
    m_dialog->AddCloseDimToList(const_cast<DrawingObject*>(object));
    m_copy.SetClosing(object, values);
}

void ChainProtocol::AcceptDistribution()
{
    CVariableParams params;
    m_dialog->GetVariableDlgParams(params);
    const auto change = [&params](CopiedLink values) {
        values.law = params.law;
        values.mean = params.mean;
        return values;
    };
    if (m_round == ChainRound::kAddingLink || m_round == ChainRound::kLinkDistribution)
    {
        m_dialog->SetVariableFRowData(params);
        FollowChain();
        std::optional<CopiedLink> values;
        if (m_editedLink && m_copy.Links().at(*m_editedLink).values)
            values = change(*m_copy.Links()[*m_editedLink].values);
        ChangeEditedLink(values);
    }
    else if (m_round == ChainRound::kAddingClosing || m_round == ChainRound::kClosingDistribution)
    {
        m_dialog->SetVariableCloseFRowData(params);
        FollowChain();
        if (m_copy.Closing() && m_copy.Closing()->values)
            m_copy.SetClosing(m_copy.Closing()->object, change(*m_copy.Closing()->values));
    }
}

// The dimension that was picked; a record that somebody else loaded is recognised by its name.
const DrawingObject* ChainProtocol::ObjectFor(const CDimParams& params) const
{
    const auto hasNominal = [&params](const DrawingObject& object) {
        return ToParams(object.dimension).nominal == params.nominal;
    };
    if (m_loaded != nullptr && hasNominal(*m_loaded))
        return m_loaded;
    for (std::size_t i = 0; i < m_objects.Count(); ++i)
    {
        const DrawingObject& object = m_objects.At(i);
        if (hasNominal(object) && ToParams(object.dimension).name == params.name)
            return &object;
    }
    return nullptr;
}

void ChainProtocol::ChangeEditedLink(const std::optional<CopiedLink>& values)
{
    if (m_editedLink)
        m_copy.SetLink(*m_editedLink, values);
    else
        m_copy.ForgetLinks();
}
