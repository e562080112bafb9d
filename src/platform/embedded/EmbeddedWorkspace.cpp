#include "EmbeddedWorkspace.h"

namespace vantorel {

void EmbeddedWorkspace::open(const std::string& address) { transcript.write("open " + address); }

}  // namespace vantorel
