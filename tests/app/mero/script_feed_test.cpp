// SPDX-License-Identifier: MIT
/// Passing a script's lines to the runner: lines, the end, early stops.
#include "app/mero/script_feed.h"

#include <unistd.h>

#include <QTest>
#include <optional>

#include "app/mero/main_window.h"

namespace mero::app {
namespace {

class Feed : public MainWindow {
  protected:
    std::optional<int> status;
    ScriptFeed feed{runner, [this](int exit_status) { status = exit_status; }};
};

TEST_F(Feed, PerformsAllLinesAlsoTheLastWithoutItsEnd) {
    feed.feedAll("echo a\n\n# note\necho b");
    EXPECT_EQ(trace.str(), "{\"echo\": \"a\"}\n{\"echo\": \"b\"}\n");
    EXPECT_EQ(status, 0);
}

// Taking each line from the front of the rest would take minutes.
TEST_F(Feed, PerformsManyLinesInLinearTime) {
    std::string script;
    for (int number = 0; number < 400000; ++number) {
        script += "# a line that does nothing\n";
    }
    feed.feedAll(script + "echo end\n");
    EXPECT_EQ(trace.str(), "{\"echo\": \"end\"}\n");
}

TEST_F(Feed, AnEmptyScriptEndsWell) {
    feed.feedAll("");
    EXPECT_EQ(status, 0);
}

TEST_F(Feed, StopsAtAnUnusableLineAndSaysWhich) {
    feed.feedAll("echo a\nclick cmdNothing\necho b\n");
    EXPECT_EQ(status, 2);
    EXPECT_EQ(trace.str(), "{\"echo\": \"a\"}\n");
    EXPECT_THAT(diagnostics.str(), testing::HasSubstr("test:2: "));
}

TEST_F(Feed, StopsWhenTheProgramEnds) {
    feed.feedAll("close frmCalc\necho b\n");
    EXPECT_EQ(status, 0);
    EXPECT_THAT(trace.str(), testing::EndsWith("{\"ended\": true}\n"));
}

/// Replaces standard input by a pipe during this object's lifetime.
class InputPipe {
  public:
    InputPipe() : saved_(dup(STDIN_FILENO)) {
        EXPECT_EQ(pipe(ends_), 0);
        dup2(ends_[0], STDIN_FILENO);
        ::close(ends_[0]);
    }
    ~InputPipe() {
        end();
        dup2(saved_, STDIN_FILENO);
        ::close(saved_);
    }
    InputPipe(const InputPipe&) = delete;
    InputPipe& operator=(const InputPipe&) = delete;
    InputPipe(InputPipe&&) = delete;
    InputPipe& operator=(InputPipe&&) = delete;

    void send(const std::string& text) const {
        EXPECT_EQ(write(ends_[1], text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }
    void end() {
        if (ends_[1] >= 0) {
            ::close(ends_[1]);
            ends_[1] = -1;
        }
    }

  private:
    int saved_;
    int ends_[2] = {-1, -1};
};

TEST_F(Feed, PerformsLinesOfStandardInputAsTheyCome) {
    InputPipe input;
    feed.feedStandardInput();
    input.send("echo a\nec");
    EXPECT_TRUE(QTest::qWaitFor([this] { return trace.str() == "{\"echo\": \"a\"}\n"; }));
    EXPECT_FALSE(status.has_value()) << "the window waits for more";
    input.send("ho b");
    input.end();
    EXPECT_TRUE(QTest::qWaitFor([this] { return status.has_value(); }));
    EXPECT_EQ(status, 0);
    EXPECT_THAT(trace.str(), testing::EndsWith("{\"echo\": \"b\"}\n"));
}

}  // namespace
}  // namespace mero::app
