#include "host/player/step_handler.h"

const StepHandler* FindStepHandler(std::string_view name)
{
    for (const auto& handlers :
         {HostSteps(), MouseSteps(), KeyboardSteps(), ChoiceSteps(), MenuSteps(), ControlExpectations(),
          EntryExpectations(), GridExpectations(), PictureSteps(), ProtocolExpectations(), ResourceSteps()})
    {
        for (const StepHandler& handler : handlers)
        {
            if (handler.name == name)
                return &handler;
        }
    }
    return nullptr;
}
