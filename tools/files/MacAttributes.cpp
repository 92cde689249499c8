#include "tools/files/MacAttributes.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "tools/files/ExtendedAttributes.h"

namespace tools {

namespace {

constexpr const char* kFinderInformation = "com.apple.FinderInfo";
constexpr const char* kResourceFork = "com.apple.ResourceFork";
constexpr const char* kQuarantine = "com.apple.quarantine";

} // namespace

bool isEmpty(const formats::AppleDouble& attributes) {
    return !attributes.hasFinderInformation() && attributes.resourceFork.empty() &&
           attributes.attributes.empty();
}

std::string sidecarName(std::string_view name) {
    return "._" + std::string(name);
}

formats::AppleDouble applyMacAttributes(int file, formats::AppleDouble attributes) {
    std::erase_if(attributes.attributes,
                  [](const auto& attribute) { return attribute.name == kQuarantine; });
    std::vector<std::string> set;
    const auto apply = [&](const char* name, std::span<const std::byte> value) {
        set.push_back(systemAttributeName(name));
        return setAttribute(file, set.back(), value) == 0;
    };
    bool taken = !attributes.hasFinderInformation() ||
                 apply(kFinderInformation, attributes.finderInformation);
    for (const auto& [name, value] : attributes.attributes)
        taken = taken && apply(name.c_str(), value);
    if (taken) {
        formats::AppleDouble rest;
        rest.resourceFork = std::move(attributes.resourceFork);
        return rest;
    }
    for (const std::string& name : set)
        removeAttribute(file, name);
    return attributes;
}

formats::AppleDouble readMacAttributes(int file) {
    formats::AppleDouble found;
    for (const std::string& systemName : attributeNames(file)) {
        const auto name = macAttributeName(systemName);
        if (!name || *name == kQuarantine)
            continue;
        auto value = attributeValue(file, systemName);
        if (!value)
            continue;
        if (*name == kFinderInformation && value->size() == found.finderInformation.size())
            std::ranges::copy(*value, found.finderInformation.begin());
        else if (*name == kResourceFork)
            found.resourceFork = std::move(*value);
        else
            found.attributes.push_back({*name, std::move(*value)});
    }
    std::ranges::sort(found.attributes, {}, &formats::ExtendedAttribute::name);
    return found;
}

} // namespace tools
