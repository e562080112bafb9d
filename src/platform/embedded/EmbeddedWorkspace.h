#pragma once

#include <string>

#include "Transcript.h"
#include "Workspace.h"

namespace vantorel {

/// A workspace that only records the addresses.
class EmbeddedWorkspace : public Workspace {
 public:
  explicit EmbeddedWorkspace(Transcript& record) : transcript(record) {}

  void open(const std::string& address) override;

 private:
  Transcript& transcript;
};

}  // namespace vantorel
