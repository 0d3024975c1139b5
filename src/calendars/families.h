// Each calendar family fills the rules of its codes.
#pragma once

#include "calendars/registry.h"

namespace mc {

void RegisterGregorianRules(RulesTable& table);
void RegisterAstroPersianRules(RulesTable& table);
void RegisterChineseRules(RulesTable& table);
void RegisterSolarFixedRules(RulesTable& table);
void RegisterHebrewRules(RulesTable& table);
void RegisterIslamicRules(RulesTable& table);
void RegisterHinduRules(RulesTable& table);
void RegisterCycleRules(RulesTable& table);

}  // namespace mc
