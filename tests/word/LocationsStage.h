// The page of the alternate locations over fakes, and a user who answers its questions by the
// titles of their buttons.
#pragma once

#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/word/WordStage.h"

namespace tests {

class LocationsStage : public WordStage {
  protected:
    struct Question {
        std::string title, message;
        Texts buttons;
    };
    std::vector<Question> questions;
    /// What the user presses, by title; when used up the sheet is closed.
    std::deque<std::string> presses;

    void SetUp() override {
        WordStage::SetUp();
        host.modalLoop.idle = [this] { return answer(); };
    }
    bool answer() {
        auto& files = host.interfaceFiles;
        auto& window = files.interfaces.find("ecPanel")->second->window;
        std::vector<controls::Button*> buttons;
        Question question{.title = window.title(),
                          .message =
                              files.control<controls::TextField>("ecPanel", "msgText").text(),
                          .buttons = {}};
        for (const auto* outlet : {"defBtn", "altBtn", "othBtn"})
            if (auto& button = files.control<controls::Button>("ecPanel", outlet);
                !button.isHidden()) {
                buttons.push_back(&button);
                question.buttons.push_back(button.title());
            }
        questions.push_back(question);
        if (presses.empty()) {
            window.performClose();
            return true;
        }
        const std::string title = presses.front();
        presses.pop_front();
        for (controls::Button* button : buttons)
            if (button->title() == title) {
                button->press();
                return true;
            }
        ADD_FAILURE() << "no button " << title;
        window.performClose();
        return true;
    }
    void choose(std::optional<std::string> path) { host.fileChoosers.answers.push_back(path); }

    /// A Word that lies as an installation does, with "Office" beside it.
    std::string installation(const std::string& place, const std::string& version) {
        made(place + "/Office");
        return wordUnknown(place + "/Word.app", version);
    }
    void show() {
        controller->constructWordAndStartupPaths();
        controller->doAltPMRK();
    }
    controls::TableView& table() { return controller->acTbl; }
    /// Which of "+-CR" can be pressed.
    std::string usable() const {
        std::string all;
        all += controller->acPlus.isEnabled() ? "+" : "";
        all += controller->acMinusBtn.isEnabled() ? "-" : "";
        all += controller->acChange.isEnabled() ? "C" : "";
        all += controller->acResetBtn.isEnabled() ? "R" : "";
        return all;
    }
    Texts row(int number) {
        Texts cells;
        for (const auto column : table().columns())
            cells.push_back(table().value(column, number));
        return cells;
    }
    /// Two Words of breadcrumbs and a found one: the table's rows 0, 1 and 2.
    void threeRows() {
        first = installation("First", "14");
        second = installation("Second", "16");
        remember({first + "|||/S1|||14", second + "|||/S2|||16"});
        found = word("Found.app", "16");
        show();
        ASSERT_EQ(table().rows(), 3);
    }
    std::string first, second, found;
};

} // namespace tests
