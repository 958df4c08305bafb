// The main function of a program with a global CWinApp.

#include <afxwin.h>

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE previousInstance, LPWSTR commandLine, int showCommand)
{
    return AfxWinMain(instance, previousInstance, commandLine, showCommand);
}
