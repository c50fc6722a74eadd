#include "wizard/shell/design.h"

#include "platform/controls/form.h"
#include "settings/app.h"
#include "text/fault.h"

namespace quenda {
namespace {

Control& control_of(const Form& form, std::string_view name, int index) {
  Control* const control = form.find(name, index);
  if (control == nullptr) raise_fault(kFaultNoControlElement);
  return *control;
}

}  // namespace

void apply_design(Form& form, std::span<const DesignEntry> design) {
  for (const DesignEntry& entry : design) {
    Control& control = control_of(form, entry.name, entry.index);
    control.set_place(entry.place);
    control.set_tab_index(entry.tab_index);
    if (!entry.frame.empty()) control.set_parent(&control_of(form, entry.frame, entry.frame_index));
  }
}

void load_captions(Form& form, std::span<const DesignEntry> design, App& app) {
  for (const DesignEntry& entry : design) {
    if (entry.caption.empty()) continue;
    control_of(form, entry.name, entry.index).set_caption(app.text(entry.caption));
  }
}

}  // namespace quenda
