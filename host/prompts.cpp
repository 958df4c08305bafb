#include "host/prompts.h"

#include "host/resource.h"
#include "platform/text/text_encoding.h"

namespace
{

UINT PromptId(ChainRound round)
{
    switch (round)
    {
    case ChainRound::kClosed:
        return IDS_PROMPT_NO_DIALOG;
    case ChainRound::kIdle:
        return IDS_PROMPT_IDLE;
    case ChainRound::kAddingLink:
        return IDS_PROMPT_PICK_LINK;
    case ChainRound::kAddingClosing:
        return IDS_PROMPT_PICK_CLOSING;
    case ChainRound::kEditing:
        return IDS_PROMPT_EDIT;
    case ChainRound::kEditingLink:
        return IDS_PROMPT_EDIT_LINK;
    case ChainRound::kEditingClosing:
        return IDS_PROMPT_EDIT_CLOSING;
    case ChainRound::kLinkDistribution:
    case ChainRound::kClosingDistribution:
        return IDS_PROMPT_DISTRIBUTION;
    }
    return IDS_PROMPT_IDLE;
}

CString TextWithName(UINT id, const DrawingObject& object)
{
    const CString name = FromUtf8(object.dimension.name.empty() ? object.Name() : object.dimension.name);
    CString text;
    text.Format(id, name.GetString());
    return text;
}

}  // namespace

CString PromptFor(ChainRound round, const DrawingObject* loaded)
{
    if (loaded != nullptr)
        return TextWithName(IDS_PROMPT_LOADED, *loaded);
    CString text;
    text.LoadString(PromptId(round));
    return text;
}

CString NoNominalPrompt(const DrawingObject& object)
{
    return TextWithName(IDS_PROMPT_NO_NOMINAL, object);
}
