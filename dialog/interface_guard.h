#pragma once

#include <exception>

#include <afxwin.h>

/// Whether the action says that it succeeded. What it throws ends here and is a failure: no exception crosses the
/// interface.
template <typename Action>
bool Succeeds(Action action)
{
    try
    {
        return action();
    }
    catch (CException* exception)
    {
        exception->Delete();
        return false;
    }
    catch (const std::exception&)
    {
        return false;
    }
}
