// SPDX-License-Identifier: MIT
/// The save dialog: suffixes, filters, existing files.
#include "app/mero/save_dialog.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <functional>

#include "app/mero/qt_desk.h"
#include "support/temporary_folder.h"

namespace mero::app {
namespace {

const QString kHtml = QString::fromUtf8(kHtmlFilter);
const QString kPdf = QString::fromUtf8(kPdfFilter);

TEST(SaveSuffix, IsAddedWhereItIsMissing) {
    EXPECT_EQ(withSuffix("/x/zpráva", kHtml), "/x/zpráva.html");
    EXPECT_EQ(withSuffix("/x/zpráva", kPdf), "/x/zpráva.pdf");
    EXPECT_EQ(withSuffix("/x/hala 1.2", kPdf), "/x/hala 1.2.pdf");
    EXPECT_EQ(withSuffix("/x.pdf/zpráva", kHtml), "/x.pdf/zpráva.html");
}

TEST(SaveSuffix, OfTheUserStays) {
    for (const char* path : {"/x/a.html", "/x/a.HTM", "/x/a.pdf", "/x/a.PDF"}) {
        EXPECT_EQ(withSuffix(path, kHtml), path);
        EXPECT_EQ(withSuffix(path, kPdf), path);
    }
}

class SaveDialog : public testing::Test {
  protected:
    void SetUp() override { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    /// Answers the modal windows in turn, each with the next of the acts.
    std::optional<QString> ask(std::vector<std::function<void(QWidget&)>> acts) {
        QTimer timer;
        timer.setInterval(30);
        std::size_t next = 0;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            QWidget* window = QApplication::activeModalWidget();
            if (window == nullptr || window == answered_) {
                return;
            }
            if (next < acts.size()) {
                // An act may open a question, and a timer does not fire inside its own slot.
                answered_ = window;
                QTimer::singleShot(0, window, [act = acts[next++], window] { act(*window); });
            } else {
                ADD_FAILURE() << "one window too many";
                window->close();
            }
        });
        timer.start();
        return askWhereToSave(nullptr, QString::fromStdString(folder.file("Mero_Test.html")));
    }
    static std::function<void(QWidget&)> choose(const QString& path, const QString& filter) {
        return [path, filter](QWidget& window) {
            auto& dialog = dynamic_cast<QFileDialog&>(window);
            dialog.selectNameFilter(filter);
            emit dialog.filterSelected(filter);
            dialog.findChild<QLineEdit*>()->setText(path);
            QMetaObject::invokeMethod(&dialog, "accept");
        };
    }
    static std::function<void(QWidget&)> answer(QMessageBox::StandardButton button) {
        return [button](QWidget& window) { dynamic_cast<QMessageBox&>(window).button(button)->click(); };
    }
    [[nodiscard]] QString path(const char* name) const { return QString::fromStdString(folder.file(name)); }

    mero::test::TemporaryFolder folder;

