// Stands beside the test under the name of a library of the system.
#include <windows.h>

extern "C" __declspec(dllexport) HRESULT WINAPI
    CreateStdAccessibleObject(HWND, LONG, REFIID, void** object) {
  *object = nullptr;
  return E_FAIL;
}
extern "C" __declspec(dllexport) LRESULT WINAPI LresultFromObject(REFIID, WPARAM, void*) {
  return 0;
}
BOOL WINAPI DllMain(HINSTANCE, DWORD, void*) { return TRUE; }
