// ports::PropertyLists in memory: files are dictionaries by their paths.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/ports/PropertyLists.h"

namespace fakes {

/// A string, an array of strings, or a value of another type, of which only the name is known.
struct FakeProperty {
    enum class Type { string, array, other } type = Type::string;
    std::vector<std::string> texts;
    bool operator==(const FakeProperty&) const = default;
};

using FakeProperties = std::map<std::string, FakeProperty, std::less<>>;

inline FakeProperty stringProperty(std::string text) {
    return {FakeProperty::Type::string, {std::move(text)}};
}
inline FakeProperty arrayProperty(std::vector<std::string> texts) {
    return {FakeProperty::Type::array, std::move(texts)};
}
inline FakeProperty otherProperty(std::string name) {
    return {FakeProperty::Type::other, {std::move(name)}};
}

class FakePropertyDictionary final : public ports::PropertyDictionary {
  public:
    FakePropertyDictionary() = default;
    explicit FakePropertyDictionary(FakeProperties all) : properties(std::move(all)) {}

    FakeProperties properties;

    std::optional<std::string> string(std::string_view key) const override {
        const FakeProperty* property = find(key, FakeProperty::Type::string);
        return property ? std::optional(property->texts.front()) : std::nullopt;
    }
    std::optional<std::vector<std::string>> strings(std::string_view key) const override {
        const FakeProperty* property = find(key, FakeProperty::Type::array);
        return property ? std::optional(property->texts) : std::nullopt;
    }
    void setString(std::string_view key, std::string_view value) override {
        properties[std::string(key)] = stringProperty(std::string(value));
    }
    void setStrings(std::string_view key, const std::vector<std::string>& values) override {
        properties[std::string(key)] = arrayProperty(values);
    }
    void addEntriesFrom(const PropertyDictionary& other) override {
        for (const auto& [key, value] :
             static_cast<const FakePropertyDictionary&>(other).properties)
            properties[key] = value;
    }

  private:
    const FakeProperty* find(std::string_view key, FakeProperty::Type type) const {
        const auto entry = properties.find(key);
        return entry != properties.end() && entry->second.type == type ? &entry->second : nullptr;
    }
};

class FakePropertyLists final : public ports::PropertyLists {
  public:
    std::map<std::string, FakeProperties> files;
    /// Files that are there but hold no dictionary.
    std::set<std::string> broken;
    /// Nothing can be written or renamed.
    bool refusesChanges = false;
    /// The paths of successful writes, in order.
    std::vector<std::string> written;

    std::unique_ptr<ports::PropertyDictionary> emptyDictionary() override {
        return std::make_unique<FakePropertyDictionary>();
    }

    ports::ReadDictionary readFile(const std::string& path) override {
        using Outcome = ports::ReadDictionary::Outcome;
        if (broken.contains(path))
            return {.outcome = Outcome::broken, .dictionary = nullptr};
        const auto file = files.find(path);
        if (file == files.end())
            return {.outcome = Outcome::missing, .dictionary = nullptr};
        return {.outcome = Outcome::read,
                .dictionary = std::make_unique<FakePropertyDictionary>(file->second)};
    }

    bool writeFile(const ports::PropertyDictionary& dictionary, const std::string& path) override {
        if (refusesChanges)
            return false;
        broken.erase(path);
        files[path] = static_cast<const FakePropertyDictionary&>(dictionary).properties;
        written.push_back(path);
        return true;
    }

    std::optional<std::string> setAside(const std::string& path) override {
        if (refusesChanges || !isThere(path))
            return std::nullopt;
        std::string name = path + ".damaged";
        for (int number = 2; isThere(name); ++number)
            name = path + ".damaged-" + std::to_string(number);
        if (broken.erase(path) > 0)
            broken.insert(name);
        if (auto file = files.extract(path)) {
            file.key() = name;
            files.insert(std::move(file));
        }
        return name;
    }

  private:
    bool isThere(const std::string& path) const {
        return broken.contains(path) || files.contains(path);
    }
};

} // namespace fakes
