// SPDX-License-Identifier: MIT
/// A browser view as a widget: shows local pages, follows links between them, passes web addresses on.
#pragma once

#include <QTextBrowser>
#include <functional>
#include <string>

#include "platform/controls/containers.h"
#include "qt/local_document.h"
#include "qt/widget_kit.h"

namespace mero::qt {

/// Services that a browser view needs.
struct DocumentServices {
    Decoder decode;
    /// Called with a web address that was clicked.
    std::function<void(const std::string& address)> open_address;
};

QTextBrowser& makeDocumentView(WidgetKit& kit, platform::BrowserView& view, const DocumentServices& services,
                               QWidget& parent);

}  // namespace mero::qt
