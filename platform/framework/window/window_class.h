#pragma once

/// Makes the classes of the common controls known to Windows; does nothing the second time.
void RegisterCommonControls();
