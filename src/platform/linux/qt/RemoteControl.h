#pragma once

#include <QDBusConnection>
#include <QThread>
#include <cstdint>
#include <functional>
#include <memory>

class QObject;

namespace vantorel {

/// Makes this the one running program of the session, which `send` reaches over D-Bus.
///
/// It may be made on any thread, and ends on that of `home`. At the end of this object or of the process,
/// however it comes, another program can take its place.
class RemoteControl {
 public:
  /// What the commands do, on the event loop of `home`. Without `show` the program has no window and refuses
  /// to show one. `quit` is called once the caller has its answer.
  struct Handlers {
    std::function<void()> toggle;
    std::function<void()> show;
    std::function<void()> quit;
  };

  enum class State : std::uint8_t {
    reachable,  ///< this is the one
    anotherIsRunning,
    noSessionBus,  ///< nobody can reach this program, and it does not know of others
  };

  /// At `connection`, the result of `connectToSessionBus`, which it ends with itself.
  RemoteControl(QDBusConnection connection, Handlers handlers, QThread* home = QThread::currentThread());
  RemoteControl(const RemoteControl&) = delete;
  RemoteControl& operator=(const RemoteControl&) = delete;
  ~RemoteControl();

  /// What came of it at the start.
  State state() const { return result; }

 private:
  State claim();

  QDBusConnection bus;
  std::unique_ptr<QObject> object;
  State result = State::noSessionBus;
};

}  // namespace vantorel
