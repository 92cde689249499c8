#include "app/unattended/AnswersFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <functional>
#include <sstream>
#include <string_view>
#include <utility>

namespace app {

namespace {

using Json = nlohmann::ordered_json;

/// Reads values out of the document and says where one is wrong.
class Reader {
  public:
    explicit Reader(std::string file) : m_file(std::move(file)) {}

    [[noreturn]] void fail(const std::string& place, const std::string& remedy) const {
        throw AnswersFileError(m_file + ": " + place + ": " + remedy);
    }

    std::string text(const Json& value, const std::string& place) const {
        if (!value.is_string())
            fail(place, "write a text in double quotes here");
        return value.get<std::string>();
    }

    int number(const Json& value, const std::string& place) const {
        // Compared here: the document would compare its largest numbers as if they were negative.
        const bool fits =
            value.is_number_unsigned()
                ? std::in_range<int>(value.get<std::uint64_t>())
                : value.is_number_integer() && std::in_range<int>(value.get<std::int64_t>());
        if (!fits)
            fail(place, "write a whole number here");
        return value.get<int>();
    }

    int state(const Json& value, const std::string& place) const {
        const int state = number(value, place);
        if (state != 0 && state != 1)
            fail(place, "write 0 for off or 1 for on as the state");
        return state;
    }

    const Json& list(const Json& value, const std::string& place) const {
        if (!value.is_array())
            fail(place, "write a list in square brackets here");
        return value;
    }

  private:
    std::string m_file;
};

/// The verbs of "steps": the member that names the step, the one that may go with it, and how the
/// two become a step.
struct StepKind {
    std::string_view verb;
    std::string_view companion;
    bool companionRequired;
    std::function<Step(const Reader&, const Json& step, const std::string& place)> make;
};

const std::array<StepKind, 8>& stepKinds() {
    static const std::array<StepKind, 8> kinds{{
        {"press", "", false,
         [](const Reader& r, const Json& s, const std::string& p) -> Step {
             return PressStep{r.text(s["press"], p)};
         }},
        {"toggle", "", false,
         [](const Reader& r, const Json& s, const std::string& p) -> Step {
             return ComponentStep{r.text(s["toggle"], p), std::nullopt};
         }},
        {"set", "state", true,
         [](const Reader& r, const Json& s, const std::string& p) -> Step {
             return ComponentStep{r.text(s["set"], p), r.state(s["state"], p)};
         }},
        {"select", "row", true,
         [](const Reader& r, const Json& s, const std::string& p) -> Step {
             return SelectStep{r.text(s["select"], p), r.number(s["row"], p)};
         }},
        {"selectRow", "row", true,
         [](const Reader& r, const Json& s, const std::string& p) -> Step {
             return SelectRowStep{r.text(s["selectRow"], p), r.number(s["row"], p)};
         }},
        {"call", "", false,
         [](const Reader& r, const Json& s, const std::string& p) -> Step {
             return CallStep{r.text(s["call"], p)};
         }},
        {"waitFor", "", false,
         [](const Reader& r, const Json& s, const std::string& p) -> Step {
             if (!s["waitFor"].is_object() || !s["waitFor"].contains("event"))
                 r.fail(p, "write an object with the member \"event\" after \"waitFor\"");
             return WaitStep{s["waitFor"]};
         }},
        {"snapshot", "", false,
         [](const Reader& r, const Json& s, const std::string& p) -> Step {
             return SnapshotStep{r.text(s["snapshot"], p)};
         }},
    }};
    return kinds;
}

Step readStep(const Reader& reader, const Json& step, const std::string& place) {
    if (!step.is_object())
        reader.fail(place, "write an object such as {\"press\": \"m_button\"} here");
    for (const StepKind& kind : stepKinds()) {
        if (!step.contains(kind.verb))
            continue;
        const bool complete = kind.companion.empty() || step.contains(kind.companion);
        if (kind.companionRequired && !complete)
            reader.fail(place, "\"" + std::string(kind.verb) + "\" needs the member \"" +
                                   std::string(kind.companion) + "\" beside it");
        for (const auto& [member, value] : step.items())
            if (member != kind.verb && member != kind.companion)
                reader.fail(place, "\"" + member + "\" does not go with \"" +
                                       std::string(kind.verb) + "\"; take it out");
        return kind.make(reader, step, place);
    }
    reader.fail(place, "no step of this kind; the kinds are press, toggle, set, select, "
                       "selectRow, call, waitFor and snapshot");
}

std::string numbered(const char* member, std::size_t index) {
    return std::string(member) + "[" + std::to_string(index) + "]";
}

void readAnswers(AnswersFile& file, const Reader& reader, const Json& value) {
    for (std::size_t i = 0; const Json& answer : reader.list(value, "answers"))
        file.answers.push_back(reader.text(answer, numbered("answers", i++)));
}

void readChoices(AnswersFile& file, const Reader& reader, const Json& value) {
    for (std::size_t i = 0; const Json& choice : reader.list(value, "choices")) {
        const std::string place = numbered("choices", i++);
        file.choices.push_back(choice.is_null() ? std::optional<std::string>()
                                                : reader.text(choice, place));
    }
}

void readAuthorize(AnswersFile& file, const Reader& reader, const Json& value) {
    if (!value.is_boolean())
        reader.fail("authorize", "write true or false here");
    file.authorize = value.get<bool>();
}

void readSteps(AnswersFile& file, const Reader& reader, const Json& value) {
    file.steps.emplace();
    for (std::size_t i = 0; const Json& step : reader.list(value, "steps"))
        file.steps->push_back(readStep(reader, step, numbered("steps", i++)));
}

struct Member {
    std::string_view name;
    void (*read)(AnswersFile&, const Reader&, const Json&);
};
constexpr std::array kMembers{
    Member{"answers", readAnswers},
    Member{"choices", readChoices},
    Member{"authorize", readAuthorize},
    Member{"steps", readSteps},
};

} // namespace

AnswersFile AnswersFile::parse(const std::string& text, const std::string& name) {
    const Reader reader(name);
    Json document;
    try {
        document = Json::parse(text);
    } catch (const Json::exception& error) {   // a number may also be beyond all numbers
        const std::string what = error.what(); // "[json.exception…] parse error at line 1, …"
        reader.fail(what.substr(what.find("] ") + 2), "mend the JSON there");
    }
    if (!document.is_object())
        reader.fail("the document", "write one JSON object in curly brackets");
    AnswersFile file;
    file.name = name;
    for (const auto& [member, value] : document.items()) {
        const auto* known = std::ranges::find(kMembers, member, &Member::name);
        if (known == kMembers.end())
            reader.fail("\"" + member + "\"",
                        "no such member; the members are answers, choices, authorize and steps");
        known->read(file, reader, value);
    }
    return file;
}

AnswersFile AnswersFile::read(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    if (!file || !(text << file.rdbuf()))
        throw AnswersFileError(path + ": can't be read, or is empty; check that it exists, that "
                                      "you may read it and that it holds one JSON object");
    return parse(text.str(), path);
}

} // namespace app
