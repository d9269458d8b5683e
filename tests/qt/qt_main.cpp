// SPDX-License-Identifier: MIT
/// Main program of tests that need Qt's application object.
#include <gtest/gtest.h>

#include <QApplication>

#include "platform/numbers/numeric_locale.h"
#include "qt/program_style.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    mero::numbers::useNumericCLocale();
    mero::qt::useProgramStyle();
    return RUN_ALL_TESTS();
}
