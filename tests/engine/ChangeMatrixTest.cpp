// Every choice of components through the driver, with tools that are played within the process:
// the components that are shipped in all their states, and rules at random. What is on disk
// afterwards is compared with what is said of it by a reckoning of this file's own.
//
// SCRIVEL_MATRIX_STATES says how many states of the shipped components are tried (0: all of them)
// and SCRIVEL_MATRIX_RULES how many rules are made; SCRIVEL_MATRIX_SEED where the dice start.
// tools/matrix_test sets them.
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <random>
#include <set>

#include <gtest/gtest.h>

#include "tests/engine/MethodsStage.h"
#include "tests/engine/ToolsInProcess.h"
#include "tests/support/TreeOf.h"

namespace {

namespace fs = std::filesystem;
using ec::ComponentOutcome;
using ec::OpMode;
using tests::Tree;
using Result = ComponentOutcome::Result;

std::uint64_t fromEnvironment(const char* name, std::uint64_t otherwise) {
    const char* text = std::getenv(name);
    return text ? std::strtoull(text, nullptr, 10) : otherwise;
}

const std::string kProduct = "Scrivel 21";
const std::string kContent = kProduct + "/Product-Support/Content.bundle/";
const std::string kExtension = "disk" + std::string(ec::gTessaronFile);

bool isBelow(const std::string& path, const std::string& folder) {
    return path.size() > folder.size() && path.starts_with(folder) && path[folder.size()] == '/';
}

/// The names directly in a folder of the tree.
std::set<std::string> namesIn(const Tree& tree, const std::string& folder) {
    std::set<std::string> names;
    for (auto at = tree.lower_bound(folder + "/"); at != tree.end() && isBelow(at->first, folder);
         ++at)
        names.insert(at->first.substr(folder.size() + 1,
                                      at->first.find('/', folder.size() + 1) - folder.size() - 1));
    return names;
}

/// Kind and contents, without the mode.
std::string withoutMode(const std::string& item) {
    return item.starts_with("link") ? item : item.substr(item.find(' '));
}

/// Is what lies at `source`, with all below it, also at `copy`?
bool isCopied(const Tree& tree, const std::string& source, const std::string& copy) {
    const auto is = [&](const std::string& from, const std::string& item) {
        const auto there = tree.find(copy + from.substr(source.size()));
        return there != tree.end() && withoutMode(there->second) == withoutMode(item);
    };
    const auto top = tree.find(source);
    if (top == tree.end() || !is(source, top->second))
        return false;
    for (auto at = tree.lower_bound(source + "/"); at != tree.end() && isBelow(at->first, source);
         ++at)
        if (!is(at->first, at->second))
            return false;
    return true;
}

/// The rules over a disk, with what the test knows of them.
class Matrix {
  public:
    explicit Matrix(const std::string& text) : stage(text) {
        tests::serveInProcess(stage.host);
        stage.writeImporter();
        stage.writeService();
    }

    tests::MethodsStage stage;
    ec::ecRules& rules = stage.components.rules;

    /// The disk as it is now is what each run begins with.
    void keepOrigin() { m_origin = tree(); }

    /// The items that have a method.
    std::vector<std::uint32_t> choices() const {
        std::vector<std::uint32_t> items;
        for (std::uint32_t item = 0; item < rules.count(); ++item)
            if (rules.getItemMethod(item))
                items.push_back(item);
        return items;
    }

    /// One choice: made twice, then everything is uninstalled, from an empty disk or one that has
    /// it all.
    void tryStates(const std::vector<std::int32_t>& states, bool fromInstalled) {
        backToOrigin();
        const std::vector<std::uint32_t> items = choices();
        if (fromInstalled) {
            for (const std::uint32_t item : items)
                rules.setItemState(item, 1);
            change();
        }
        for (std::size_t i = 0; i < items.size(); ++i)
            rules.setItemState(items[i], states.at(i));
        change();
        const Tree once = m_now;
        change();
        EXPECT_EQ(m_now, once) << "a change that is repeated changes nothing";
        stage.controller.m_bUninstall = true;
        change();
        stage.controller.m_bUninstall = false;
        EXPECT_EQ(withoutWhatStays(m_now), withoutWhatStays(m_origin));
    }

  private:
    /// What a component lies in, by the trees alone.
    struct Parts {
        bool isKnown = true;
        std::vector<std::pair<std::string, std::string>> copies = {};
        std::vector<std::string> traces = {};
    };

    Tree tree() const { return tests::treeOf(stage.folder.path()); }

