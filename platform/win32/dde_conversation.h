#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win32/handles.h"

namespace quenda {

/// The tool's end of the conversation with one host: a window of its own, by which the host knows
/// it, and what the host watches. There is one item. Hosts watch it hot (each text is sent) or warm
/// (they are told that there is a new one), as Windows-1252 or as Unicode, or ask for it.
class DdeConversation {
 public:
  /// `window` is the tool's end; `host` is the window that the host has opened for this.
  DdeConversation(WindowHandle window, HWND host, std::string_view item);

  /// Sends the text to every watch that has not been told of it yet.
  void tell(std::string_view text);
  /// Answers a message of the host, all but its goodbye; `text` is what the item says now. Orders
  /// to do something and data for the tool are refused.
  void answer(UINT message, LPARAM carried, std::string_view text);
  /// Tells the host that the conversation is over. Hosts say it, too, and are answered by it.
  void say_goodbye() const;
  [[nodiscard]] HWND host() const { return host_; }
  /// A host that is gone without a word has no window any more.
  [[nodiscard]] bool alive() const { return IsWindow(host_) != 0; }

 private:
  struct Watch {
    UINT format = CF_TEXT;
    bool warm = false;
    std::optional<std::string> told = {};  // a text reaches each watch once
  };

  [[nodiscard]] bool offers(UINT format, ATOM item) const;
  /// Begins a watch, in place of an older one in the same form; it has been told nothing yet.
  bool watch(HGLOBAL options, ATOM item);
  bool forget(UINT format, ATOM item);
  void send(std::string_view text, UINT format, bool asked_for) const;
  /// Posts the item's name and a block of memory, which is the host's from then on.
  void post(HGLOBAL data) const;
  /// Posts the answer to a message, in the memory that came with it.
  void acknowledge(UINT message, LPARAM carried, UINT_PTR about, bool accepted) const;

  WindowHandle window_;
  HWND host_;
  std::wstring item_;
  std::vector<Watch> watches_;
};

}  // namespace quenda
