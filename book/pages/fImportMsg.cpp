#include "book/pages/fImportMsg.h"

#include "settings/app.h"
#include "support/procedure.h"
#include "text/text.h"
#include "wizard/shell/design.h"

namespace quenda {
namespace {

constexpr DesignEntry kDesign[] = {
    {"labMsgNumber", -1, "", -1, {240, 210, 6720, 255}, -1, "Import_Label_ItemExistWithNumber"},
    {"labIn", -1, "", -1, {240, 630, 6720, 255}, -1, "Import_Option_RetainDataSet"},
    {"labMsgIn", -1, "", -1, {240, 870, 6720, 480}, -1, ""},
    {"labNew", -1, "", -1, {240, 1380, 6720, 255}, -1, "Import_Option_NewDataSet"},
    {"labMsgNew", -1, "", -1, {240, 1620, 6720, 480}, -1, ""},
    {"optAsk", 0, "", -1, {240, 2220, 6720, 300}, 0, "Import_Option_AskAgain"},
    {"optAsk", 1, "", -1, {240, 2550, 6720, 300}, 1, "Import_Option_ApplyAll"},
    {"cmdMsg", 0, "", -1, {3660, 3060, 1600, 390}, 2, "Import_Button_Retain"},
    {"cmdMsg", 1, "", -1, {5360, 3060, 1600, 390}, 3, "Button_Resume"},
};

}  // namespace

fImportMsg::fImportMsg(App& app) : Form("fImportMsg"), app_(app) {
  design();
  connect();
  Language();
}

void fImportMsg::design() {
  apply_design(*this, kDesign);
  set_place({0, 0, 7200, 3630});
  for (Label* shown : {&labMsgNumber, &labMsgIn, &labMsgNew}) shown->set_shows_data(true);
  optAsk(0).choose();
  default_button = &cmdMsg(0);
}

void fImportMsg::connect() {
  for (const auto& button : cmdMsg) {
    button->on_click = [this, index = button->index()] { cmdMsg_Click(index); };
  }
  on_query_unload = [this](bool& cancel, CloseReason reason) { Form_QueryUnload(cancel, reason); };
  on_got_focus = [this] { cmdMsg(0).set_focus(); };
}

void fImportMsg::Language() {
  procedure(app_.errors, "fImportMsg.Language", {}, [&] {
    set_caption(concat("Quenda - ", app_.text("Import_Title")));
    load_captions(*this, kDesign, app_);
  }).or_go_on();
}

void fImportMsg::fill(std::string_view number, std::string_view existing, std::string_view fresh) {
  labMsgNumber.set_caption(concat(app_.text("Import_Label_ItemExistWithNumber"), ": ", number));
  labMsgIn.set_caption(existing);
  labMsgNew.set_caption(fresh);
}

void fImportMsg::cmdMsg_Click(int index) {
  procedure(app_.errors, "fImportMsg.cmdMsg_Click", {index}, [&] {
    answer = DoubleAnswer{.take_new = index == 1, .for_all = optAsk(1).chosen()};
    unload();
  }).or_go_on();
}

void fImportMsg::Form_QueryUnload(bool& cancel, CloseReason reason) {
  procedure(app_.errors, "fImportMsg.Form_QueryUnload", {}, [&] {
    cancel = reason == CloseReason::kCloseBox;
  }).or_go_on();
}

}  // namespace quenda
