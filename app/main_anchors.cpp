#include "app/main_anchors.h"

#include <string_view>

#include "platform/controls/form.h"

namespace quenda {
namespace {

struct AnchorEntry {
  std::string_view name;  // of all controls of an array
  Anchor across;
  Anchor down;
};

constexpr AnchorEntry kAnchors[] = {
    {"frmTitle", Anchor::kBoth, Anchor::kStart},
    {"labTitle", Anchor::kBoth, Anchor::kStart},
    {"labHelp", Anchor::kBoth, Anchor::kStart},
    {"frmPages", Anchor::kBoth, Anchor::kBoth},
    {"frmImp", Anchor::kBoth, Anchor::kBoth},
    {"frmImpOL", Anchor::kBoth, Anchor::kBoth},
    {"PicProgress", Anchor::kBoth, Anchor::kEnd},
    {"cmdBack", Anchor::kEnd, Anchor::kEnd},
    {"cmdFor", Anchor::kEnd, Anchor::kEnd},
    {"cmdCancel", Anchor::kEnd, Anchor::kEnd},
    {"cmdHelp", Anchor::kStart, Anchor::kEnd},
    {"txtImpFile", Anchor::kBoth, Anchor::kStart},
    {"cmdFile", Anchor::kEnd, Anchor::kStart},
    {"labIspy", Anchor::kBoth, Anchor::kStart},
    {"labOLver", Anchor::kBoth, Anchor::kStart},
    {"labOLhint", Anchor::kBoth, Anchor::kStart},
    {"labHeader", Anchor::kShare, Anchor::kStart},
    {"lstHeader", Anchor::kShare, Anchor::kStart},
    {"lstShow", Anchor::kBoth, Anchor::kBoth},
    {"cmbFlipAdress", Anchor::kBoth, Anchor::kStart},
    {"txtAdres", Anchor::kBoth, Anchor::kStart},
    {"frmBind", Anchor::kBoth, Anchor::kStart},
    {"txtAdresBind", Anchor::kBoth, Anchor::kStart},
    {"lstImpFinal", Anchor::kBoth, Anchor::kBoth},
    {"cmdEditItems", Anchor::kEnd, Anchor::kStart},
    {"cmdDel", Anchor::kEnd, Anchor::kStart},
    {"labDelete", Anchor::kEnd, Anchor::kStart},
    {"frmAsk", Anchor::kEnd, Anchor::kStart},
    {"labStateCode", Anchor::kEnd, Anchor::kStart},
    {"txtStateCode", Anchor::kEnd, Anchor::kStart},
    {"labOVW", Anchor::kEnd, Anchor::kStart},
    {"txtOVW", Anchor::kEnd, Anchor::kStart},
    {"labOVWhint", Anchor::kEnd, Anchor::kStart},
    {"lstImport", Anchor::kBoth, Anchor::kBoth},
};

}  // namespace

void anchor_main_controls(Form& form) {
  for (Control* control : form.controls()) {
    for (const AnchorEntry& entry : kAnchors) {
      if (control->name() == entry.name) control->set_anchors(entry.across, entry.down);
    }
    // The pages that leave room for the preview keep their height.
    const bool above_preview =
        control->name() == "frmImp" && (control->index() == 1 || control->index() == 2);
    if (above_preview) control->set_anchors(Anchor::kBoth, Anchor::kStart);
  }
  form.set_resizable(true);
}

}  // namespace quenda
