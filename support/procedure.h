#pragma once

#include <exception>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "support/clsErrorHandling.h"
#include "text/fault.h"

namespace quenda {

/// The number of the statement that a procedure has reached; 0 where it does not count them.
class Statement {
 public:
  void operator()(int number) { number_ = number; }
  [[nodiscard]] int number() const { return number_; }

 private:
  int number_ = 0;
};

/// Whether a guarded body came through. Whoever runs a procedure looks at this, or says by name
/// that the work goes on without it: a fault that nobody asks about would look like success.
class [[nodiscard]] Outcome {
 public:
  Outcome(bool came_through) : came_through_(came_through) {}
  operator bool() const { return came_through_; }
  /// The fault has been reported, and what follows does not depend on what the body did.
  void or_go_on() const {}

 private:
  bool came_through_;
};

namespace procedure_detail {

template <class Body>
void run(Body& body, Statement& at) {
  if constexpr (std::is_invocable_v<Body&, Statement&>) {
    body(at);
  } else {
    body();
  }
}

/// Runs the body; a fault goes to `on_fault` together with the statement reached. While faults are
/// not trapped they pass through. The end of the program always passes through.
template <class Body, class OnFault>
bool trap(const clsErrorHandling& errors, Body& body, OnFault on_fault) {
  Statement at;
  if (!errors.trapping()) {
    run(body, at);
    return true;
  }
  try {
    run(body, at);
    return true;
  } catch (const std::exception&) {
    on_fault(current_fault(), at.number());
    return false;
  }
}

}  // namespace procedure_detail

/// The frame of every procedure: announces it in trace mode, runs the body (which may take a
/// `Statement&` to number its statements), and reports a trapped fault silently under the name.
/// Tells whether the body came through.
template <class Body>
Outcome procedure(clsErrorHandling& errors, std::string_view name, TraceValues traced,
                  Body&& body) {
  if (errors.tracing()) errors.LogDebug_Trace(name, traced);
  return procedure_detail::trap(errors, body, [&](const RuntimeFault& fault, int statement) {
    errors.ErrorLogNew(name, {}, fault, statement);
  });
}

/// As `procedure`, but the user sees a message box, and the report carries one value that says what
/// was being worked on when the fault came: the body keeps `worked_on` up to date.
template <class Body>
Outcome procedure_with_message(clsErrorHandling& errors, std::string_view name, TraceValues traced,
                               const std::string_view& worked_on, Body&& body) {
  if (errors.tracing()) errors.LogDebug_Trace(name, traced);
  return procedure_detail::trap(errors, body, [&](const RuntimeFault& fault, int statement) {
    if (worked_on.empty()) {
      errors.ErrorLogWithMsgBox(name, {}, fault, statement);
    } else {
      errors.ErrorLogWithMsgBox(name, {worked_on}, fault, statement);
    }
  });
}

/// As `procedure`, for procedures that tell the user about a fault in their own way.
template <class Body, class OnFault>
Outcome procedure_with_own_report(clsErrorHandling& errors, std::string_view name,
                                  TraceValues traced, Body&& body, OnFault on_fault) {
  if (errors.tracing()) errors.LogDebug_Trace(name, traced);
  return procedure_detail::trap(errors, body, on_fault);
}

/// Runs one step after the other; a step that fails is skipped without a report. For loaders, or
/// else one unreadable value would cost all those behind it.
inline void skip_faults(std::initializer_list<std::function<void()>> steps) {
  for (const auto& step : steps) {
    try {
      step();
    } catch (const std::exception&) {
      continue;
    }
  }
}

/// Runs one step and keeps the fault that ended it; null where none did. For work that goes on to
/// its end first: whoever keeps a fault raises it again inside of a procedure.
template <class Step>
std::exception_ptr keep_fault(Step step) {
  try {
    step();
    return nullptr;
  } catch (const std::exception&) {
    return std::current_exception();
  }
}

}  // namespace quenda
