// SPDX-License-Identifier: MIT
// When text boxes run their change handler, and what a user's text may consist of.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/controls/form.h"
#include "platform/controls/text_box.h"

namespace mero::platform {
namespace {

struct TextBoxTest : testing::Test {
    TextBoxTest() {
        box.changed = [this] { seen.push_back(box.text()); };
    }
    Form form{"frm", "Form"};
    TextBox box{form, "txt", "1.2"};
    std::vector<std::string> seen;
};

using Texts = std::vector<std::string>;

TEST_F(TextBoxTest, TheInitialTextRunsNothing) {
    EXPECT_EQ(box.text(), "1.2");
    EXPECT_TRUE(seen.empty());
}

TEST_F(TextBoxTest, CodeRunsTheHandlerAtEveryAssignmentAlsoOfTheSameText) {
    box.setText("1.2");
    box.setText("");
    box.setText("");
    EXPECT_EQ(seen, (Texts{"1.2", "", ""}));
}

TEST_F(TextBoxTest, TheUserRunsItOnlyWithAnotherText) {
    box.userEdit("1.2");
    EXPECT_TRUE(seen.empty());
    box.userEdit("1.25");
    box.userEdit("1.25");
    EXPECT_EQ(seen, (Texts{"1.25"}));
}

TEST_F(TextBoxTest, AShownTextRunsNothing) {
    box.showText("otevřeno");
    EXPECT_EQ(box.text(), "otevřeno");
    EXPECT_TRUE(seen.empty());
}

TEST_F(TextBoxTest, AHandlerMayEmptyTheBoxAndIsRunForThatToo) {
    box.changed = [this] {
        seen.push_back(box.text());
        if (!box.text().empty()) {
            box.setText("");
        }
    };
    box.userEdit("x");
    EXPECT_EQ(seen, (Texts{"x", ""}));
    EXPECT_EQ(box.text(), "");
}

TEST_F(TextBoxTest, ASingleLineTakesNoControlCharacters) {
    box.userEdit("a\tb\nc\r\nd\x01\x7F");
    EXPECT_EQ(box.text(), "abcd\x7F");
}

TEST_F(TextBoxTest, SeveralLinesAreJoinedByCarriageReturnAndLineFeed) {
    box.setMultiLine(true);
    box.userEdit("a\nb\r\nc\rd\n\ne\tf");
    EXPECT_EQ(box.text(), "a\r\nb\r\nc\r\nd\r\n\r\ne\tf");
}

TEST_F(TextBoxTest, CodeMayAssignWhatAUserCannotType) {
    box.setText("a\nb");
    EXPECT_EQ(box.text(), "a\nb");
}

TEST_F(TextBoxTest, LongAndUnusualTextsAreKeptWhole) {
    const std::string text = std::string(300, 'x') + "žluťoučký 🌧️";
    box.userEdit(text);
    EXPECT_EQ(box.text(), text);
}

TEST_F(TextBoxTest, KeysAndFocusRunTheirOwnHandlers) {
    std::vector<Key> keys;
    Texts focus;
    box.key_pressed = [&](Key key) { keys.push_back(key); };
    box.got_focus = [&] { focus.emplace_back("got"); };
    box.lost_focus = [&] { focus.emplace_back("lost"); };
    box.userGotFocus();
    box.userKey(Key::Enter);
    box.userKey(Key::Escape);
    box.userLostFocus();
    EXPECT_EQ(keys, (std::vector<Key>{Key::Enter, Key::Escape}));
    EXPECT_EQ(focus, (Texts{"got", "lost"}));
    EXPECT_TRUE(seen.empty());
    EXPECT_EQ(static_cast<int>(Key::Enter), 13);
    EXPECT_EQ(static_cast<int>(Key::Escape), 27);
}

TEST_F(TextBoxTest, WithoutHandlersNothingHappens) {
    const TextBox bare{form, "bare"};
    bare.userKey(Key::Enter);
    bare.userGotFocus();
    bare.userLostFocus();
    EXPECT_EQ(bare.text(), "");
}

}  // namespace
}  // namespace mero::platform
