// Each calendar family fills the rules of its codes.
#pragma once

#include "calendars/registry.h"

namespace mc {

void RegisterGregorianRules(RulesTable& table);
void RegisterHinduRules(RulesTable& table);

}  // namespace mc
