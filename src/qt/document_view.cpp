// SPDX-License-Identifier: MIT
/// Binds browser views to text browsers.
/// Pages are made for paper, so they are black on white whatever the desktop's colours.
#include "qt/document_view.h"

#include <QPalette>
#include <QScrollBar>
#include <QTextCursor>
#include <QUrl>

#include "qt/texts.h"

namespace mero::qt {
namespace {

using platform::Aspect;

void setPaperColours(QTextBrowser& browser) {
    QPalette palette = browser.palette();
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Link, QColor(0x0b, 0x57, 0xa4));
    browser.setPalette(palette);
}

void showBeginning(QTextBrowser& browser) {
    browser.moveCursor(QTextCursor::Start);
    // Making the cursor visible scrolled past the margin above it.
    browser.verticalScrollBar()->setValue(0);
}

void followLink(QTextBrowser& browser, LocalDocument& document, const DocumentServices& services,
                const QUrl& link) {
    const QString scheme = link.scheme().toLower();
    if (scheme == QLatin1String("http") || scheme == QLatin1String("https")) {
        services.open_address(stored(link.toString(QUrl::FullyEncoded)));
        return;
    }
    if (document.follow(link)) {
        showBeginning(browser);
    }
    if (link.hasFragment()) {
        browser.scrollToAnchor(link.fragment());
    }
}

}  // namespace

QTextBrowser& makeDocumentView(WidgetKit& kit, platform::BrowserView& view, const DocumentServices& services,
                               QWidget& parent) {
    auto& browser = *new QTextBrowser(&parent);
    auto* document = new LocalDocument(services.decode, &browser);
    browser.setDocument(document);
    browser.setOpenLinks(false);
    setPaperColours(browser);
    bindCommon(kit, view, browser);
    const auto show = [&view, &browser, document] {
        if (!view.path().empty()) {
            document->load(shown(view.path()));
            showBeginning(browser);
        }
    };
    show();
    follow(view, browser, [show](Aspect aspect) {
        if (aspect == Aspect::Path) {
            show();
        }
    });
    QObject::connect(&browser, &QTextBrowser::anchorClicked, &browser,
                     [&kit, &browser, document, services](const QUrl& link) {
                         kit.enter([&] { followLink(browser, *document, services, link); });
                     });
    return browser;
}

}  // namespace mero::qt
