// SPDX-License-Identifier: MIT
/// Text sizes of a document are those of a browser.
#include "qt/local_document.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTextBlock>

namespace mero::qt {
namespace {

class DocumentText : public testing::Test {
  protected:
    /// Size in points of the first text of each paragraph.
    QList<qreal> sizes(const QByteArray& html) {
        QFile file(folder.filePath("page"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(html);
        file.close();
        EXPECT_TRUE(document.load(file.fileName()));
        QList<qreal> found;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            found += block.begin().fragment().charFormat().font().pointSizeF();
        }
        return found;
    }

    QTemporaryDir folder;
    LocalDocument document{[](std::string_view bytes) { return std::string(bytes); }};
};

TEST_F(DocumentText, IsAsWideAsTheNarrowerFaceOfABrowser) {
    EXPECT_EQ(document.defaultFont().pointSizeF(), 10);
    EXPECT_EQ(document.documentMargin(), 8);
}

TEST_F(DocumentText, HeadingsHaveTheSizeThatThePageGivesThem) {
    EXPECT_EQ(sizes("<html><head><style>h1 { font-size: 17pt; } h2 { font-size: 12pt; }</style></head>"
                    "<body><h1>a</h1><h2>b</h2></body></html>"),
              (QList<qreal>{17, 12}));
}

TEST_F(DocumentText, HeadingsWithoutASizeAreLarger) {
    const auto format = [&] { return document.begin().begin().fragment().charFormat(); };
    sizes("<html><body><h1>a</h1></body></html>");
    EXPECT_TRUE(format().hasProperty(QTextFormat::FontSizeAdjustment));
    sizes("<html><head><style>h1 { font-size: 17pt; }</style></head><body><h1>a</h1></body></html>");
    EXPECT_FALSE(format().hasProperty(QTextFormat::FontSizeAdjustment));
}

TEST_F(DocumentText, TellsWhetherTheFileWasRead) {
    EXPECT_FALSE(document.load(folder.filePath("není")));
    EXPECT_FALSE(document.load(folder.path()));
}

}  // namespace
}  // namespace mero::qt
