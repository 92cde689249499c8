#include "platform/ports/LocalizedTexts.h"

constexpr ports::TextKey kText = "Cancel"; // compiles: the catalogue has it
