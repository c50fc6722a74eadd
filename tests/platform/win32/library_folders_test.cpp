// A library that lies beside the program under the name of one that is loaded late.
#include "platform/win32/library_folders.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "platform/win32/windows_headers.h"
// windows.h has to come first.
#include <oleacc.h>

namespace quenda {
namespace {

std::wstring folder_of(HMODULE library) {
  std::array<wchar_t, MAX_PATH> path{};
  GetModuleFileNameW(library, path.data(), static_cast<DWORD>(path.size()));
  const std::wstring text(path.data());
  return text.substr(0, text.find_last_of(L'\\'));
}

TEST(LibraryFolders, WhatLiesBesideTheProgramIsNotLoaded) {
  const HMODULE planted = LoadLibraryW(L"oleacc.dll");
  ASSERT_EQ(folder_of(planted), folder_of(nullptr)) << "without protection it would be";
  FreeLibrary(planted);
  load_from_system_folders_only();
  void* object = nullptr;
  CreateStdAccessibleObject(GetDesktopWindow(), OBJID_WINDOW, IID_IAccessible, &object);
  std::array<wchar_t, MAX_PATH> system{};
  GetSystemDirectoryW(system.data(), static_cast<UINT>(system.size()));
  EXPECT_EQ(lstrcmpiW(folder_of(GetModuleHandleW(L"oleacc.dll")).c_str(), system.data()), 0);
}

}  // namespace
}  // namespace quenda
