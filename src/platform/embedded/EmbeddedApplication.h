#pragma once

#include <utility>

#include "Application.h"
#include "Transcript.h"

namespace vantorel {

/// A desktop that records what the program asks of it. Ending the program is the business of who runs it.
class EmbeddedApplication : public Application {
 public:
  explicit EmbeddedApplication(Transcript& record) : transcript(record) {}

  /// Whether the program has asked to end since this was last asked.
  bool takeTermination() { return std::exchange(terminationAsked, false); }

  void setActivationPolicy(ActivationPolicy policy) override;
  void terminate() override;

 private:
  Transcript& transcript;
  bool terminationAsked = false;
};

}  // namespace vantorel
