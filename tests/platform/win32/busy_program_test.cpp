#include "platform/win32/com/busy_program.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>

#include "platform/win32/com/call_thread.h"
#include "text/fault.h"

namespace quenda {
namespace {

constexpr PatienceLimits kShort{.busy = 300, .leaving = 100};
const auto never = [] { return false; };
const auto rejected = [] { return RPC_E_SERVERCALL_RETRYLATER; };

ULONGLONG milliseconds(const std::function<void()>& body) {
  const ULONGLONG begin = GetTickCount64();
  body();
  return GetTickCount64() - begin;
}

TEST(Patience, IsForTheWaitAsAWholeAndForTheNextWaitAnew) {
  Patience patience(never, kShort);
  EXPECT_GE(milliseconds([&] { EXPECT_EQ(patience.with(rejected), rejected()); }), 290U);
  EXPECT_LT(milliseconds([&] {
              for (int i = 0; i < 3; ++i) patience.with(rejected);
            }),
            250U);
  EXPECT_EQ(patience.with([] { return S_OK; }), S_OK);
  EXPECT_GE(milliseconds([&] { patience.with(rejected); }), 290U);
}

TEST(Patience, EndsWhenTheCallerGivesUp) {
  Patience patience([] { return true; }, kShort);
  EXPECT_LT(milliseconds([&] { patience.with(rejected); }), 200U);
}

TEST(CallThread, HandsOverResultsAndFaults) {
  CallThread calls([] {});
  EXPECT_EQ(calls.run([] { return 7; }), 7);
  EXPECT_THROW(calls.run([] { raise_fault(kFaultAutomation); }), RuntimeFault);
}

TEST(CallThread, ACallThatHangsHoldsNobodyUp) {
  const auto let_go = std::make_shared<std::atomic<bool>>(false);
  const ULONGLONG taken = milliseconds([&] {
    CallThread calls([] { throw EndProgram(); });
    EXPECT_THROW(calls.run([let_go] {
      while (!*let_go) Sleep(1);
    }),
                 EndProgram);
  });
  EXPECT_LT(taken, 900U);
  *let_go = true;
}

}  // namespace
}  // namespace quenda
