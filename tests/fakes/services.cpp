#include "fakes/services.h"

namespace tarvane {

ScriptedServices::ScriptedServices() = default;
ScriptedServices::~ScriptedServices() = default;

}  // namespace tarvane