    void backToOrigin() {
        for (const char* folder : {"home", "disk", "tmp", "Scrivel 21"})
            for (const auto& entry : fs::directory_iterator(stage.folder.path(folder)))
                if (!m_origin.contains(folder + ("/" + entry.path().filename().native())))
                    fs::remove_all(entry.path());
        m_now = tree();
        ASSERT_EQ(m_now, m_origin) << "the shipped files stay as they are";
    }

    /// One run of the driver. Word's add-in is not looked at here.
    void change() {
        using C = ec::ecController;
        C& controller = stage.controller;
        const auto operation = [&](auto method) {
            return [&controller, method](OpMode mode, std::uint32_t item, ec::OptionalText source,
                                         ec::OptionalText dest) {
                return (controller.*method)(mode, item, source, dest);
            };
        };
        ec::InstallDriver driver(
            {.log = controller,
             .session = controller,
             .steps = controller,
             .rules = rules,
             .bundles = stage.host.bundles,
             .folders = controller,
             .audit = controller,
             .operations = {.word = [](OpMode, std::uint32_t, ec::OptionalText,
                                       ec::OptionalText) { return ec::MethodAnswer::of(1); },
                            .file = operation(&C::installFileMode),
                            .folder = operation(&C::installDirMode),
                            .services = operation(&C::installServicesMode),
                            .spotlight = operation(&C::installSpotlightMode),
                            .tessaron = operation(&C::installTessaronMode),
                            .uninstaller = operation(&C::installUninstMode),
                            .category = operation(&C::installCategoryMode),
                            .allCategories = operation(&C::installAllCategoriesMode)}});
        controller.outcomes.clear();
        stage.host.streams.appended.clear();
        stage.host.streams.files.clear();
        stage.host.tools.calls.clear();
        stage.host.administrator.calls.clear();
        stage.events.clear();
        const Tree before = std::exchange(m_now, {});
        EXPECT_EQ(driver.makeChange(), 0);
        m_now = tree();
        compareOutcomes(before);
    }

    void compareOutcomes(const Tree& before) const {
        const auto& outcomes = stage.controller.outcomes;
        const std::vector<std::uint32_t> items = choices();
        ASSERT_EQ(outcomes.size(), items.size());
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (rules.getItemMethod(items[i]) == "inst_Word")
                continue;
            const Parts was = partsOf(items[i], before);
            SCOPED_TRACE("item " + std::to_string(items[i]) + " in state " +
                         std::to_string(rules.getItemState(items[i])));
            EXPECT_EQ(outcomes[i].item, items[i]);
            EXPECT_EQ(outcomes[i].present, hasTrace(was, m_now));
            EXPECT_EQ(outcomes[i].result, expected(items[i], was, before));
        }
    }

    Result expected(std::uint32_t item, const Parts& parts, const Tree& before) const {
        const std::int32_t state = rules.getItemState(item);
        const bool uninstalls = stage.controller.m_bUninstall;
        if (!parts.isKnown || (!uninstalls && state != 0 && state != 1))
            return Result::unchanged;
        if (uninstalls || state == 0)
            return hasTrace(parts, m_now)    ? Result::failed
                   : hasTrace(parts, before) ? Result::removed
                                             : Result::unchanged;
        if (!isComplete(parts, m_now))
            return Result::failed;
        return isComplete(parts, before) ? Result::unchanged : Result::installed;
    }
    static bool hasTrace(const Parts& parts, const Tree& tree) {
        return std::ranges::any_of(parts.traces,
                                   [&](const std::string& path) { return tree.contains(path); });
    }
    static bool isComplete(const Parts& parts, const Tree& tree) {
        return !parts.copies.empty() && std::ranges::all_of(parts.copies, [&](const auto& copy) {
            if (!copy.first.empty())
                return isCopied(tree, copy.first, copy.second);
            const auto file = tree.find(copy.second);
            return file != tree.end() &&
                   file->second.find("update-manifest.xml\"}") != file->second.npos;
        });
    }

    std::string categoryPath(std::uint32_t item) const {
        const auto files = rules.getItemFiles(item);
        return files ? files->front() : "";
    }

