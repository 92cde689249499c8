#include "platform/ports/LocalizedTexts.h"

constexpr ports::TextKey kText = "Cancle"; // must not compile: the catalogue lacks it
