#pragma once

#include "text/fault.h"

namespace quenda {

/// The number of the fault that the action raises, 0 for none.
template <class Action>
int fault_of(Action action) {
  try {
    action();
  } catch (const RuntimeFault& fault) {
    return fault.number();
  }
  return 0;
}

}  // namespace quenda
