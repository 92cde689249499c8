// Component rules with their tree, made from a text instead of the resources.
#pragma once

#include <string>
#include <utility>

#include "rules/ecItem.h"
#include "rules/ecRules.h"

namespace tests {

struct Components {
    explicit Components(std::string text = {}) : rules(ec::ecRules::fromText(std::move(text))) {}

    ec::ecRules rules;
    ec::ecItem root{rules, ec::ecItem::kRootItem, nullptr};
};

} // namespace tests
