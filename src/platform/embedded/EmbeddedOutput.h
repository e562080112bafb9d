#pragma once

#include <string_view>

#include "StandardOutput.h"
#include "Transcript.h"

namespace vantorel {

/// A standard output that goes into the transcript.
class EmbeddedOutput : public StandardOutput {
 public:
  explicit EmbeddedOutput(Transcript& record) : transcript(record) {}

  void writeLine(std::string_view line) override;

 private:
  Transcript& transcript;
};

}  // namespace vantorel
