#pragma once

#include <functional>
#include <string_view>

namespace quenda {

/// What the link tells the main form.
struct HostLinkEvents {
  std::function<void()> opened;
  std::function<void()> closed;
  std::function<void()> failed;
};

/// The source side of the conversation with the phone book: one item whose text the phone book
/// watches. The application name of the conversation is the executable's name.
class HostLink {
 public:
  virtual ~HostLink() = default;
  /// Begins to accept conversations on the topic; the events come while the program yields.
  virtual void offer(std::string_view topic, std::string_view item, HostLinkEvents events) = 0;
  /// Sets the item's text and tells it to every phone book that watches.
  virtual void set_text(std::string_view text) = 0;
  /// Ends all conversations after the last text has been delivered; never waits for long.
  virtual void shut_down() noexcept = 0;
};

}  // namespace quenda
