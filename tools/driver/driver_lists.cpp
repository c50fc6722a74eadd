#include "tools/driver/driver_lists.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>

#include "platform/win32/handles.h"
#include "platform/win32/text_win32.h"
#include "tools/driver/driver_input.h"

namespace quenda {
namespace {

constexpr int kLongestCell = 512;

/// Memory in the process of a window, for the messages of common controls, which the system does
/// not carry from one process to another.
class RemoteMemory {
 public:
  explicit RemoteMemory(const Window& window)
      : process_(open_process_of(window)),
        address_(static_cast<std::byte*>(VirtualAllocEx(
            process_.get(), nullptr, kSize, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE))) {}
  RemoteMemory(const RemoteMemory&) = delete;
  RemoteMemory& operator=(const RemoteMemory&) = delete;
  ~RemoteMemory() { VirtualFreeEx(process_.get(), address_, 0, MEM_RELEASE); }

  [[nodiscard]] LPARAM parameter() const { return as_lparam(address_); }
  [[nodiscard]] wchar_t* text() const { return reinterpret_cast<wchar_t*>(address_ + kHead); }

  template <class T>
  void put(const T& value) const {
    WriteProcessMemory(process_.get(), address_, &value, sizeof value, nullptr);
  }
  template <class T>
  [[nodiscard]] T get() const {
    T value{};
    ReadProcessMemory(process_.get(), address_, &value, sizeof value, nullptr);
    return value;
  }
  [[nodiscard]] std::string get_text(const void* from) const {
    std::array<wchar_t, kLongestCell> units{};
    ReadProcessMemory(process_.get(), from, units.data(), sizeof units - sizeof(wchar_t), nullptr);
    return nearest_1252(units.data());
  }

 private:
  static HANDLE open_process_of(const Window& window) {
    DWORD id = 0;
    GetWindowThreadProcessId(window.handle(), &id);
    return OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, 0, id);
  }

  static constexpr std::size_t kHead = 256;  // for the structure in front of the text
  static constexpr std::size_t kSize = kHead + kLongestCell * sizeof(wchar_t);
  KernelHandle process_;
  std::byte* address_;
};

LRESULT send(const Window& window, UINT message, WPARAM wparam = 0, LPARAM lparam = 0) {
  return SendMessageW(window.handle(), message, wparam, lparam);
}

std::string cell(const Window& table, const RemoteMemory& memory, int row, int column) {
  LVITEMW item{};
  item.iSubItem = column;
  item.pszText = memory.text();
  item.cchTextMax = kLongestCell;
  memory.put(item);
  send(table, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), memory.parameter());
  return memory.get_text(memory.get<LVITEMW>().pszText);
}

}  // namespace

std::vector<std::string> entries_of(const Window& list) {
  std::vector<std::string> entries;
  const LRESULT count = send(list, LB_GETCOUNT);
  for (LRESULT i = 0; i < count; ++i) {
    std::array<wchar_t, kLongestCell> units{};
    send(list, LB_GETTEXT, static_cast<WPARAM>(i), as_lparam(units.data()));
    entries.push_back(nearest_1252(units.data()));
  }
  return entries;
}

std::vector<std::string> selected_in(const Window& list) {
  const auto entries = entries_of(list);
  std::vector<std::string> selected;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (send(list, LB_GETSEL, i) > 0) selected.push_back(entries[i]);
  }
  return selected;
}

void choose(const Window& list, std::string_view entry) {
  const auto entries = entries_of(list);
  const auto at = std::find(entries.begin(), entries.end(), entry);
  ASSERT_NE(at, entries.end()) << "there is no entry " << entry;
  const auto position = static_cast<WPARAM>(at - entries.begin());
  if (send(list, LB_GETSEL, position) > 0) return;
  RECT place{};
  send(list, LB_GETITEMRECT, position, as_lparam(&place));
  RECT inner{};
  GetClientRect(list.handle(), &inner);
  if (place.top < 0 || place.bottom > inner.bottom) {
    send(list, LB_SETTOPINDEX, position);
    send(list, LB_GETITEMRECT, position, as_lparam(&place));
  }
  click_at(list, {10, (place.top + place.bottom) / 2 + 2});
  EXPECT_TRUE(becomes([&] { return send(list, LB_GETSEL, position) > 0; })) << entry;
}

int row_count(const Window& table) { return static_cast<int>(send(table, LVM_GETITEMCOUNT)); }

std::vector<TableRow> rows_of(const Window& table, int most) {
  const Window header(from_lparam<HWND__>(send(table, LVM_GETHEADER)));
  const auto columns = static_cast<int>(send(header, HDM_GETITEMCOUNT));
  const RemoteMemory memory(table);
  std::vector<TableRow> rows;
  for (int row = 0; row < std::min(most, row_count(table)); ++row) {
    rows.emplace_back();
    for (int column = 0; column < columns; ++column) {
      rows.back().push_back(cell(table, memory, row, column));
    }
  }
  return rows;
}

int selected_row(const Window& table) {
  return static_cast<int>(send(table, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

POINT point_in_row(const Window& table, int row) {
  const RemoteMemory memory(table);
  send(table, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
  memory.put(RECT{LVIR_LABEL, 0, 0, 0});
  send(table, LVM_GETITEMRECT, static_cast<WPARAM>(row), memory.parameter());
  const RECT place = memory.get<RECT>();
  return {place.left + 12, (place.top + place.bottom) / 2 + 2};
}

void select_row(const Window& table, int row) {
  click_at(table, point_in_row(table, row));
  EXPECT_TRUE(becomes([&] { return selected_row(table) == row; })) << "row " << row;
}

std::string panel_of(const Window& window, int panel) {
  const Window bar = window.first(STATUSCLASSNAMEW);
  const RemoteMemory memory(bar);
  memory.put(std::array<wchar_t, 100>{});
  send(bar, SB_GETTEXTW, static_cast<WPARAM>(panel - 1), memory.parameter());
  return memory.get_text(from_lparam<void>(memory.parameter()));
}

}  // namespace quenda
