#include "platform/posix/Plist.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <plist/plist.h>
#include <set>

#include "platform/posix/PlistGuard.h"
#include "platform/posix/RegularFile.h"

namespace posix {

namespace {

std::optional<std::string> stringOf(plist_t node) {
    if (!PLIST_IS_STRING(node))
        return std::nullopt;
    std::uint64_t length = 0;
    const char* text = plist_get_string_ptr(node, &length);
    return text ? std::optional(std::string(text, length)) : std::nullopt;
}

plist_t itemOf(plist_t node, std::string_view key) {
    // The library takes keys as C strings.
    if (!PLIST_IS_DICT(node) || key.find('\0') != std::string_view::npos)
        return nullptr;
    return plist_dict_get_item(node, std::string(key).c_str());
}

/// Calls `use` with each element of an array.
template <class Use>
void forEachElement(plist_t node, Use use) {
    if (!PLIST_IS_ARRAY(node))
        return;
    // An iterator, as the library counts through the array for each element that it is asked for.
    plist_array_iter at = nullptr;
    plist_array_new_iter(node, &at);
    for (;;) {
        plist_t element = nullptr;
        plist_array_next_item(node, at, &element);
        if (!element)
            break;
        use(element);
    }
    std::free(at);
}

std::optional<std::vector<std::string>> stringsOf(plist_t node) {
    if (!PLIST_IS_ARRAY(node))
        return std::nullopt;
    std::vector<std::string> all;
    forEachElement(node, [&](plist_t element) {
        if (auto text = stringOf(element))
            all.push_back(std::move(*text));
    });
    return all;
}

/// Calls `use` with each key and value of a dictionary.
template <class Use>
void forEachEntry(plist_t node, Use use) {
    if (!PLIST_IS_DICT(node))
        return;
    plist_dict_iter at = nullptr;
    plist_dict_new_iter(node, &at);
    for (;;) {
        char* key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(node, at, &key, &value);
        const std::unique_ptr<char, decltype(&std::free)> keyOwner(key, &std::free);
        if (!value)
            break;
        if (key)
            use(key, value);
    }
    std::free(at);
}

/// The library copies a string only up to a zero in it but keeps the old length, and would later
/// read beyond the copy. Gives such strings of a fresh copy the length that they have.
void cutAtZeros(plist_t copy) {
    if (PLIST_IS_STRING(copy)) {
        std::uint64_t length = 0;
        const char* text = plist_get_string_ptr(copy, &length);
        if (text && std::strlen(text) != length)
            plist_set_string_val(copy, std::string(text).c_str());
        return;
    }
    forEachEntry(copy, [](const char*, plist_t value) { cutAtZeros(value); });
    forEachElement(copy, [](plist_t element) { cutAtZeros(element); });
}

} // namespace

void Plist::Free::operator()(void* list) const {
    plist_free(list);
}

std::optional<Plist> Plist::readFile(const std::string& path) {
    const FileBytes file = readRegularFile(path, PlistLimits::kBytes);
    return file.error == 0 ? read(file.bytes) : std::nullopt;
}

std::optional<Plist> Plist::read(std::string_view bytes) {
    if (!isSafePlist(bytes))
        return std::nullopt;
    plist_t list = nullptr;
    plist_from_memory(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &list);
    return list ? std::optional(Plist(list)) : std::nullopt;
}

Plist Plist::emptyDictionary() {
    return Plist(plist_new_dict());
}

bool Plist::isDictionary() const {
    return PLIST_IS_DICT(m_list.get());
}

void* Plist::item(std::string_view key) const {
    return itemOf(m_list.get(), key);
}

std::optional<std::string> Plist::string(std::string_view key) const {
    return stringOf(item(key));
}

std::optional<std::vector<std::string>> Plist::array(std::string_view key) const {
    return stringsOf(item(key));
}

std::optional<std::vector<std::string>> Plist::array(std::string_view dictionaryKey,
                                                     std::string_view key) const {
    return stringsOf(itemOf(item(dictionaryKey), key));
}

std::vector<std::string> Plist::stringsOfEach(std::string_view listKey,
                                              std::string_view key) const {
    std::vector<std::string> all;
    forEachElement(item(listKey), [&](plist_t element) {
        if (const auto strings = stringsOf(itemOf(element, key)))
            all.insert(all.end(), strings->begin(), strings->end());
    });
    return all;
}

void Plist::setString(std::string_view key, std::string_view value) {
    if (isDictionary())
        plist_dict_set_item(m_list.get(), std::string(key).c_str(),
                            plist_new_string(std::string(value).c_str()));
}

void Plist::setArray(std::string_view key, const std::vector<std::string>& values) {
    if (!isDictionary())
        return;
    plist_t array = plist_new_array();
    for (const std::string& value : values)
        plist_array_append_item(array, plist_new_string(value.c_str()));
    plist_dict_set_item(m_list.get(), std::string(key).c_str(), array);
}

void Plist::addEntriesFrom(const Plist& other) {
    std::set<std::string> seen;
    if (isDictionary())
        forEachEntry(other.m_list.get(), [&](const char* key, plist_t value) {
            if (!seen.insert(key).second) // of two equal keys the first counts
                return;
            plist_t copy = plist_copy(value);
            cutAtZeros(copy);
            plist_dict_set_item(m_list.get(), key, copy);
        });
}

std::optional<std::string> Plist::xml() const {
    char* bytes = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(m_list.get(), &bytes, &length);
    const std::unique_ptr<char, decltype(&plist_to_xml_free)> owner(bytes, &plist_to_xml_free);
    if (!bytes || !isSafePlist({bytes, length}))
        return std::nullopt;
    return std::string(bytes, length);
}

} // namespace posix
