// SPDX-License-Identifier: MIT
/// Local pages: character sets, pictures, missing files, links.
#include "qt/document_view.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTextBlock>

#include "qt/bench_form.h"
#include "qt/texts.h"

namespace mero::qt {
namespace {

/// A decoder with one special letter, to recognise that it was used.
std::string decodeForTest(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) {
        text += byte == '\xFE' ? std::string("ţ") : std::string(1, byte);
    }
    return text;
}

class Page : public testing::Test {
  protected:
    QTemporaryDir folder;
    std::vector<std::string> addresses;
    BenchForm bench;
    platform::BrowserView control{bench.form, "wbShowResults"};
    BenchWindow window;
    QTextBrowser& browser = window.put(makeDocumentView(
        bench.kit, control,
        {decodeForTest, [this](const std::string& address) { addresses.push_back(address); }}, window));

    std::string write(const char* name, const QByteArray& bytes) const {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return stored(file.fileName());
    }
    /// Writes a red picture of 3 x 2 pixels.
    void writePicture(const QString& name) const {
        QImage picture(3, 2, QImage::Format_RGB32);
        picture.fill(Qt::red);
        EXPECT_TRUE(picture.save(folder.filePath(name)));
    }
    [[nodiscard]] QImage picture(const QString& name) const {
        const QVariant resource = browser.document()->resource(QTextDocument::ImageResource, QUrl(name));
        return QImage::fromData(resource.toByteArray());
    }
    void follow(const QUrl& link) { emit browser.anchorClicked(link); }
};

TEST_F(Page, WithoutACharacterSetIsDecodedByTheCodePage) {
    control.navigate(write("Mero_", "<html><body>\xFE</body></html>"));
    EXPECT_EQ(browser.toPlainText(), "ţ");
}

TEST_F(Page, ThatDeclaresUtf8IsReadAsThat) {
    for (const char* head : {"<meta charset=\"utf-8\">", "<META CHARSET=UTF-8>",
                             "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\">"}) {
        control.navigate(
            write("page.htm", QByteArray("<html><head>") + head + "</head><body>žluť</body></html>"));
        EXPECT_EQ(browser.toPlainText(), "žluť") << head;
    }
}

TEST_F(Page, ThatIsMissingSaysSoAndNamesTheFile) {
    control.navigate(stored(folder.filePath("Webs/Desc04.htm")));
    EXPECT_THAT(stored(browser.toPlainText()), testing::HasSubstr("Desc04.htm"));
    EXPECT_THAT(stored(browser.toPlainText()), testing::HasSubstr("neexistuje nebo jej nelze přečíst"));
}

TEST_F(Page, ThatIsAFolderSaysSoToo) {
    control.navigate(stored(folder.path()));
    EXPECT_THAT(stored(browser.toPlainText()), testing::HasSubstr("Stránku nelze zobrazit"));
}

TEST_F(Page, IsReadAgainWhenTheViewIsSentToTheSameFile) {
    const std::string path = write("Mero_Test", "<p>před</p>");
    control.navigate(path);
    write("Mero_Test", "<p>po</p>");
    control.navigate(path);
    EXPECT_EQ(browser.toPlainText(), "po");
}

TEST_F(Page, FindsPicturesByPathsWithBackslashes) {
    ASSERT_TRUE(QDir(folder.path()).mkpath("Webs/Desc soubory"));
    writePicture("Webs/Desc soubory/logo.png");
    control.navigate(write("Mero_", "<img src='Webs\\Desc soubory\\logo.png'>"));
    EXPECT_EQ(picture("Webs\\Desc soubory\\logo.png").size(), QSize(3, 2));
    EXPECT_EQ(picture("Webs/Desc%20soubory/logo.png").size(), QSize(3, 2));
}

TEST_F(Page, WithoutItsPictureIsShownAllTheSame) {
    control.navigate(write("Mero_", "<p>text</p><img src=Webs\\logo.gif>"));
    EXPECT_THAT(stored(browser.toPlainText()), testing::HasSubstr("text"));
    EXPECT_TRUE(picture("Webs\\logo.gif").isNull());
}

TEST_F(Page, LoadsNothingFromElsewhere) {
    control.navigate(write("Mero_", "<p>text</p>"));
    for (const char* name : {"http://127.0.0.1/logo.gif", "//server/logo.gif", "ftp://server/logo.gif"}) {
        EXPECT_TRUE(picture(name).isNull()) << name;
    }
}

TEST_F(Page, HandsWebAddressesOnAndStays) {
    control.navigate(write("page.htm", "<a href='https://www.chmi.cz/'>x</a>"));
    follow(QUrl("https://www.chmi.cz/"));
    EXPECT_THAT(addresses, testing::ElementsAre("https://www.chmi.cz/"));
    EXPECT_EQ(browser.toPlainText(), "x");
}

TEST_F(Page, FollowsLinksToItsNeighbours) {
    write("Desc02.htm", "<p>průleh</p>");
    control.navigate(write("Desc01.htm", "<a href='Desc02.htm'>x</a>"));
    follow(QUrl("Desc02.htm"));
    EXPECT_EQ(browser.toPlainText(), "průleh");
}

TEST_F(Page, RunsNothingAndIgnoresOtherLinks) {
    control.navigate(write("page.htm", "<script>alert(1)</script><p>text</p>"));
    follow(QUrl("javascript:alert(1)"));
    follow(QUrl("mailto:a@b.cz"));
    EXPECT_EQ(browser.toPlainText(), "text");
    EXPECT_TRUE(addresses.empty());
}

TEST_F(Page, OpensAtItsBeginning) {
    control.navigate(write("long.htm", "<p>řádek</p>" + QByteArray("<p>x</p>").repeated(500)));
    EXPECT_EQ(browser.textCursor().position(), 0);
}

}  // namespace
}  // namespace mero::qt
