#include "EmbeddedOutput.h"

#include <string>

namespace vantorel {

void EmbeddedOutput::writeLine(std::string_view line) { transcript.write(std::string("| ").append(line)); }

}  // namespace vantorel
