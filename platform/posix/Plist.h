// A property list, XML or binary; the one place that knows the library for them. Used by the
// adapters that read information dictionaries and tables of texts, and by the one that keeps
// preferences. Input may be hostile: the guard (PlistGuard) looks it over first.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace posix {

class Plist {
  public:
    /// The property list in the regular file `path`; none when the file can't be read or is none.
    static std::optional<Plist> readFile(const std::string& path);

    /// The property list in `bytes`; none when they are none, or beyond what is safe to read.
    static std::optional<Plist> read(std::string_view bytes);

    /// An empty dictionary.
    static Plist emptyDictionary();

    bool isDictionary() const;

    /// The string under `key` in the list's dictionary, as UTF-8. None when the list is no
    /// dictionary, the key is absent or its value is no string.
    std::optional<std::string> string(std::string_view key) const;

    /// The strings of the array under `key`, other elements left out. None as for `string`.
    std::optional<std::vector<std::string>> array(std::string_view key) const;

    /// The same for an array in the dictionary under `dictionaryKey`.
    std::optional<std::vector<std::string>> array(std::string_view dictionaryKey,
                                                  std::string_view key) const;

    /// The strings of the arrays under `key` in all dictionaries of the array under `listKey`, in
    /// their order, other elements left out. Empty where there is no such array.
    std::vector<std::string> stringsOfEach(std::string_view listKey, std::string_view key) const;

    /// Each changes the list's dictionary; nothing happens when the list is none. Texts end at a
    /// zero. A value that is replaced keeps its place; new ones come last. Added strings
    /// end at a zero too, which a binary list may hold and XML can't.
    void setString(std::string_view key, std::string_view value);
    void setArray(std::string_view key, const std::vector<std::string>& values);
    void addEntriesFrom(const Plist& other);

    /// The list as XML; none when the library can't write it, or could not safely read it again.
    std::optional<std::string> xml() const;

  private:
    struct Free {
        void operator()(void* list) const;
    };
    explicit Plist(void* list) : m_list(list) {}
    void* item(std::string_view key) const;

    std::unique_ptr<void, Free> m_list;
};

} // namespace posix