  private:
    QWidget* answered_ = nullptr;
};

TEST_F(SaveDialog, OffersHtmlAndPdfAndTheProjectsName) {
    QStringList filters;
    QString offered;
    const auto chosen = ask({[&](QWidget& window) {
        auto& dialog = dynamic_cast<QFileDialog&>(window);
        filters = dialog.nameFilters();
        offered = dialog.selectedFiles().value(0);
        dialog.reject();
    }});
    EXPECT_FALSE(chosen.has_value());
    EXPECT_EQ(filters, (QStringList{kHtml, kPdf}));
    EXPECT_EQ(offered, path("Mero_Test.html"));
}

TEST_F(SaveDialog, TheNameFollowsTheFilter) {
    const auto chosen = ask({[&](QWidget& window) {
        auto& dialog = dynamic_cast<QFileDialog&>(window);
        dialog.selectNameFilter(kPdf);
        emit dialog.filterSelected(kPdf);
        QMetaObject::invokeMethod(&dialog, "accept");
    }});
    EXPECT_EQ(chosen, path("Mero_Test.pdf"));
}

TEST_F(SaveDialog, AddsTheSuffix) {
    EXPECT_EQ(ask({choose("hala 1.2", kHtml)}), path("hala 1.2.html"));
}

TEST_F(SaveDialog, AsksAboutTheFileThatTheSuffixLeadsTo) {
    folder.write("hala 1.2.pdf", "starý");
    EXPECT_EQ(ask({choose("hala 1.2", kPdf), answer(QMessageBox::Yes)}), path("hala 1.2.pdf"));
}

TEST_F(SaveDialog, AsksAboutAFileThatIsThere) {
    folder.write("a.html", "starý");
    EXPECT_EQ(ask({choose("a.html", kHtml), answer(QMessageBox::Yes)}), path("a.html"));
}

TEST_F(SaveDialog, TheQuestionShowsMarkUpInTheNameAsItIs) {
    folder.write("<b>hala<b> &amp;.html", "starý");
    QString text;
    Qt::TextFormat format = Qt::AutoText;
    const auto read = [&](QWidget& window) {
        auto& box = dynamic_cast<QMessageBox&>(window);
        text = box.text();
        format = box.textFormat();
        box.button(QMessageBox::Yes)->click();
    };
    EXPECT_EQ(ask({choose("<b>hala<b> &amp;.html", kHtml), read}), path("<b>hala<b> &amp;.html"));
    EXPECT_EQ(text, "Soubor <b>hala<b> &amp;.html už existuje. Nahradit jej?");
    EXPECT_EQ(format, Qt::PlainText);
}

TEST_F(SaveDialog, IsCzechWhateverTranslationIsInstalled) {
    QStringList texts;
    static_cast<void>(ask({[&](QWidget& window) {
        auto& dialog = dynamic_cast<QFileDialog&>(window);
        texts = {dialog.labelText(QFileDialog::FileName), dialog.labelText(QFileDialog::FileType),
                 dialog.labelText(QFileDialog::Accept), dialog.labelText(QFileDialog::Reject)};
        dialog.reject();
    }}));
    EXPECT_EQ(texts, (QStringList{"&Název souboru:", "Druh souboru:", "&Uložit", "Zrušit"}));
}

TEST_F(SaveDialog, NoBringsBackToTheChoice) {
    folder.write("a.html", "starý");
    EXPECT_EQ(ask({choose("a.html", kHtml), answer(QMessageBox::No), choose("b.html", kHtml)}),
              path("b.html"));
}

TEST(SaveFolder, ThatIsHiddenIsKnown) {
    EXPECT_TRUE(isHidden("/home/anna/.local/share/mero"));
    EXPECT_TRUE(isHidden("/home/anna/.mero"));
    EXPECT_FALSE(isHidden("/home/anna/Projekty v1.2/a"));
}

TEST_F(SaveDialog, OfTheDeskStartsInTheDocumentsThenWhereSomethingWasSaved) {
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", QByteArray::fromStdString(folder.path()));
    for (const char* name : {".local", "Documents", "jinde"}) {
        QDir(QString::fromStdString(folder.path())).mkpath(name);
    }
    QtDesk desk(Sitter::Person, [](std::string_view bytes) { return std::string(bytes); });
    QStringList offered;
    const auto ask_desk = [&](const QString& answered) {
        QTimer::singleShot(0, [&offered, answered] {
            auto& dialog = dynamic_cast<QFileDialog&>(*QApplication::activeModalWidget());
            offered += dialog.selectedFiles().value(0);
            dialog.findChild<QLineEdit*>()->setText(answered);
            QMetaObject::invokeMethod(&dialog, answered.isEmpty() ? "reject" : "accept");
        });
        return desk.askSavePath(folder.path() + "/.local/Mero_Parcela č. 123/4.html");
    };
    EXPECT_EQ(ask_desk(path("jinde/a.html")), folder.file("jinde/a.html"));
    EXPECT_EQ(ask_desk(""), std::nullopt);
    qputenv("HOME", home);
    EXPECT_EQ(offered, (QStringList{path("Documents/Mero_Parcela č. 123-4.html"),
                                    path("jinde/Mero_Parcela č. 123-4.html")}));
}

}  // namespace
}  // namespace mero::app
