#include "tools/phonebook_link.h"

#include <array>
#include <utility>

namespace quenda {
namespace {

// The system hands its callback no context.
PhonebookLink* the_link = nullptr;  // NOLINT(*-avoid-non-const-global-variables)

constexpr DWORD kAnswerTime = 5000;  // milliseconds for the tool to agree

class Name {
 public:
  Name(DWORD instance, const wchar_t* text)
      : instance_(instance), handle_(DdeCreateStringHandleW(instance, text, CP_WINUNICODE)) {}
  Name(const Name&) = delete;
  Name& operator=(const Name&) = delete;
  ~Name() { DdeFreeStringHandle(instance_, handle_); }
  [[nodiscard]] HSZ get() const { return handle_; }

 private:
  DWORD instance_;
  HSZ handle_;
};

}  // namespace

PhonebookLink::PhonebookLink(std::function<void(const std::string&)> on_text)
    : on_text_(std::move(on_text)) {
  the_link = this;
  DdeInitializeW(&instance_, &PhonebookLink::callback, APPCMD_CLIENTONLY, 0);
}

PhonebookLink::~PhonebookLink() {
  if (conversation_ != nullptr) DdeDisconnect(conversation_);
  DdeUninitialize(instance_);
  the_link = nullptr;
}

bool PhonebookLink::connect(const std::wstring& service) {
  const Name name(instance_, service.c_str());
  const Name topic(instance_, L"book");
  const Name item(instance_, L"txtDDE");
  conversation_ = DdeConnect(instance_, name.get(), topic.get(), nullptr);
  if (conversation_ == nullptr) return false;
  DdeClientTransaction(nullptr, 0, conversation_, item.get(), CF_TEXT, XTYP_ADVSTART, kAnswerTime,
                       nullptr);
  return true;
}

bool PhonebookLink::open() {
  if (conversation_ == nullptr) return false;
  CONVINFO info{};
  info.cb = sizeof info;
  const bool partner =
      DdeQueryConvInfo(conversation_, QID_SYNC, &info) != 0 && IsWindow(info.hwndPartner) != 0;
  if (!partner) conversation_ = nullptr;
  return partner;
}

HDDEDATA CALLBACK PhonebookLink::callback(UINT type, UINT /*format*/, HCONV /*conversation*/,
                                          HSZ /*topic*/, HSZ /*item*/, HDDEDATA data,
                                          ULONG_PTR /*data1*/, ULONG_PTR /*data2*/) noexcept {
  if (the_link == nullptr) return nullptr;
  if (type == XTYP_DISCONNECT) the_link->conversation_ = nullptr;
  if (type != XTYP_ADVDATA) return nullptr;
  std::array<char, 200> text{};
  DdeGetData(data, reinterpret_cast<BYTE*>(text.data()), text.size() - 1, 0);  // NOLINT
  the_link->on_text_(text.data());
  return reinterpret_cast<HDDEDATA>(DDE_FACK);  // NOLINT: as the API has it
}

}  // namespace quenda
