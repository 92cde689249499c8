// The component rules: which components the wizard can install, how they group, how each is
// installed and which files it carries. They come from a text file in the resources, read once;
// with them go the components' states, which the outline shows and the install driver reads.
// Used by the component outline, the install driver and the install methods. It never writes the
// file, and knows nothing of what the methods do: a method is a name, known or not.
//
// The file is UTF-8. A line feed ends a line; each line is one item, and its number, counted from
// 0, is the item's number. A line's fields stand between "|": name, flag, description, method,
// and then one file in each field. Nothing is quoted, escaped or a comment. The flag "0" opens a
// group; the lines after it, up to the next "0", are its members. The first line without any "|"
// (such as the empty one behind a last line feed) ends the tree: it and what follows are counted,
// but never shown. A carriage return belongs to the last field, a byte order mark to the first name
// and a NUL to the field that it stands in.
//
// Main thread: even the look-ups share a cache.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ec {

/// The states that an item may have.
struct ItemState {
    static constexpr std::int32_t off = 0;
    static constexpr std::int32_t on = 1;           ///< on, or installed
    static constexpr std::int32_t unavailable = -1; ///< shown disabled
    static constexpr std::int32_t mixed = -2;       ///< a group whose members differ
};

class ecRules {
  public:
    /// Reads "Customizer.rules.txt" in the folder. There are no lines when that is no regular file,
    /// can't be read, is not valid UTF-8, or has 2 GiB and more (item numbers have to fit 31 bits).
    explicit ecRules(const std::string& resourceFolder);
    /// The same with the file's text at hand, whatever its bytes.
    static ecRules fromText(std::string text) { return ecRules(FromText{}, std::move(text)); }
    ecRules(const ecRules&) = delete;
    ecRules& operator=(const ecRules&) = delete;

    /// `mainRules`: the shared rules, read on the first call and kept as long as the process; later
    /// calls don't look at the folder. For the composition root, which hands them on.
    static ecRules& mainRules(const std::string& resourceFolder);

    /// `count`: the number of lines, an empty last one included. An empty file has one line.
    std::uint32_t count() const { return static_cast<std::uint32_t>(m_rules.size()); }

    /// One field of an item; none when there is no such item or its line has fewer fields. Asking
    /// again for the same item neither splits its line again nor allocates. The texts live as long
    /// as the rules.
    std::optional<std::string_view> getItemName(std::uint32_t item) const;   ///< `getItemName:`
    std::optional<std::string_view> getItemFlag(std::uint32_t item) const;   ///< `getItemFlag:`
    std::optional<std::string_view> getItemDesc(std::uint32_t item) const;   ///< `getItemDesc:`
    std::optional<std::string_view> getItemMethod(std::uint32_t item) const; ///< `getItemMethod:`

    /// `getItemFiles:`: copies of the fifth field and those after it; none when there is no such
    /// item or its line has four fields or fewer.
    std::optional<std::vector<std::string>> getItemFiles(std::uint32_t item) const;

    /// `getItemChildren:`: the numbers of a group's members, ascending; none when it has none, or
    /// when the item is no group.
    std::optional<std::vector<std::uint32_t>> getItemChildren(std::uint32_t item) const;

    /// `getRootItemChildren`: the numbers of the groups, ascending; none when there are none.
    std::optional<std::vector<std::uint32_t>> getRootItemChildren() const;

    /// An item's states (see ItemState): the initial one, which the checks set, and the current
    /// one, which follows the user's choice; both are 0 until set. Callers pass items that exist:
    /// the state of any other is 0, and setting it does nothing. `setInitialItemState:state:` sets
    /// both.
    void setInitialItemState(std::uint32_t item, std::int32_t state);
    /// `setItemState:state:` sets the current one.
    void setItemState(std::uint32_t item, std::int32_t state);
    /// `getItemState:` answers the current one.
    std::int32_t getItemState(std::uint32_t item) const;
    /// `getItemInitialState:`
    std::int32_t getItemInitialState(std::uint32_t item) const;

  private:
    struct FromText {};
    ecRules(FromText, std::string text);

    void splitLines();
    bool _getRule(std::uint32_t item) const;
    std::optional<std::string_view> field(std::uint32_t item, std::size_t number) const;

    std::string m_text;                    ///< the file; all views lead into it
    std::vector<std::string_view> m_rules; ///< its lines
    std::vector<std::uint32_t> m_preChecks;
    std::vector<std::uint32_t> m_postChecks;
    mutable std::int32_t m_lastItem = -1;          ///< the item whose fields are in `m_array`
    mutable std::vector<std::string_view> m_array; ///< keeps its capacity from item to item
};

} // namespace ec
