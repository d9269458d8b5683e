// SPDX-License-Identifier: MIT
/// Paths of the documents.
#include "report/documents.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/temporary_folder.h"

namespace mero::report {
namespace {

TEST(ReportPath, IsNamedAfterTheProject) {
    EXPECT_EQ(reportPath("/opt/mero", "Test"), "/opt/mero/Mero_Test");
    EXPECT_EQ(reportPath("/opt/mero", ""), "/opt/mero/Mero_");
    EXPECT_EQ(reportPath("/home/jiří/má data", "Žďár 2. etapa"), "/home/jiří/má data/Mero_Žďár 2. etapa");
}

TEST(ReportPath, TakesTheNameAsTyped) {
    EXPECT_EQ(reportPath("/opt/mero", "a/b"), "/opt/mero/Mero_a/b");
    EXPECT_EQ(reportPath("/opt/mero", " x.html "), "/opt/mero/Mero_ x.html ");
}

TEST(ReportPath, IsDirectlyInTheFolderUnlessTheNameHoldsASlash) {
    EXPECT_TRUE(isDirectlyIn("/opt/mero", reportPath("/opt/mero", "Test")));
    EXPECT_TRUE(isDirectlyIn("/opt/mero", reportPath("/opt/mero", "..")));
    EXPECT_TRUE(isDirectlyIn("/opt/mero", reportPath("/opt/mero", "a\\b")));
    for (const char* name : {"a/b", "/", "/../../x", "../x"}) {
        EXPECT_FALSE(isDirectlyIn("/opt/mero", reportPath("/opt/mero", name))) << name;
    }
    EXPECT_FALSE(isDirectlyIn("/opt/mero", ""));
    EXPECT_FALSE(isDirectlyIn("/opt/mero", "/opt/mero2"));
    EXPECT_FALSE(isDirectlyIn("/opt/mero", "/opt/Mero_Test"));
}

TEST(ProgramFile, IsTheDatabaseOrAPageAlsoThroughALink) {
    const test::TemporaryFolder folder;
    std::filesystem::create_directory(folder.file("Webs"));
    folder.write("mero.mdb", "rain");
    std::filesystem::create_symlink(folder.file("mero.mdb"), folder.file("link"));
    for (const char* name : {"mero.mdb", "link", "Webs/Desc01.htm", "Webs/new/x", "./Webs/../Webs/x"}) {
        EXPECT_TRUE(isProgramFile(folder.path(), folder.file(name))) << name;
    }
    for (const char* name : {"Webs", "Webs.html", "x.html", "Webs/../x.html", "..", "none/mero.mdb"}) {
        EXPECT_FALSE(isProgramFile(folder.path(), folder.file(name))) << name;
    }
    EXPECT_FALSE(isProgramFile(folder.file("none"), folder.file("none/Webs/x"))) << "no such folder";
}

TEST(DescriptionPagePath, IsNumberedByType) {
    EXPECT_EQ(descriptionPagePath("/opt/mero", data::FacilityType::Surface), "/opt/mero/Webs/Desc01.htm");
    EXPECT_EQ(descriptionPagePath("/opt/mero", data::FacilityType::Trench), "/opt/mero/Webs/Desc04.htm");
    EXPECT_EQ(descriptionPagePath("/má data", data::FacilityType::Tank), "/má data/Webs/Desc06.htm");
}

}  // namespace
}  // namespace mero::report
