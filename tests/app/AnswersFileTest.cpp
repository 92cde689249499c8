#include "app/unattended/AnswersFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using app::AnswersFile;
using app::AnswersFileError;

AnswersFile parse(const std::string& text) {
    return AnswersFile::parse(text, "answers.json");
}

std::string errorOf(const std::string& text) {
    try {
        parse(text);
    } catch (const AnswersFileError& error) {
        return error.what();
    }
    return "no error";
}

TEST(AnswersFile, EveryMemberIsOptional) {
    const AnswersFile file = parse("{}");
    EXPECT_TRUE(file.answers.empty());
    EXPECT_FALSE(file.steps);
    EXPECT_FALSE(file.authorize);
}

TEST(AnswersFile, AnEmptyListOfStepsIsNotTheSameAsNone) {
    EXPECT_TRUE(parse(R"({"steps": []})").steps->empty());
}

TEST(AnswersFile, EveryKindOfStepIsRead) {
    const AnswersFile file = parse(R"({"answers": ["Yes"], "choices": ["/A", null],
        "authorize": false, "steps": [
        {"press": "nextBtn"}, {"toggle": "A"}, {"set": "B", "state": 1}, {"select": "m", "row": 1},
        {"selectRow": "acTbl", "row": -1}, {"call": "doGoCustom"},
        {"waitFor": {"event": "status"}}, {"snapshot": "s"}]})");
    EXPECT_EQ(file.choices.at(0), "/A");
    EXPECT_EQ(file.choices.at(1), std::nullopt);
    EXPECT_EQ(file.authorize, false);
    ASSERT_EQ(file.steps->size(), 8u);
    EXPECT_EQ(std::get<app::PressStep>(file.steps->at(0)).outlet, "nextBtn");
    EXPECT_EQ(std::get<app::ComponentStep>(file.steps->at(1)).state, std::nullopt);
    EXPECT_EQ(std::get<app::ComponentStep>(file.steps->at(2)).state, 1);
    EXPECT_EQ(std::get<app::SelectRowStep>(file.steps->at(4)).row, -1);
    EXPECT_EQ(std::get<app::CallStep>(file.steps->at(5)).action, "doGoCustom");
}

TEST(AnswersFile, ErrorsNameTheFileThePlaceAndTheRemedy) {
    using testing::AllOf;
    using testing::HasSubstr;
    EXPECT_THAT(errorOf("{\n  \"answers\": [,]}"),
                AllOf(HasSubstr("answers.json"), HasSubstr("line 2"), HasSubstr("mend")));
    EXPECT_THAT(errorOf("[]"), HasSubstr("curly brackets"));
    EXPECT_THAT(errorOf(R"({"answers": [1]})"), HasSubstr("answers[0]"));
    EXPECT_THAT(errorOf(R"({"answers": "Yes"})"), HasSubstr("square brackets"));
    EXPECT_THAT(errorOf(R"({"choices": [true]})"), HasSubstr("choices[0]"));
    EXPECT_THAT(errorOf(R"({"authorize": "no"})"), HasSubstr("true or false"));
    EXPECT_THAT(errorOf(R"({"step": []})"), HasSubstr("\"step\""));
    EXPECT_THAT(errorOf(R"({"steps": [{"press": "a"}, {"push": "b"}]})"), HasSubstr("steps[1]"));
    EXPECT_THAT(errorOf(R"({"steps": [7]})"), HasSubstr("steps[0]"));
    EXPECT_THAT(errorOf(R"({"steps": [{"set": "A"}]})"), HasSubstr("\"state\""));
    EXPECT_THAT(errorOf(R"({"steps": [{"set": "A", "state": 2}]})"),
                AllOf(HasSubstr("steps[0]"), HasSubstr("0 for off or 1 for on")));
    EXPECT_THAT(errorOf(R"({"steps": [{"set": "A", "state": true}]})"), HasSubstr("whole number"));
    EXPECT_THAT(errorOf(R"({"steps": [{"select": "A", "row": 4294967296}]})"),
                HasSubstr("whole number"));
    EXPECT_THAT(errorOf(R"({"steps": [{"select": "A", "row": 18446744073709551615}]})"),
                HasSubstr("whole number"));
    EXPECT_THAT(errorOf(R"({"steps": [{"select": "A", "row": 1e999}]})"),
                AllOf(HasSubstr("answers.json"), HasSubstr("1e999"), HasSubstr("mend")));
    EXPECT_THAT(errorOf(R"({"steps": [{"selectRow": "A"}]})"), HasSubstr("\"row\""));
    EXPECT_THAT(errorOf(R"({"steps": [{"press": "a", "row": 1}]})"), HasSubstr("take it out"));
    EXPECT_THAT(errorOf(R"({"steps": [{"waitFor": {"text": "x"}}]})"), HasSubstr("\"event\""));
}

TEST(AnswersFile, AFileThatCanNotBeReadIsAnErrorWithItsName) {
    EXPECT_THROW(AnswersFile::read("/nowhere/answers.json"), AnswersFileError);
    EXPECT_THROW(AnswersFile::read("/"), AnswersFileError);
}

} // namespace
