#include "platform/win32/controls/text_box_peer.h"

#include "platform/win32/text_win32.h"
#include "platform/win32/windows/form_window.h"
#include "text/code_page_1252.h"

namespace quenda {
namespace {

class NativeTextBox : public PeerOf<TextBox> {
 public:
  using PeerOf::PeerOf;

  void on_command(UINT code) override {
    if (code != EN_CHANGE || muted()) return;
    const std::wstring shown = window_text(window());
    typed().take_user_text(nearest_1252(shown));
    // Pasted characters that the tool cannot hold are shown as what it took for them.
    if (shown != wide(typed().text())) refresh(Aspect::kText);
  }

 protected:
  [[nodiscard]] WindowSpec spec() const override {
    const DWORD locked = typed().locked() ? ES_READONLY : 0;
    return {WC_EDITW, true, ES_AUTOHSCROLL | locked, WS_EX_CLIENTEDGE, typed().text()};
  }

  void show(Aspect aspect) override {
    switch (aspect) {
      case Aspect::kText:
        show_text();
        break;
      case Aspect::kSelection:
        send(EM_SETSEL, static_cast<WPARAM>(typed().selection_start()),
             typed().selection_start() + typed().selection_length());
        break;
      case Aspect::kEnabled:
        show_locked();
        break;
      default:
        break;
    }
  }

  /// Every typed character passes the field, which says what becomes of it.
  bool on_message(UINT message, WPARAM& wparam, LPARAM /*lparam*/, LRESULT& /*result*/) override {
    if (message != WM_CHAR || typed().locked()) return false;
    const auto unit = static_cast<wchar_t>(wparam);
    const int code = byte_1252_of(static_cast<char32_t>(unit));
    const auto passed =
        code < 0 ? std::int16_t{0} : typed().take_user_key(static_cast<std::int16_t>(code));
    if (passed <= 0 || passed > 0xFF) {
      MessageBeep(MB_OK);
      return true;
    }
    wparam = static_cast<WPARAM>(unicode_of_1252(static_cast<unsigned char>(passed)));
    return false;
  }

 private:
  void show_locked() const {
    const bool shown = (GetWindowLongPtrW(window(), GWL_STYLE) & ES_READONLY) != 0;
    if (shown != typed().locked()) send(EM_SETREADONLY, typed().locked() ? TRUE : FALSE);
  }

  /// The place of the caret is kept, for a text that is corrected while the user types it.
  void show_text() const {
    if (window_text(window()) == wide(typed().text())) return;
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(window(), EM_GETSEL, reinterpret_cast<WPARAM>(&start), as_lparam(&end));
    set_window_text(typed().text());
    send(EM_SETSEL, start, static_cast<LPARAM>(end));
  }
};

}  // namespace

std::unique_ptr<NativeControl> make_text_box(FormWindow& form, TextBox& box) {
  return std::make_unique<NativeTextBox>(form, box);
}

}  // namespace quenda
