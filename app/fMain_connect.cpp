#include "app/fMain.h"
#include "platform/files.h"
#include "platform/host_link.h"
#include "settings/app.h"
#include "text/text.h"

// Which event of which control runs which procedure.
namespace quenda {
namespace {

/// A separator that is pasted would split the entry's line; the key filter sees typed ones only.
void keep_separators_out(TextBox& box) {
  if (box.text().find(';') != std::string::npos) box.set_text(replace_all(box.text(), ";", ","));
}

}  // namespace

void fMain::connect() {
  cmdBack.on_click = [this] { cmdBack_Click(); };
  cmdFor.on_click = [this] { cmdFor_Click(); };
  cmdCancel.on_click = [this] { cmdCancel_Click(); };
  cmdCancel.set_always_usable();
  cmdHelp.on_click = [this] { cmdHelp_Click(); };
  on_help = [this] { cmdHelp.take_user_click(); };
  on_unload = [this] { Form_Unload(); };
  on_got_focus = [this] { Form_GotFocus(); };
  on_drop_file = [this](std::string_view path) {
    // A dropped file is taken like a chosen one, as long as a source can be chosen.
    if (!txtImpFile.reachable() || !app_.machine.files.exists(path)) return;
    txtImpFile.set_text("");
    txtImpFile.set_text(path);
  };
  on_unusable_path = [this](std::string_view nearest) { app_.refuse_path(nearest); };
  txtDDE.on_change = [this] { app_.machine.host_link.set_text(txtDDE.text()); };
  tmOLcheck.on_timer = [this] { tmOLcheck_Timer(); };

  cmdFile.on_click = [this] { cmdFile_Click(); };
  cmdIspy.on_click = [this] { cmdIspy_Click(); };
  cmdOutlook.on_click = [this] { cmdOutlook_Click(); };
  txtImpFile.on_change = [this] { txtImpFile_Change(); };
  cmbLimiter.on_click = [this] { cmbLimiter_Click(); };

  for (const auto& list : lstHeader) {
    list->on_click = [this, index = list->index()] { lstHeader_Click(index); };
  }
  chkFlip.on_click = [this] { chkFlip_Click(); };
  for (const auto& box : txtIndex) {
    box->on_change = [&box = *box] { keep_separators_out(box); };
    box->on_key_press = [this](std::int16_t& code) { txtIndex_KeyPress(code); };
  }
  cmbFlipAdress.on_click = [this] { cmbFlipAdress_Click(); };
  for (const auto& box : chk1) box->on_click = [this, i = box->index()] { chk1_Click(i); };
  for (const auto& box : chk2) box->on_click = [this, i = box->index()] { chk2_Click(i); };
  for (const auto& box : chk3) box->on_click = [this, i = box->index()] { chk3_Click(i); };

  lstImpFinal.on_double_click = [this] { lstImpFinal_DblClick(); };
  lstImpFinal.on_key_down = [this](std::int16_t code) { lstImpFinal_KeyDown(code); };
  cmdEditItems.on_click = [this] { cmdEditItems_Click(); };
  cmdDel.on_click = [this] { cmdDel_Click(); };
  for (const auto& option : optAsk) {
    option->on_click = [this, index = option->index()] { optAsk_Click(index); };
  }

  for (const auto& box : chkImport) {
    box->on_click = [this, index = box->index()] { chkImport_Click(index); };
  }
  for (const auto& box : chkAdr) {
    box->on_click = [this, index = box->index()] { chkAdr_Click(index); };
  }
  for (CheckBox* box : {&chkFlipName, &chkFlipAdress}) {
    box->on_click = [this] {
      if (!wizard.loading) DataView();
    };
  }
  for (const auto& box : txtImport) {
    box->on_change = [this, &box = *box] {
      keep_separators_out(box);
      txtImport_Change();
    };
    box->on_key_press = [this](std::int16_t& code) { txtImport_KeyPress(code); };
  }
}

}  // namespace quenda
