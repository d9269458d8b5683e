// SPDX-License-Identifier: MIT
// The trace's lines, and that all calls are passed on to a real desk.
#include "automation/trace_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "support/message_box.h"
#include "support/recording_desk.h"

namespace mero::automation {
namespace {

using mero::test::critical;
using mero::test::exclamation;
using mero::test::information;
using mero::test::messageOf;
using mero::test::plain;
using testing::ElementsAre;

TEST(TraceDesk, OneJsonObjectPerThing) {
    std::ostringstream trace;
    TraceDesk desk(trace, nullptr, "/f");
    desk.showMessage(messageOf(critical("První\r\nDruhý \"x\"\r\n")));
    desk.showMessage(messageOf(exclamation("a", "Chyba")));
    desk.showMessage(messageOf(information("b")));
    desk.showMessage(messageOf(plain("c")));
    desk.reportError(RuntimeError(ErrorNumber::DivisionByZero));
    desk.reportError(RuntimeError(53, "pryč", RuntimeError::Effect::EndsProgram));
    desk.openAddress("https://example.org/");
    desk.formOpened("frmDialog");
    desk.formClosed("frmDialog");
    desk.navigated("wbShowResults", "/f/Mero_");
    desk.openPrintPreview("/f/Mero_");
    desk.saved("/f/a.html");
    desk.ended();
    EXPECT_EQ(trace.str(), R"({"message": "První\r\nDruhý \"x\"\r\n", "icon": "critical", "title": null})"
                           "\n"
                           R"({"message": "a", "icon": "exclamation", "title": "Chyba"})"
                           "\n"
                           R"({"message": "b", "icon": "information", "title": null})"
                           "\n"
                           R"({"message": "c", "icon": "none", "title": null})"
                           "\n"
                           R"({"error": 11, "description": "Dělení nulou", "ends": false})"
                           "\n"
                           R"({"error": 53, "description": "pryč", "ends": true})"
                           "\n"
                           R"({"url": "https://example.org/"})"
                           "\n"
                           R"({"opened": "frmDialog"})"
                           "\n"
                           R"({"closed": "frmDialog"})"
                           "\n"
                           R"({"navigated": "wbShowResults", "path": "/f/Mero_"})"
                           "\n"
                           R"({"preview": "/f/Mero_"})"
                           "\n"
                           R"({"saved": "/f/a.html"})"
                           "\n"
                           R"({"ended": true})"
                           "\n");
}

TEST(TraceDesk, TheDeskBehindItIsShownTheSame) {
    std::ostringstream trace;
    mero::test::RecordingDesk inner;
    TraceDesk desk(trace, &inner, "/f");
    desk.showMessage(messageOf(exclamation("a", "Chyba")));
    desk.reportError(RuntimeError(ErrorNumber::Overflow));
    desk.openAddress("https://example.org/");
    desk.formOpened("f");
    desk.formClosed("f");
    desk.navigated("v", "p");
    desk.openPrintPreview("p");
    desk.saved("s");
    desk.ended();
    EXPECT_THAT(inner.lines,
                ElementsAre("exclamation [Chyba]: a", "error 6", "url https://example.org/", "opened f",
                            "closed f", "navigated v p", "preview p", "saved s", "ended"));
}

TEST(TraceDesk, TheSaveDialogIsAnsweredByTheScriptNotByTheDeskBehind) {
    std::ostringstream trace;
    mero::test::RecordingDesk inner;
    inner.save_answer = "/elsewhere";
    TraceDesk desk(trace, &inner, "/f");
    EXPECT_EQ(desk.askSavePath("/f/x"), std::nullopt);
    desk.answerSave("a.html");
    EXPECT_EQ(desk.askSavePath("/f/x"), "/f/a.html");
    EXPECT_EQ(desk.askSavePath("/f/x"), std::nullopt);
    desk.answerSave("/b.html");
    EXPECT_EQ(desk.askSavePath("/f/x"), "/b.html");
    EXPECT_EQ(trace.str(), "");
}

TEST(TraceDesk, TextsThatAreNotUtf8AreReplacedNotFatal) {
    std::ostringstream trace;
    TraceDesk desk(trace, nullptr, "/f");
    desk.saved("/f/\xFF");
    EXPECT_EQ(trace.str(), "{\"saved\": \"/f/\xEF\xBF\xBD\"}\n");
}

}  // namespace
}  // namespace mero::automation
