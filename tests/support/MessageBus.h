#pragma once

#include <string>
#include <vector>

#include "Process.h"
#include "TemporaryDirectory.h"

namespace vantorel::test {

/// A private D-Bus session bus; it ends with this object. Nothing is started on it except the services named.
class MessageBus {
 public:
  /// Returns once clients can connect; throws when the bus does not start. `activatable` names installed
  /// services that are started when a client asks for them, such as "org.a11y.Bus"; they run with
  /// `environment` laid over the test's own and a runtime directory of their own.
  explicit MessageBus(const std::vector<std::string>& activatable = {},
                      const std::vector<std::string>& environment = {});

  const std::string& address() const { return address_; }

  /// The address as an environment variable for a `Process`.
  std::string environment() const { return "DBUS_SESSION_BUS_ADDRESS=" + address_; }

 private:
  TemporaryDirectory directory_;
  std::string address_;
  Process process_;
};

}  // namespace vantorel::test
