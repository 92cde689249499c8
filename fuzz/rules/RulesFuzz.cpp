// Rules files from anywhere: whatever the bytes, all items can be looked up, the tree walked and
// every box clicked, and groups and members agree afterwards.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "rules/ComponentOutline.h"

namespace {

void check(bool holds) {
    if (!holds)
        std::abort();
}

void lookUpAll(const ec::ecRules& rules) {
    for (std::uint32_t item = 0; item <= rules.count(); ++item) {
        const bool exists = item < rules.count();
        check(rules.getItemName(item).has_value() == exists);
        const auto files = rules.getItemFiles(item);
        check(!files || (!files->empty() && rules.getItemMethod(item)));
        check(!rules.getItemMethod(item) || rules.getItemDesc(item));
        check(!rules.getItemDesc(item) || rules.getItemFlag(item));
        const auto members = rules.getItemChildren(item);
        check(!members || (rules.getItemFlag(item) == "0" && members->front() == item + 1 &&
                           members->back() < rules.count()));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    auto rules = ec::ecRules::fromText({reinterpret_cast<const char*>(data), size});
    lookUpAll(rules);

    ec::ecItem root(rules, ec::ecItem::kRootItem, nullptr);
    controls::OutlineView view;
    ec::ComponentOutline outline({.root = root, .ecOutlineView = view});
    outline.attach();
    // The bytes choose the states too.
    for (std::uint32_t item = 0; item < rules.count() && size > 0; ++item)
        rules.setInitialItemState(item, data[item % size] % 4 - 2);
    for (const auto& group : root.children()) {
        for (const auto& member : group->children())
            if (view.press(member.get()))
                check(group->getItemState() == group->determineState());
        if (view.press(group.get()))
            for (const auto& member : group->children())
                check(member->getItemState() == group->getItemState());
    }
    std::int64_t last = -1;
    for (const ec::Component& component : outline.components()) {
        check(component.item > last && (!component.group || *component.group < component.item));
        last = component.item;
        const auto found = outline.find(component.name);
        check(found.ambiguous || (found.item && found.item->itemNum() == component.item));
    }
    return 0;
}
