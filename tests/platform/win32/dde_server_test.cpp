// The host link with real hosts: each runs in a thread of its own with its own message loop, as
// the phone book does in its process.
#include "platform/win32/dde_server.h"
// windows.h has to come first.
#include <dde.h>
#include <ddeml.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>

#include "platform/win32/handles.h"
#include "platform/win32/text_win32.h"
#include "platform/win32/windows/form_window.h"

namespace quenda {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What a host has heard, in its order.
class Heard {
 public:
  void add(std::string text) {
    const std::lock_guard lock(mutex_);
    texts_.push_back(std::move(text));
  }
  std::vector<std::string> all() {
    const std::lock_guard lock(mutex_);
    return texts_;
  }

 private:
  std::mutex mutex_;
  std::vector<std::string> texts_;
};

thread_local Heard* heard_here = nullptr;

HDDEDATA CALLBACK host_callback(UINT type, UINT format, HCONV, HSZ, HSZ, HDDEDATA data, ULONG_PTR,
                                ULONG_PTR) {
  if (type == XTYP_DISCONNECT) heard_here->add("(end)");
  if (type != XTYP_ADVDATA) return nullptr;
  if (data == nullptr) {
    heard_here->add("(news)");
    return from_lparam<HDDEDATA__>(DDE_FACK);
  }
  wchar_t units[40] = {};
  DdeGetData(data, from_lparam<BYTE>(as_lparam(units)), sizeof units - 2, 0);
  heard_here->add(format == CF_TEXT ? std::string(from_lparam<char>(as_lparam(units)))
                                    : nearest_1252(units));
  return from_lparam<HDDEDATA__>(DDE_FACK);
}

/// A phone book that connects, watches the item in one form or several, and listens until told to
/// leave. A warm one is told that there is news, and asks for it when it likes.
class Host {
 public:
  enum class Watch { kHot, kWarm, kHotAfterAsking };
  Host(MessageLoop& tool, const std::string& topic, const std::vector<UINT>& formats,
       Watch watch = Watch::kHot)
      : tool_(tool), thread_([=, this] { run(topic, formats, watch); }) {}
  Host(MessageLoop& tool, const std::string& topic, UINT format)
      : Host(tool, topic, std::vector<UINT>{format}) {}
  ~Host() { leave(); }
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;

  /// The tool goes on meanwhile, since it has to agree to the end.
  void leave() {
    stop_ = true;
    while (!gone_) {
      tool_.pump();
      Sleep(1);
    }
    if (thread_.joinable()) thread_.join();
  }
  /// Without a word, as a program that is killed.
  void die() {
    dies_ = true;
    leave();
  }
  std::vector<std::string> heard() { return heard_.all(); }
  [[nodiscard]] bool refused() const { return refused_; }

 private:
  void run(const std::string& topic, const std::vector<UINT>& formats, Watch watch) {
    heard_here = &heard_;
    DWORD instance = 0;
    DdeInitializeW(&instance, &host_callback, APPCMD_CLIENTONLY, 0);
    const auto name = [&](std::string_view text) {
      return DdeCreateStringHandleW(instance, wide(text).c_str(), CP_WINUNICODE);
    };
    const HCONV link = DdeConnect(instance, name("Import"), name(topic), nullptr);
    refused_ = link == nullptr;
    const UINT start = XTYP_ADVSTART | (watch == Watch::kWarm ? XTYPF_NODATA : 0);
    for (const UINT format : formats) {
      if (refused_) break;
      if (watch == Watch::kHotAfterAsking) {
        DdeFreeDataHandle(DdeClientTransaction(nullptr, 0, link, name("txtDDE"), format,
                                               XTYP_REQUEST, 3000, nullptr));
      }
      DdeClientTransaction(nullptr, 0, link, name("txtDDE"), format, start, 3000, nullptr);
    }
    while (!stop_ && !refused_) {
      MSG message{};
      while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) DispatchMessageW(&message);
      Sleep(1);
    }
    // The windows of a thread that ends go with it.
    if (!refused_ && !dies_) DdeDisconnect(link);
    if (!dies_) DdeUninitialize(instance);
    gone_ = true;
  }

  MessageLoop& tool_;
  Heard heard_;
  std::atomic<bool> stop_ = false;
  std::atomic<bool> dies_ = false;
  std::atomic<bool> gone_ = false;
  std::atomic<bool> refused_ = false;
  std::thread thread_;
};

class DdeServerTest : public testing::Test {
 protected:
  DdeServerTest() {
    server_.offer("book", "txtDDE",
                  {[this] {
                     ++opened_;
                     server_.set_text("ON");
                   },
                   [this] { ++closed_; }, [this] { ++failed_; }});
  }

