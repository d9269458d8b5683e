// SPDX-License-Identifier: MIT
/// A drag that a widget ignores is offered to its parent, and so comes to the window.
#include "qt/file_drop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <utility>

#include "qt/widget_kit.h"

namespace mero::qt {
namespace {

bool isDrag(const QEvent& event) {
    return event.type() == QEvent::DragEnter || event.type() == QEvent::DragMove ||
           event.type() == QEvent::Drop;
}

bool hasFiles(const QMimeData& data) {
    const QList<QUrl> addresses = data.urls();
    return !addresses.isEmpty() && addresses.constFirst().isLocalFile();
}

class FileTarget : public QObject {
  public:
    FileTarget(QWidget& window, std::function<void(const QString&)> dropped)
        : QObject(&window), dropped_(std::move(dropped)) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!isDrag(*event)) {
            return QObject::eventFilter(watched, event);
        }
        auto& drag = dynamic_cast<QDropEvent&>(*event);
        const QMimeData& data = *drag.mimeData();
        if (!hasFiles(data) || data.urls().size() != 1) {
            event->ignore();
            return true;
        }
        drag.setDropAction(Qt::CopyAction);
        drag.accept();
        if (event->type() == QEvent::Drop) {
            // The program that the file comes from waits for the drop to end.
            later(*this, [this, path = data.urls().constFirst().toLocalFile()] { dropped_(path); });
        }
        return true;
    }

  private:
    std::function<void(const QString&)> dropped_;
};

class FileIgnorer : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (isDrag(*event) && hasFiles(*dynamic_cast<QDropEvent&>(*event).mimeData())) {
            event->ignore();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }
};

}  // namespace

void takeDroppedFiles(QWidget& window, std::function<void(const QString&)> dropped) {
    window.setAcceptDrops(true);
    window.installEventFilter(new FileTarget(window, std::move(dropped)));
}

void leaveFilesToWindow(QWidget& field) {
    field.installEventFilter(new FileIgnorer(&field));
}

}  // namespace mero::qt
