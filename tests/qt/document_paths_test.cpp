// SPDX-License-Identifier: MIT
/// Which file a reference in a document leads to: never one on another machine.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QUrl>

#include "qt/local_document.h"

namespace mero::qt {
namespace {

class DocumentPaths : public testing::Test {
  protected:
    void SetUp() override {
        QFile page(folder.filePath("page.htm"));
        ASSERT_TRUE(page.open(QIODevice::WriteOnly));
        page.write("<p>x</p>");
        page.close();
        ASSERT_TRUE(document.load(page.fileName()));
    }
    [[nodiscard]] QString resolved(const QString& reference) const {
        return document.resolve(QUrl(reference));
    }

    QTemporaryDir folder;
    LocalDocument document{[](std::string_view bytes) { return std::string(bytes); }};
};

TEST_F(DocumentPaths, AreBesideTheDocument) {
    EXPECT_EQ(resolved("Desc_soubory/image001.png"), folder.filePath("Desc_soubory/image001.png"));
    EXPECT_EQ(resolved("Webs%5CDesc_soubory%5Clogo.gif"), folder.filePath("Webs/Desc_soubory/logo.gif"));
    EXPECT_EQ(resolved("file://" + folder.filePath("a.png")), folder.filePath("a.png"));
}

// On some systems such a path reaches the network, and tells another machine who reads the report.
TEST_F(DocumentPaths, WithAHostLeadNowhere) {
    for (const char* reference :
         {"file://host/share/a.png", "file://host/a.png", "file:////host/a.png", "//host/a.png",
          "%5C%5Chost%5Ca.png", "file:///%5Chost%5Ca.png", "http://host/a.png", "ftp://host/a.png"}) {
        EXPECT_EQ(resolved(reference), "") << reference;
    }
}

}  // namespace
}  // namespace mero::qt