  /// Handles messages until the condition holds, for so many milliseconds at most.
  bool becomes(const std::function<bool()>& condition, ULONGLONG patience = 3000) {
    const ULONGLONG end = GetTickCount64() + patience;
    while (!condition() && GetTickCount64() < end) {
      loop_.pump();
      Sleep(1);
    }
    return condition();
  }
  bool hears(Host& host, const std::string& text) {
    return becomes([&] {
      const auto all = host.heard();
      return !all.empty() && all.back() == text;
    });
  }

  MessageLoop loop_;
  DdeServer server_{loop_, "Import"};
  Form form_{"fTest"};
  FormWindow main_{loop_, form_, nullptr};  // what hosts find
  int opened_ = 0;
  int closed_ = 0;
  int failed_ = 0;
};

TEST_F(DdeServerTest, EveryHostHearsEachTextOnceInEitherForm) {
  Host first(loop_, "book", CF_TEXT);
  ASSERT_TRUE(hears(first, "ON"));
  Host second(loop_, "BOOK", CF_UNICODETEXT);
  ASSERT_TRUE(hears(second, "ON"));
  server_.set_text("data");
  EXPECT_TRUE(hears(first, "data") && hears(second, "data"));
  EXPECT_THAT(first.heard(), ElementsAre("ON", "data"));
  EXPECT_THAT(second.heard(), ElementsAre("ON", "data"));
  EXPECT_EQ(opened_, 2);
}

TEST_F(DdeServerTest, AHostThatWatchesInBothFormsHearsBoth) {
  Host host(loop_, "book", {CF_TEXT, CF_UNICODETEXT});
  ASSERT_TRUE(becomes([&] { return host.heard().size() == 2; }));
  server_.set_text("data");
  EXPECT_TRUE(becomes([&] { return host.heard().size() == 4; }));
  EXPECT_THAT(host.heard(), ElementsAre("ON", "ON", "data", "data"));
}

TEST_F(DdeServerTest, AHostThatHasAskedBeforeIsToldThePresentTextAllTheSame) {
  Host host(loop_, "book", {CF_TEXT}, Host::Watch::kHotAfterAsking);
  EXPECT_TRUE(hears(host, "ON"));
}

TEST_F(DdeServerTest, AHostThatOnlyWantsToKnowOfNewsIsToldOfEachOnce) {
  Host host(loop_, "book", {CF_TEXT}, Host::Watch::kWarm);
  ASSERT_TRUE(hears(host, "(news)"));
  EXPECT_FALSE(becomes([&] { return host.heard().size() > 1; }, 2200)) << "there are no news";
  server_.set_text("data");
  EXPECT_TRUE(becomes([&] { return host.heard().size() == 2; }));
}

TEST_F(DdeServerTest, TheLinkIsClosedWhenTheLastHostHasLeft) {
  Host first(loop_, "book", CF_TEXT);
  Host second(loop_, "book", CF_TEXT);
  ASSERT_TRUE(hears(first, "ON") && hears(second, "ON"));
  first.leave();
  EXPECT_FALSE(becomes([&] { return closed_ > 0; }, 300)) << "one still listens";
  second.leave();
  EXPECT_TRUE(becomes([&] { return closed_ == 1; }));
  EXPECT_EQ(failed_, 0);
}

TEST_F(DdeServerTest, AHostThatDiesBreaksTheLink) {
  Host host(loop_, "book", CF_TEXT);
  ASSERT_TRUE(hears(host, "ON"));
  host.die();
  EXPECT_TRUE(becomes([&] { return failed_ == 1; }));
  EXPECT_EQ(closed_, 0);
}

TEST_F(DdeServerTest, AnotherTopicIsRefused) {
  Host stranger(loop_, "journal", CF_TEXT);
  EXPECT_TRUE(becomes([&] { return stranger.refused(); }));
  EXPECT_EQ(opened_, 0);
}

/// A host that speaks by bare messages, as programs do that are older than the system's library.
class BareHost {
 public:
  BareHost()
      : window_(CreateWindowExW(0, WC_STATICW, L"", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr,
                                nullptr)) {
    SetWindowLongPtrW(window_.get(), GWLP_USERDATA, as_lparam(this));
    SetWindowLongPtrW(window_.get(), GWLP_WNDPROC,
                      reinterpret_cast<LONG_PTR>(&BareHost::procedure));
  }

