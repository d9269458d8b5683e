// SPDX-License-Identifier: MIT
/// Random lives are undone to the opening state and redone, over states that the window really had.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "forms/keeping/project_work.h"
#include "forms/keeping/same_project.h"
#include "monkey/generator.h"
#include "monkey/sandbox_folder.h"
#include "monkey/stage.h"

namespace mero::monkey {
namespace {

using forms::History;
using forms::isSameProject;
using forms::stateOf;
using forms::WindowState;

/// A program with its history, and the states that it had between two actions.
struct UndoneLife {
    explicit UndoneLife(const SandboxFolder& sandbox)
        : stage(sandbox), work(stage.program(), source()), seen{stateOf(stage.program())} {
        stage.workOn(work);
    }

    void live(std::uint64_t seed, int actions) {
        Generator generator(seed, Generator::Life::Endless);
        for (int i = 0; i < actions && !stage.program().ended(); ++i) {
            stage.perform(generator.next(stage.program()));
            seen.push_back(stateOf(stage.program()));
        }
    }
    /// The states after each step of `travel`, the present one first.
    std::vector<WindowState> states(std::optional<History::Step> (History::*travel)()) {
        std::vector<WindowState> states{stateOf(stage.program())};
        std::optional<History::Step> step;
        do {
            stage.program().enter([&] { step = (work.history().*travel)(); });
            states.push_back(stateOf(stage.program()));
            if (step) {
                EXPECT_NE(step->name, "");
            }
        } while (step);
        states.pop_back();
        return states;
    }
    [[nodiscard]] bool wasSeen(const WindowState& state) const {
        return std::ranges::any_of(seen, [&](const WindowState& each) { return isSameProject(each, state); });
    }

    [[nodiscard]] forms::ProjectSource source() const {
        return {stage.program().surroundings().rain_database, stage.program().surroundings().folder};
    }

    mutable Stage stage;
    forms::ProjectWork work;
    std::vector<WindowState> seen;
};

TEST(UndoneLives, ComeBackStepByStep) {
    constexpr int kLives = 120;
    constexpr int kActions = 60;
    const SandboxFolder sandbox;
    std::size_t steps = 0;
    for (std::uint64_t seed = 1; seed <= kLives; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        UndoneLife one(sandbox);
        one.live(seed, kActions);
        if (one.stage.program().ended()) {
            continue;
        }
        auto back = one.states(&History::undo);
        EXPECT_EQ(back.back(), one.seen.front()) << "undone to the opening state";
        for (const WindowState& state : back) {
            EXPECT_TRUE(one.wasSeen(state));
        }
        auto forth = one.states(&History::redo);
        std::ranges::reverse(forth);
        ASSERT_EQ(forth.size(), back.size());
        EXPECT_TRUE(isSameProject(forth.front(), one.seen.back()));
        EXPECT_TRUE(std::equal(forth.begin() + 1, forth.end(), back.begin() + 1)) << "digit for digit";
        steps += back.size();
    }
    EXPECT_GT(steps, std::size_t{kLives} * kActions / 8) << "too few steps to say anything";
}

}  // namespace
}  // namespace mero::monkey
