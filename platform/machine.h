#pragma once

namespace quenda {

class Automation;
class Clock;
class Dialogs;
class Events;
class Files;
class HostLink;
class System;

/// Everything that the tool needs from the machine, chosen by each program's main and passed down.
struct Machine {
  Files& files;
  Clock& clock;
  Events& events;
  Dialogs& dialogs;
  System& system;
  HostLink& host_link;
  Automation& automation;
};

}  // namespace quenda
