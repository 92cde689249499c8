// That repeated look-ups cost no memory: every allocation of this program is counted.
#include <cstdlib>
#include <new>
#include <string>

#include <gtest/gtest.h>

#include "rules/ecItem.h"

namespace {

std::size_t allocations = 0;

template <class Work>
std::size_t allocationsIn(Work work) {
    const std::size_t before = allocations;
    work();
    return allocations - before;
}

} // namespace

void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size ? size : 1))
        return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace {

using ec::ecItem;
using ec::ecRules;

const std::string kText =
    "A group with a long name|0|Its long description, longer than any buffer\n"
    "A member with a long name|1|Its description|inst_File|f|g|h|i\n"
    "Another member|1|Its description|inst_Dir|f\n";

std::size_t lengthOfAllFields(const ecRules& rules, std::uint32_t item) {
    return rules.getItemName(item)->size() + rules.getItemFlag(item)->size() +
           rules.getItemDesc(item)->size() + rules.getItemMethod(item).value_or("").size();
}

TEST(RulesAllocations, AreCounted) {
    EXPECT_EQ(allocationsIn([] { delete ::new std::string(100, 'x'); }), 2u);
}

TEST(RulesAllocations, ARepeatedLookUpOfAnItemMakesNone) {
    const auto rules = ecRules::fromText(kText);
    const std::size_t length = lengthOfAllFields(rules, 1);
    std::size_t again = 0;
    EXPECT_EQ(allocationsIn([&] {
                  for (int i = 0; i < 100; ++i)
                      again = lengthOfAllFields(rules, 1);
              }),
              0u);
    EXPECT_EQ(again, length);
}

TEST(RulesAllocations, LookUpsFromItemToItemMakeNoneOnceTheLongestLineWasSplit) {
    const auto rules = ecRules::fromText(kText);
    (void)rules.getItemName(1);
    EXPECT_EQ(allocationsIn([&] {
                  for (int i = 0; i < 100; ++i)
                      for (std::uint32_t item = 0; item < rules.count(); ++item)
                          (void)rules.getItemName(item);
              }),
              0u);
}

TEST(RulesAllocations, LookUpsThatFindNothingMakeNone) {
    const auto rules = ecRules::fromText(kText);
    (void)rules.getItemName(0);
    EXPECT_EQ(allocationsIn([&] {
                  (void)rules.getItemMethod(0);
                  (void)rules.getItemFiles(0);
                  (void)rules.getItemName(1000);
                  (void)rules.getItemChildren(1);
              }),
              0u);
}

TEST(RulesAllocations, ANodeThatHasLookedForItsChildrenMakesNoneForThemAgain) {
    auto rules = ecRules::fromText(kText);
    const ecItem root(rules, ecItem::kRootItem, nullptr);
    int members = 0;
    const auto walk = [&] {
        for (const auto& group : root.children())
            for (const auto& member : group->children())
                members += 1 + member->numberOfChildren();
    };
    EXPECT_GT(allocationsIn(walk), 0u);
    EXPECT_EQ(allocationsIn(walk), 0u);
    EXPECT_EQ(members, 4);
}

TEST(RulesAllocations, OneBufferAndOneTableHoldAllLines) {
    std::string text;
    for (int i = 0; i < 1000; ++i)
        text += kText;
    // The table of lines and the two of states; the text itself is handed over.
    EXPECT_EQ(allocationsIn([&] { (void)ecRules::fromText(std::move(text)); }), 3u);
}

} // namespace
