// SPDX-License-Identifier: MIT
/// What a shown page can read: regular files of its folder, with a limited size.
#include "qt/document_files.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <filesystem>

#include "qt/local_document.h"
#include "support/temporary_folder.h"

namespace mero::qt {
namespace {

QString shown(const std::string& text) {
    return QString::fromStdString(text);
}

class DocumentFiles : public testing::Test {
  protected:
    void SetUp() override {
        std::filesystem::create_directories(folder.file("Webs/sub"));
        writePicture(folder.file("Webs/a.png"));
        writePicture(elsewhere.file("a.png"));
        folder.write("Mero_", "<html><body>a</body></html>");
        ASSERT_TRUE(document.load(shown(folder.file("Mero_"))));
    }
    static void writePicture(const std::string& path) {
        QImage picture(3, 2, QImage::Format_RGB32);
        picture.fill(Qt::red);
        ASSERT_TRUE(picture.save(shown(path)));
    }
    bool hasPicture(const std::string& reference) {
        return document.resource(QTextDocument::ImageResource, QUrl(shown(reference))).isValid();
    }

    test::TemporaryFolder folder{" dokument ěš"};
    test::TemporaryFolder elsewhere;
    LocalDocument document{[](std::string_view bytes) { return std::string(bytes); }};
};

TEST_F(DocumentFiles, PicturesOfTheFolderAreRead) {
    EXPECT_TRUE(hasPicture("Webs/a.png"));
    EXPECT_TRUE(hasPicture("Webs\\sub\\..\\a.png"));
    EXPECT_TRUE(hasPicture(folder.file("Webs/a.png")));
}

TEST_F(DocumentFiles, NothingOutsideTheFolderIsRead) {
    EXPECT_FALSE(hasPicture(elsewhere.file("a.png")));
    EXPECT_FALSE(hasPicture(
        "../" + std::filesystem::path(elsewhere.file("a.png")).parent_path().filename().string() + "/a.png"));
    std::filesystem::create_symlink(elsewhere.file("a.png"), folder.file("link.png"));
    EXPECT_FALSE(hasPicture("link.png"));
    std::filesystem::create_directory_symlink(elsewhere.path(), folder.file("linked"));
    EXPECT_FALSE(hasPicture("linked/a.png"));
    // A file whose size is given as 0 and that does not end.
    EXPECT_FALSE(hasPicture("/proc/self/pagemap"));
    EXPECT_FALSE(hasPicture("/dev/zero"));
}

TEST_F(DocumentFiles, PagesMayBeInstalledElsewhereThroughALink) {
    std::filesystem::create_directories(elsewhere.file("pages"));
    writePicture(elsewhere.file("pages/b.png"));
    std::filesystem::remove_all(folder.file("Webs"));
    std::filesystem::create_directory_symlink(elsewhere.file("pages"), folder.file("Webs"));
    EXPECT_TRUE(hasPicture("Webs/b.png"));
    EXPECT_FALSE(hasPicture("Webs/../a.png"));
}

TEST_F(DocumentFiles, APipeIsNotWaitedFor) {
    ASSERT_EQ(mkfifo(folder.file("pipe.png").c_str(), 0600), 0);
    EXPECT_FALSE(hasPicture("pipe.png"));
    EXPECT_FALSE(document.load(shown(folder.file("pipe.png"))));
}

TEST_F(DocumentFiles, AFileIsReadUpToALimit) {
    folder.write("ten", "0123456789");
    EXPECT_EQ(readRegularFile(shown(folder.file("ten")), 10), QByteArray("0123456789"));
    EXPECT_FALSE(readRegularFile(shown(folder.file("ten")), 9).has_value());
    // Its size is given as 0.
    EXPECT_FALSE(readRegularFile(QStringLiteral("/proc/self/maps"), 100).has_value());
    EXPECT_FALSE(readRegularFile(shown(folder.path()), 100).has_value());
    EXPECT_FALSE(readRegularFile(QStringLiteral("/dev/zero"), 100).has_value());
}

/// The header of a GIF file of this size, without its lines.
QByteArray gifHeader(int width, int height) {
    QByteArray bytes("GIF89a");
    for (const int number : {width, height}) {
        bytes += static_cast<char>(number & 0xFF);
        bytes += static_cast<char>(number >> 8);
    }
    return bytes + QByteArray("\x00\x00\x00", 3);
}

TEST_F(DocumentFiles, APictureIsAsLargeAsAScreenAtMost) {
    qint64 pixels = 100;
    QBuffer picture;
    picture.open(QIODevice::WriteOnly);
    QImage(5, 8, QImage::Format_Mono).save(&picture, "PNG");
    EXPECT_TRUE(isShowablePicture(picture.data(), pixels));
    EXPECT_TRUE(isShowablePicture(picture.data(), pixels));
    EXPECT_EQ(pixels, 20);
    EXPECT_FALSE(isShowablePicture(picture.data(), pixels));
    qint64 screens = 32 << 20;
    EXPECT_FALSE(isShowablePicture(gifHeader(60'000, 60'000), screens));
    EXPECT_FALSE(
        isShowablePicture("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>", screens));
    EXPECT_FALSE(isShowablePicture("GIF89a", screens));
    EXPECT_FALSE(isShowablePicture({}, screens));
}

TEST_F(DocumentFiles, LinksStayInTheFolder) {
    folder.write("Webs/page.htm", "<html><body>page</body></html>");
    elsewhere.write("page.htm", "<html><body>elsewhere</body></html>");
    EXPECT_FALSE(document.follow(QUrl::fromLocalFile(shown(elsewhere.file("page.htm")))));
    EXPECT_FALSE(document.follow(QUrl("/proc/self/pagemap")));
    EXPECT_FALSE(document.follow(QUrl("Mero_")));
    EXPECT_TRUE(document.follow(QUrl("Webs/page.htm")));
    EXPECT_EQ(document.toPlainText(), "page");
    // Back to the folder of the first page, which stays the limit.
    EXPECT_TRUE(document.follow(QUrl("../Mero_")));
    EXPECT_EQ(document.toPlainText(), "a");
}

TEST_F(DocumentFiles, ACharacterSetInATextIsText) {
    LocalDocument decoded{[](std::string_view) { return std::string("decoded"); }};
    folder.write("Mero_", "<html><body>charset=utf-8</body></html>");
    ASSERT_TRUE(decoded.load(shown(folder.file("Mero_"))));
    EXPECT_EQ(decoded.toPlainText(), "decoded");
}

}  // namespace
}  // namespace mero::qt
