// SPDX-License-Identifier: MIT
/// The page in place of a missing file says why where the project's name is the cause, and a name that can be
/// saved is proposed.
#include "qt/missing_page.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace mero::qt {
namespace {

class ProjectName : public testing::Test {
  protected:
    [[nodiscard]] QString report(const QString& project) const {
        return folder.path() + QLatin1String("/Mero_") + project;
    }
    [[nodiscard]] bool isBlamed(const QString& path) const {
        return missingPage(path).contains(QStringLiteral("Příčinou je název projektu"));
    }
    QTemporaryDir folder;
};

TEST_F(ProjectName, WithASlashIsNamedAsTheCause) {
    const QString page = missingPage(report("Parcela č. 123/4"));
    EXPECT_TRUE(page.contains("<b>Parcela č. 123/4</b>: je v něm lomítko")) << page.toStdString();
    EXPECT_TRUE(isBlamed(report("../x")));
    EXPECT_TRUE(isBlamed(report("/")));
    EXPECT_TRUE(missingPage(report("<b>/")).contains("&lt;b&gt;/"));
}

// With folders of these names the path leads to a place where a file could be.
TEST_F(ProjectName, WithASlashIsNamedAlsoWhereItLeadsToAFolder) {
    QDir(folder.path()).mkdir("Webs");
    QDir(folder.path()).mkpath("Mero_/b");
    EXPECT_TRUE(missingPage(report("/b/hala")).contains("<b>/b/hala</b>: je v něm lomítko"));
    EXPECT_TRUE(isBlamed(report("/../../hala")));
    EXPECT_FALSE(isBlamed(report("hala")));
    EXPECT_FALSE(isBlamed(folder.filePath("Webs/Desc04.htm")));
    EXPECT_EQ(savableName(report("/b/hala.html")), "Mero_-b-hala.html");
}

TEST_F(ProjectName, ThatIsTooLongIsNamedAsTheCause) {
    EXPECT_TRUE(isBlamed(report(QString(126, QChar(0x159))))) << "5 + 252 bytes";
    EXPECT_FALSE(isBlamed(report(QString(125, QChar(0x159))))) << "255 bytes are a file name";
}

TEST_F(ProjectName, IsNotTheCauseOfAnotherMissingFile) {
    EXPECT_FALSE(isBlamed(report("hala")));
    EXPECT_FALSE(isBlamed(folder.filePath("Webs/Desc04.htm")));
    EXPECT_FALSE(isBlamed(folder.filePath("Webs/" + QString(300, 'x'))));
}

TEST_F(ProjectName, GivesAFileNameThatCanBeSaved) {
    const QString name = savableName(report("Parcela č. 123/4.html"));
    EXPECT_EQ(name, "Mero_Parcela č. 123-4.html");
    EXPECT_TRUE(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
    EXPECT_EQ(savableName(report("../../a:b\\c \"d\"\n?.html")), "Mero_..-..-a-b-c -d---.html");
    EXPECT_EQ(savableName(report("hala 1.2.html")), "Mero_hala 1.2.html") << "an ordinary name stays";
    EXPECT_EQ(savableName(report(".html")), "Mero_.html");
}

TEST_F(ProjectName, IsCutWhereItIsTooLong) {
    const QString name = savableName(report(QString(5000, QChar(0x159)) + ".html"));
    EXPECT_TRUE(name.endsWith(".html"));
    EXPECT_LE(name.toUtf8().size(), 205);
    EXPECT_GE(name.toUtf8().size(), 200);
    EXPECT_TRUE(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
}

}  // namespace
}  // namespace mero::qt