    Parts partsOf(std::uint32_t item, const Tree& shipped) const {
        const std::string_view method = rules.getItemMethod(item).value();
        const auto leveled = [&](const std::string& source, const std::string& place, int level) {
            return Parts{.copies = {{source, (level == 0 ? "home" : "disk") + place}},
                         .traces = {"home" + place, "disk" + place}};
        };
        if (method == "inst_Spotlight")
            return leveled(
                kProduct + "/Installer.app/Contents/Library/Spotlight/Scrivel.mdimporter",
                "/Library/Spotlight/Scrivel.mdimporter", stage.controller.spotBtns.selected());
        if (method == "inst_Services")
            return leveled(kProduct + "/Services/SVService.app", "/Library/Services/SVService.app",
                           stage.controller.servBtns.selected());
        if (method == "inst_Tessaron")
            return {.copies = {{"", kExtension}}, .traces = {kExtension}};
        const std::string path = categoryPath(item);
        if (path.empty()) // such a rule has nothing that could be looked at
            return {.isKnown = false};
        if (method == "inst_Category") {
            Parts parts;
            const std::string parent = fs::path(path).parent_path().native();
            const std::string holder = kProduct + (parent.empty() ? "" : "/" + parent);
            for (const std::string& name : namesIn(shipped, kContent + path)) {
                parts.copies.emplace_back(kContent + path + "/" + name, holder + "/" + name);
                parts.traces.push_back(holder + "/" + name);
            }
            return parts;
        }
        if (method == "inst_allCategories") {
            Parts parts;
            const auto popular = namesIn(shipped, kContent + "Most Popular/" + path);
            for (const std::string& category : namesIn(shipped, kContent + path))
                for (const std::string& name : namesIn(shipped, kContent + path + "/" + category)) {
                    const std::string copy = kProduct + "/" + path + "/" + name;
                    parts.copies.emplace_back(kContent + path + "/" + category + "/" + name, copy);
                    if (!popular.contains(name))
                        parts.traces.push_back(copy);
                }
            return parts;
        }
        return {.isKnown = false};
    }

    /// Without the folders that the copies lie in, and the most popular of each collection.
    Tree withoutWhatStays(Tree tree) const {
        std::erase_if(tree, [](const auto& item) {
            const std::string& path = item.first;
            return (path.starts_with("home/") || path.starts_with("disk/")) &&
                   item.second.ends_with(" folder") &&
                   path.find("/Scrivel.mdimporter") == path.npos &&
                   path.find("/SVService.app") == path.npos;
        });
        for (const std::uint32_t item : choices()) {
            const std::string path = categoryPath(item);
            if (path.empty())
                continue;
            const std::string parent = fs::path(path).parent_path().native();
            const bool isCollection = rules.getItemMethod(item) == "inst_allCategories";
            const std::string folder = kProduct + "/" + (isCollection ? path : parent);
            tree.erase(folder);
            if (isCollection)
                for (const std::string& name :
                     namesIn(m_origin, kContent + "Most Popular/" + path)) {
                    const std::string most = kContent + "Most Popular/" + path + "/" + name;
                    const std::string copy = folder + "/" + name;
                    if (isCopied(tree, most, copy))
                        std::erase_if(tree, [&](const auto& its) {
                            return its.first == copy || isBelow(its.first, copy);
                        });
                }
        }
        return tree;
    }

    Tree m_origin;
    Tree m_now;
};

/// Two files for each category, the first of every other one among the most popular.
void writeContentFor(Matrix& matrix) {
    bool isPopular = false;
    for (const std::uint32_t item : matrix.choices()) {
        const auto files = matrix.rules.getItemFiles(item);
        if (matrix.rules.getItemMethod(item) != "inst_Category" || !files)
            continue;
        const fs::path path(files->front());
        const std::string name = path.filename().native();
        for (const char* number : {" 1", " 2"})
            matrix.stage.writeContent(path.native() + "/" + name + number, name + number);
        if (isPopular = !isPopular; isPopular)
            matrix.stage.writeContent(
                "Most Popular/" + path.parent_path().native() + "/" + name + " 1", name + " 1");
    }
}

TEST(ChangeMatrix, TheShippedComponentsInTheirStates) {
    Matrix matrix(tests::contentsOf(SCRIVEL_RESOURCES "/Customizer.rules.txt"));
    writeContentFor(matrix);
    matrix.keepOrigin();
    const std::size_t items = matrix.choices().size();
    ASSERT_GE(items, 10u);
    ASSERT_LT(items, 40u);
    const std::uint64_t all = std::uint64_t{1} << items;
    const std::uint64_t wanted = fromEnvironment("SCRIVEL_MATRIX_STATES", 300);
    const std::uint64_t count = wanted == 0 ? all : std::min(wanted, all);
    std::cout << items << " components, " << count << " of " << all << " states\n";
    for (std::uint64_t number = 0; number < count && !testing::Test::HasFailure(); ++number) {
        // An odd factor comes to each state once, and far apart ones first.
        const std::uint64_t bits = (number * 0x9E3779B97F4A7C15u) & (all - 1);
        std::vector<std::int32_t> states;
        for (std::size_t i = 0; i < items; ++i)
            states.push_back(static_cast<std::int32_t>(bits >> i & 1));
        if (number % 8 == 7) // some that can't be chosen, and some that are mixed
            for (std::size_t i = number % 5; i < items; i += 3)
                states[i] = i % 2 == 0 ? -1 : -2;
        matrix.stage.controller.spotBtns.select(static_cast<int>(number / 2 % 2));
        matrix.stage.controller.servBtns.select(static_cast<int>(number / 4 % 2));
        SCOPED_TRACE("state " + std::to_string(number) + ": " + testing::PrintToString(states));
        matrix.tryStates(states, number % 2 == 1);
    }
}

