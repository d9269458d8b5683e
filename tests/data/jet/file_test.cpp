// SPDX-License-Identifier: MIT
/// What is refused at the head of a file, and pages by their numbers.
#include "data/jet/file.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "data/rain_support.h"

namespace mero::data::jet {
namespace {

class JetFile : public ::testing::Test {
  protected:
    static std::optional<Failure::Kind> failure(const std::string& content) {
        try {
            static_cast<void>(open(content));
            return std::nullopt;
        } catch (const Failure& failure) {
            return failure.kind();
        }
    }

    static File open(const std::string& content) {
        return File({reinterpret_cast<const std::uint8_t*>(content.data()), content.size()});
    }

    void flip(std::size_t at) { content_[at] = static_cast<char>(content_[at] ^ 1); }

    std::string content_ = test::contentOf(MERO_RAIN_DATABASE);
};

TEST_F(JetFile, TheShippedFileHasItsPages) {
    const File file = open(content_);
    EXPECT_EQ(file.pages(), content_.size() / 4096);
    EXPECT_TRUE(file.isOfType(2, PageType::TableDefinition));  // the catalogue
    EXPECT_TRUE(file.isOfType(1, PageType::Data));
    EXPECT_THROW(static_cast<void>(file.page(file.pages())), Failure);
    EXPECT_THROW(static_cast<void>(file.page(1, PageType::UsageMap)), Failure);
}

TEST_F(JetFile, AnotherFormatCannotBeOpened) {
    EXPECT_EQ(failure(""), Failure::Kind::CannotOpen);
    EXPECT_EQ(failure(content_.substr(0, 4095)), Failure::Kind::CannotOpen);
    content_[0x14] = 0;  // Jet 3
    EXPECT_EQ(failure(content_), Failure::Kind::CannotOpen);
    content_[0x14] = 2;  // Access 2007
    EXPECT_EQ(failure(content_), Failure::Kind::CannotOpen);
}

TEST_F(JetFile, AnEncryptedFileCannotBeOpened) {
    flip(0x3e);  // the key of the pages, 0 without encryption
    EXPECT_EQ(failure(content_), Failure::Kind::CannotOpen);
}

TEST_F(JetFile, AFileWithAPasswordCannotBeOpened) {
    flip(0x42 + 38);  // the last character of the longest password
    EXPECT_EQ(failure(content_), Failure::Kind::CannotOpen);
}

TEST_F(JetFile, AFileThatEndsWithinAPageIsDamaged) {
    EXPECT_EQ(failure(content_.substr(0, content_.size() - 1)), Failure::Kind::Damaged);
}

}  // namespace
}  // namespace mero::data::jet
