#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/win32/windows_headers.h"
// ddeml.h needs windows.h first.
#include <ddeml.h>

namespace quenda {

/// The phone book's end of its conversation with the import tool. Texts arrive while the thread
/// that made the object handles its messages. One object at a time.
class PhonebookLink {
 public:
  explicit PhonebookLink(std::function<void(const std::string&)> on_text);
  ~PhonebookLink();
  PhonebookLink(const PhonebookLink&) = delete;
  PhonebookLink& operator=(const PhonebookLink&) = delete;

  /// Asks the tool of that name for a conversation and for every text to come; false while nobody
  /// of that name answers.
  bool connect(const std::wstring& service);
  /// Whether the tool's end is still there. Not every system tells when a program has gone.
  [[nodiscard]] bool open();

 private:
  static HDDEDATA CALLBACK callback(UINT type, UINT format, HCONV conversation, HSZ topic, HSZ item,
                                    HDDEDATA data, ULONG_PTR data1, ULONG_PTR data2) noexcept;

  std::function<void(const std::string&)> on_text_;
  DWORD instance_ = 0;
  HCONV conversation_ = nullptr;
};

}  // namespace quenda
