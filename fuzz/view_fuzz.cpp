// SPDX-License-Identifier: MIT
/// Descriptions of arbitrary bytes in the report's view: it is built in time, and the results stand behind
/// them. The fuzzer limits memory and the time of everything else, such as pages for the printer.
#include <QGuiApplication>
#include <cstdint>
#include <string>

#include "documents/shown_report.h"
#include "report/code_page.h"
#include "support/described.h"
#include "support/require.h"

namespace {

/// Processor time; sanitizers make the program's own part slower.
constexpr double kLimit_s = 2;
/// The view shows 60,000 letters.
constexpr std::size_t kLongest = 65'000;

/// Qt's text engine needs an application object that lives as long as the process.
const QGuiApplication& application() {
    static int count = 1;
    static char name[] = "fuzz_view";
    static char* arguments[] = {name, nullptr};
    static const bool offscreen = qputenv("QT_QPA_PLATFORM", "offscreen");
    static_cast<void>(offscreen);
    static const auto* object = new QGuiApplication(count, arguments);
    return *object;
}

}  // namespace

// The sanitizer asks for a function of this name.
#ifdef __clang__
#pragma clang diagnostic ignored "-Wreserved-identifier"
#endif
/// The font library keeps its tables until the process ends.
extern "C" const char* __lsan_default_suppressions();   // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
    return "leak:libfontconfig";
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static_cast<void>(application());
    static const mero::test::ShownReport report;
    const std::string input(data, data + size);
    const std::string description = mero::report::fromWindows1250(mero::fuzz::repeatedInput(input, kLongest));
    const auto painted = size % 8 == 0 ? mero::test::Painted::ViewAndPages : mero::test::Painted::View;
    const mero::test::Shown shown = report.describe(description, painted);
    mero::fuzz::require(shown.view_s < kLimit_s, "the view is built in time");
    mero::fuzz::require(shown.text.contains(QStringLiteral("Potřebný objem akumulace")),
                        "the results are shown");
    return 0;
}
