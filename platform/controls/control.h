#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/view.h"

namespace quenda {

class Control;

/// Background colours by meaning; the native side turns them into the system's colours.
enum class BackColor { kButtonFace, kWindow };

/// Position and size in twips (1440 to the inch), relative to the parent frame or the form.
struct Place {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  friend bool operator==(const Place&, const Place&) = default;
};

/// What a control does along one axis when its parent is larger than designed: keep its distance
/// from the start, from the end, or from both by growing; keep its share of the parent, as
/// neighbours in a row do; or only move to where its share begins, as the label of such a
/// neighbour. Where a splitter parts the parent, the shares end and begin at it.
enum class Anchor { kStart, kEnd, kBoth, kShare, kShareStart };

/// What kind of native control shows a control.
enum class ControlKind {
  kLabel,
  kFrame,
  kButton,
  kCheckBox,
  kOptionButton,
  kTextBox,
  kListBox,
  kComboList,
  kListView,
  kPicture,
  kSplitter,
  kStatusBar,
  kTimer,
};

/// The window that controls belong to, as far as controls need to know it.
class ControlHost {
 public:
  /// The controls in the order of their construction, which is that of their ids.
  [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
  /// While input is locked, only controls that are always usable take any: long work locks it
  /// before it handles events for the first time.
  [[nodiscard]] bool input_locked() const { return input_locked_; }
  void lock_input(bool locked);
  /// Puts a control behind all others, so that one more does not change the ids of those.
  void move_to_end(Control& control);

 protected:
  ControlHost() = default;
  ~ControlHost() = default;

 private:
  friend class Control;
  std::vector<Control*> controls_;
  bool input_locked_ = false;
};

/// State and events that all controls share. Setters store, tell the peer, and raise the event
/// themselves; what the user does comes in by the take_user_ operations, which do not tell the peer
/// back.
class Control {
 public:
  /// `index` is the position in a control array, -1 for a control that stands alone.
  Control(ControlHost& host, ControlKind kind, std::string_view name, int index = -1);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control();

  [[nodiscard]] ControlKind kind() const { return kind_; }
  [[nodiscard]] const std::string& name() const { return name_; }
  [[nodiscard]] int index() const { return index_; }
  [[nodiscard]] ControlHost& host() const { return host_; }

  [[nodiscard]] const std::string& caption() const { return caption_; }
  void set_caption(std::string_view caption);
  /// A name for screen readers where the caption alone says too little; empty means the caption.
  [[nodiscard]] const std::string& spoken_name() const { return spoken_name_; }
  void set_spoken_name(std::string_view name);

  /// The control's own switch; a control inside a disabled frame takes no input whatever it says.
  [[nodiscard]] bool enabled() const { return enabled_; }
  void set_enabled(bool enabled);
  /// Keeps the control usable while the form's input is locked.
  void set_always_usable() { always_usable_ = true; }
  /// Whether the control itself takes input now: enabled, and not locked with its form. This is
  /// what a peer shows.
  [[nodiscard]] bool takes_input() const {
    return enabled_ && (always_usable_ || !host_.input_locked_);
  }
  [[nodiscard]] bool visible() const { return visible_; }
  void set_visible(bool visible);
  [[nodiscard]] BackColor back_color() const { return back_color_; }
  void set_back_color(BackColor color);

  [[nodiscard]] const Place& place() const { return place_; }
  void set_place(const Place& place);
  /// Moves the control without changing its size.
  void move_to(int left, int top);
  /// How the control takes part when the user makes the window larger.
  [[nodiscard]] Anchor anchor_across() const { return anchor_across_; }
  [[nodiscard]] Anchor anchor_down() const { return anchor_down_; }
  void set_anchors(Anchor across, Anchor down) {
    if (anchor_across_ == across && anchor_down_ == down) return;
    anchor_across_ = across;
    anchor_down_ = down;
    refresh(Aspect::kPlace);
  }
  /// A heading is shown in larger, bold letters. Part of the design, not changed later.
  [[nodiscard]] bool heading() const { return heading_; }
  void set_heading(bool heading) { heading_ = heading; }
  /// The frame that holds the control; null for one that lies on the form itself.
  [[nodiscard]] Control* parent() const { return parent_; }
  void set_parent(Control* parent) { parent_ = parent; }
  /// Position in the tab order of the form; -1 is never reached by the Tab key.
  [[nodiscard]] int tab_index() const { return tab_index_; }
  void set_tab_index(int tab_index) { tab_index_ = tab_index; }

  void bring_to_front() { refresh(Aspect::kZOrder); }
  /// Gives the control the keyboard focus and raises its event.
  void set_focus();
  /// Whether the control and all frames around it take input and are visible.
  [[nodiscard]] bool reachable() const;

  std::function<void()> on_got_focus;
  void take_user_focus();

  void attach(ControlPeer* peer) { peer_ = peer; }
  [[nodiscard]] ControlPeer* peer() const { return peer_; }

 protected:
  void refresh(Aspect aspect) {
    if (peer_ != nullptr) peer_->refresh(aspect);
  }

 private:
  friend class ControlHost;

  ControlHost& host_;
  ControlKind kind_;
  std::string name_;
  int index_;
  std::string caption_;
  std::string spoken_name_;
  bool enabled_ = true;
  bool visible_ = true;
  bool always_usable_ = false;
  bool heading_ = false;
  BackColor back_color_;
  Place place_;
  Anchor anchor_across_ = Anchor::kStart;
  Anchor anchor_down_ = Anchor::kStart;
  Control* parent_ = nullptr;
  int tab_index_ = -1;
  ControlPeer* peer_ = nullptr;
};

}  // namespace quenda
