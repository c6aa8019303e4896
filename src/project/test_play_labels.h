#pragma once
// The texts of the three selections of the test play settings, indexed by the stored
// value (UTF-8 label tables ending in "").

extern const char* const kTestRandomSkillLabels[];
extern const char* const kTestSkillLevelLabels[];
extern const char* const kTestTrainingLabels[];