  void call(HWND tool, const wchar_t* service, const wchar_t* topic) {
    const auto name = [](const wchar_t* text) {
      return text == nullptr ? ATOM{0} : GlobalAddAtomW(text);
    };
    SendMessageW(tool, WM_DDE_INITIATE, reinterpret_cast<WPARAM>(window_.get()),
                 MAKELPARAM(name(service), name(topic)));
  }
  void post(UINT message, UINT_PTR low, const wchar_t* item) {
    post(message, low, UINT_PTR{GlobalAddAtomW(item)});
  }
  void post(UINT message, UINT_PTR low, UINT_PTR high) {
    PostMessageW(partner, message, reinterpret_cast<WPARAM>(window_.get()),
                 PackDDElParam(message, low, high));
  }
  static UINT_PTR data() {
    return reinterpret_cast<UINT_PTR>(GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(DDEPOKE)));
  }
  /// Watches in Windows-1252.
  void watch(const wchar_t* item) {
    const HGLOBAL options = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(DDEADVISE));
    static_cast<DDEADVISE*>(GlobalLock(options))->cfFormat = CF_TEXT;
    GlobalUnlock(options);
    post(WM_DDE_ADVISE, reinterpret_cast<UINT_PTR>(options), item);
  }

  HWND partner = nullptr;
  std::vector<std::string> heard;

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message < WM_DDE_FIRST || message > WM_DDE_LAST) {
      return DefWindowProcW(window, message, wparam, lparam);
    }
    auto* const self = from_lparam<BareHost>(GetWindowLongPtrW(window, GWLP_USERDATA));
    UINT_PTR low = 0;
    UINT_PTR high = 0;
    if (InSendMessage() != FALSE || self->partner == nullptr) {
      self->partner = reinterpret_cast<HWND>(wparam);
      self->heard.emplace_back("(here)");
    } else if (message == WM_DDE_TERMINATE) {
      self->heard.emplace_back("(end)");
    } else if (UnpackDDElParam(message, lparam, &low, &high) != FALSE) {
      if (message == WM_DDE_ACK) {
        self->heard.emplace_back(low == 0x8000 ? "(yes)" : "(no)");
      } else {
        const auto* const data =
            static_cast<const DDEDATA*>(GlobalLock(reinterpret_cast<HGLOBAL>(low)));
        self->heard.emplace_back(from_lparam<char>(as_lparam(data->Value)));
      }
    }
    return 0;
  }

  WindowHandle window_;
};

class BareHostTest : public DdeServerTest {
 protected:
  /// What the host hears by what has just been posted.
  std::vector<std::string> answers() {
    host_.heard.clear();
    becomes([] { return false; }, 60);
    return host_.heard;
  }
  BareHost host_;
};

TEST_F(BareHostTest, IsAnsweredOnceAndOnlyIfItMeansTheTool) {
  host_.call(main_.window(), L"Journal", L"book");
  host_.call(main_.window(), L"Import", L"journal");
  EXPECT_THAT(host_.heard, IsEmpty());
  host_.call(main_.window(), nullptr, nullptr);
  EXPECT_THAT(host_.heard, ElementsAre("(here)"));
  EXPECT_EQ(opened_, 1);
  host_.post(WM_DDE_TERMINATE, 0, UINT_PTR{0});
  EXPECT_THAT(answers(), ElementsAre("(end)"));
  EXPECT_EQ(closed_, 1);
}

TEST_F(BareHostTest, GetsTheItemAndNothingElse) {
  host_.call(main_.window(), L"Import", L"book");
  host_.post(WM_DDE_REQUEST, CF_TEXT, L"txtDDE");
  EXPECT_THAT(answers(), ElementsAre("ON"));
  host_.post(WM_DDE_REQUEST, CF_TEXT, L"txtOther");
  host_.post(WM_DDE_REQUEST, CF_BITMAP, L"txtDDE");
  host_.watch(L"txtOther");
  host_.post(WM_DDE_POKE, BareHost::data(), L"txtDDE");
  host_.post(WM_DDE_EXECUTE, 0, BareHost::data());
  EXPECT_THAT(answers(), ElementsAre("(no)", "(no)", "(no)", "(no)", "(no)"));
}

TEST_F(BareHostTest, HearsNothingMoreAfterItHasCeasedToWatch) {
  host_.call(main_.window(), L"Import", L"book");
  host_.watch(L"txtDDE");
  EXPECT_THAT(answers(), ElementsAre("(yes)", "ON"));
  host_.post(WM_DDE_UNADVISE, CF_TEXT, L"txtDDE");
  EXPECT_THAT(answers(), ElementsAre("(yes)"));
  server_.set_text("data");
  EXPECT_THAT(answers(), IsEmpty());
  server_.shut_down();
  EXPECT_THAT(answers(), ElementsAre("(end)"));
}

}  // namespace
}  // namespace quenda
