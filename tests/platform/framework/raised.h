#pragma once

/// Runs `action`, and deletes the EXCEPTION that it throws by pointer. Anything else that is thrown passes.
/// @return  whether it was thrown
template <class EXCEPTION, class Action>
bool Raises(Action action)
{
    try
    {
        action();
    }
    catch (EXCEPTION* exception)
    {
        exception->Delete();
        return true;
    }
    return false;
}
