#include "EmbeddedApplication.h"

namespace vantorel {

void EmbeddedApplication::setActivationPolicy(ActivationPolicy policy) {
  transcript.write(policy == ActivationPolicy::accessory ? "policy accessory" : "policy regular");
}

void EmbeddedApplication::terminate() {
  transcript.write("terminate");
  terminationAsked = true;
}

}  // namespace vantorel