/// Rules and content at random: collections with categories that may be empty, missing, of the same
/// names or with folders, and every other method.
class RandomRules {
  public:
    explicit RandomRules(std::uint64_t seed) : m_dice(seed) {
        const int lines = 1 + roll(9);
        for (int line = 0; line < lines; ++line)
            m_text += "Item " + std::to_string(line) + "|" + (chance(4) ? "0" : "1") +
                      "|Description" + method() + "\n";
    }

    const std::string& text() const { return m_text; }
    int roll(int sides) { return static_cast<int>(m_dice() % static_cast<unsigned>(sides)); }
    bool chance(int oneIn) { return roll(oneIn) == 0; }

    void writeContent(const Matrix& matrix) {
        for (int collection = 0; collection < kCollections; ++collection) {
            const std::string top = "C" + std::to_string(collection);
            const int categories = roll(4);
            for (int category = 0; category < categories; ++category) {
                const std::string folder =
                    top + "/K" + std::to_string(collection) + std::to_string(category);
                fs::create_directories(matrix.stage.content(folder));
                if (chance(3))
                    fs::permissions(matrix.stage.content(folder), fs::perms(0750));
                for (int file = roll(4); file > 0; --file)
                    matrix.stage.writeContent(folder + "/" + fileName(), text(category));
            }
            if (!chance(4))
                for (int file = roll(3); file > 0; --file)
                    matrix.stage.writeContent("Most Popular/" + top + "/" + fileName(),
                                              text(roll(3)));
        }
    }
    std::int32_t state() {
        constexpr std::array kStates{0, 1, 0, 1, 0, 1, 0, 1, -1, -2, 2};
        return kStates.at(static_cast<std::size_t>(roll(kStates.size())));
    }

  private:
    static constexpr int kCollections = 3;

    static std::string text(int category) { return "content " + std::to_string(category % 2); }
    std::string fileName() {
        const std::string file = "f" + std::to_string(roll(6));
        return chance(4) ? "s" + std::to_string(roll(2)) + "/" + file
                         : (chance(6) ? "." : "") + file;
    }
    std::string method() {
        const std::string top = "C" + std::to_string(roll(kCollections + 1));
        switch (roll(12)) {
        case 0:
            return "";
        case 1:
            return "|inst_Spotlight";
        case 2:
            return "|inst_Services";
        case 3:
            return "|inst_Tessaron";
        case 4:
            return std::array<const char*, 5>{"|inst_File", "|inst_Dir", "|inst_Uninst",
                                              "|inst_Other", "|inst_Word"}
                .at(static_cast<std::size_t>(roll(5)));
        case 5:
        case 6:
            return chance(8) ? "|inst_allCategories" : "|inst_allCategories|" + top;
        case 7:
            return "|inst_Category|" + top;
        default:
            return chance(8)
                       ? "|inst_Category"
                       : "|inst_Category|" + top + "/K" + top.substr(1) + std::to_string(roll(4));
        }
    }

    std::mt19937_64 m_dice;
    std::string m_text;
};

TEST(ChangeMatrix, RulesAtRandom) {
    const std::uint64_t first = fromEnvironment("SCRIVEL_MATRIX_SEED", 1);
    const std::uint64_t count = fromEnvironment("SCRIVEL_MATRIX_RULES", 100);
    std::cout << count << " rules from seed " << first << '\n';
    for (std::uint64_t seed = first; seed < first + count && !testing::Test::HasFailure(); ++seed) {
        RandomRules random(seed);
        Matrix matrix(random.text());
        random.writeContent(matrix);
        matrix.keepOrigin();
        for (int round = 0; round < 3; ++round) {
            std::vector<std::int32_t> states;
            for (std::size_t i = 0; i < matrix.choices().size(); ++i)
                states.push_back(random.state());
            matrix.stage.controller.spotBtns.select(random.roll(2));
            matrix.stage.controller.servBtns.select(random.roll(2));
            SCOPED_TRACE("SCRIVEL_MATRIX_SEED=" + std::to_string(seed) + " round " +
                         std::to_string(round) + ": " + testing::PrintToString(states) + " of\n" +
                         random.text());
            matrix.tryStates(states, round == 1);
        }
    }
}

} // namespace
