#include "book/pages/fImportMsg.h"

#include <initializer_list>

#include "settings/app.h"
#include "support/procedure.h"
#include "text/text.h"
#include "wizard/shell/design.h"
#include "wizard/shell/help.h"

namespace quenda {
namespace {

constexpr DesignRow<fImportMsg> kDesign[] = {
    {.control = control_at<&fImportMsg::labMsgNumber>,
     .place = {240, 210, 6600, 255},
     .caption = "Import_Label_ItemExistWithNumber"},
    {.control = control_at<&fImportMsg::labCount>, .place = {6960, 210, 1320, 255}},
    {.control = control_at<&fImportMsg::labIn>,
     .place = {1380, 630, 3360, 255},
     .caption = "Import_Option_RetainDataSet"},
    {.control = control_at<&fImportMsg::labNew>,
     .place = {4920, 630, 3360, 255},
     .caption = "Import_Option_NewDataSet"},
    {.control = control_at<&fImportMsg::labName>,
     .place = {240, 960, 1080, 255},
     .caption = "String_Name"},
    {.control = control_at<&fImportMsg::labAdress>,
     .place = {240, 1440, 1080, 255},
     .caption = "String_Address"},
    {.control = control_at<&fImportMsg::labMsgIn>, .place = {1380, 960, 3360, 960}},
    {.control = control_at<&fImportMsg::labMsgNew>, .place = {4920, 960, 3360, 960}},
    {.control = control_at<&fImportMsg::labAnswer>,
     .place = {240, 2070, 8040, 480},
     .caption = "Import_Label_AnswerOne"},
    {.control = control_at<&fImportMsg::optAsk, 0>,
     .place = {240, 2610, 8040, 300},
     .tab = 0,
     .caption = "Import_Option_AskAgain"},
    {.control = control_at<&fImportMsg::optAsk, 1>,
     .place = {240, 2940, 8040, 300},
     .tab = 1,
     .caption = "Import_Option_ApplyAll"},
    {.control = control_at<&fImportMsg::cmdMsg, 0>,
     .place = {4980, 3450, 1600, 390},
     .tab = 2,
     .caption = "Import_Button_Retain"},
    {.control = control_at<&fImportMsg::cmdMsg, 1>,
     .place = {6680, 3450, 1600, 390},
     .tab = 3,
     .caption = "Button_Resume"},
    {.control = control_at<&fImportMsg::cmdHelp>,
     .place = {240, 3450, 1400, 390},
     .tab = 4,
     .caption = "Button_Help"},
};

}  // namespace

fImportMsg::fImportMsg(App& app) : Form("fImportMsg"), app_(app) {
  design();
  connect();
  Language();
}

void fImportMsg::design() {
  apply_design(*this, kDesign);
  set_place({0, 0, 8520, 4020});
  for (Label* shown : std::initializer_list<Label*>{&labMsgNumber, &labMsgIn, &labMsgNew}) {
    shown->set_shows_data(true);
  }
  labCount.set_at_end(true);
  labAnswer.set_announced();
  optAsk(0).choose();
  default_button = &cmdMsg(0);
}

void fImportMsg::connect() {
  for (const auto& button : cmdMsg) {
    button->on_click = [this, index = button->index()] { cmdMsg_Click(index); };
  }
  on_query_unload = [this](bool& cancel, CloseReason reason) { Form_QueryUnload(cancel, reason); };
  for (const auto& option : optAsk) {
    option->on_click = [this] { optAsk_Click(); };
  }
  cmdHelp.on_click = [this] { cmdHelp_Click(); };
  on_help = cmdHelp.on_click;
  on_got_focus = [this] { cmdMsg(0).set_focus(); };
}

void fImportMsg::Language() {
  procedure(app_.errors, "fImportMsg.Language", {}, [&] {
    set_caption(concat("Quenda - ", app_.text("Import_Title")));
    load_captions(*this, kDesign, app_);
  }).or_go_on();
}

void fImportMsg::fill(std::string_view number, std::string_view existing, std::string_view fresh) {
  procedure(app_.errors, "fImportMsg.fill", {number, existing, fresh}, [&] {
    labMsgNumber.set_caption(concat(app_.text("Import_Label_ItemExistWithNumber"), ": ", number));
    labMsgIn.set_caption(existing);
    labMsgNew.set_caption(fresh);
  }).or_go_on();
}

void fImportMsg::compare(const DoubleQuestion& question) {
  procedure(app_.errors, "fImportMsg.compare", {}, [&] {
    const BookContact& old = question.existing;
    const BookContact& fresh = question.fresh;
    const bool other_name = !equal_ignoring_case(old.name, fresh.name);
    const bool other_address = !equal_ignoring_case(old.address, fresh.address);
    const auto parts = [&](const BookContact& contact) {
      return std::vector<PartsLabel::Part>{{std::string(contact.name), other_name},
                                           {std::string(contact.address), other_address}};
    };
    labMsgIn.set_parts(parts(old));
    labMsgNew.set_parts(parts(fresh));
    const std::string place =
        replace_all(app_.text("Import_Label_QuestionOf"), "%1", std::to_string(question.place));
    labCount.set_caption(replace_all(place, "%2", std::to_string(question.count())));
  }).or_go_on();
}

void fImportMsg::optAsk_Click() {
  procedure(app_.errors, "fImportMsg.optAsk_Click", {}, [&] {
    labAnswer.set_caption(app_.text(optAsk(1).chosen() ? TextKey("Import_Label_AnswerAll")
                                                       : "Import_Label_AnswerOne"));
  }).or_go_on();
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

void fImportMsg::cmdHelp_Click() {
  procedure(app_.errors, "fImportMsg.cmdHelp_Click", {}, [&] { open_help(app_); }).or_go_on();
}

}  // namespace quenda
