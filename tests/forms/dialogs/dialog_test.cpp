// SPDX-License-Identifier: MIT
// What the three dialogs share: the main window is disabled while one is open, however it is closed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/test_program.h"

namespace mero::forms {
namespace {

using test::TestProgram;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Dialogs, TheCloseBoxEnablesTheMainWindowAgain) {
    TestProgram p;
    for (const int member : {0, 1, 2}) {
        auto* dialog = p.program.forms()[static_cast<std::size_t>(member) + 1];
        EXPECT_FALSE(dialog->visible());
        p.click(p.window().cmdEdit[member]);
        EXPECT_TRUE(dialog->visible());
        EXPECT_FALSE(p.window().enabled());
        p.close(*dialog);
        EXPECT_FALSE(dialog->visible());
        EXPECT_TRUE(p.window().enabled());
        EXPECT_THAT(p.desk.take(), ElementsAre("opened " + dialog->name(), "closed " + dialog->name()));
    }
}

TEST(Dialogs, ClosingAClosedDialogDoesNothing) {
    TestProgram p;
    p.close(p.areaDialog());
    EXPECT_THAT(p.desk.lines, IsEmpty());
}

TEST(Dialogs, TitlesAndCaptions) {
    TestProgram p;
    EXPECT_EQ(p.rainDialog().title(), "Intenzity trvání deště");
    EXPECT_EQ(p.areaDialog().title(), "Střední odtokový součinitel");
    EXPECT_EQ(p.rainDialog().cmdOK.text(), "OK");
    EXPECT_EQ(p.rainDialog().cmdEdit.text(), "?");
    EXPECT_EQ(p.areaDialog().cmdZapsat.text(), "Zapsat do tabulky");
    EXPECT_EQ(p.areaDialog().cmdDelete.text(), "Smazat");
    EXPECT_EQ(p.areaDialog().cmdDeleteAll.text(), "Smazat vše");
    EXPECT_EQ(p.areaDialog().OKButton.text(), "OK");
    EXPECT_EQ(p.areaDialog().CancelButton.text(), "Cancel");
    EXPECT_EQ(p.soilDialog().cmdOK.text(), "OK");
}

TEST(Dialogs, ConfirmingTwiceIsConfirmingOnce) {
    TestProgram p;
    p.giveSite();
    p.desk.take();
    p.click(p.window().cmdEdit[1]);
    p.click(p.areaDialog().OKButton);
    p.click(p.areaDialog().OKButton);
    EXPECT_EQ(p.desk.count("closed frmDialog"), 1);
    p.desk.take();
    p.click(p.window().cmdEdit[0]);
    p.click(p.rainDialog().cmdOK);
    p.click(p.rainDialog().cmdOK);
    EXPECT_EQ(p.desk.count("closed frmIntDialog"), 1);
    EXPECT_TRUE(p.window().enabled());
}

}  // namespace
}  // namespace mero::forms
