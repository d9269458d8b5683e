// SPDX-License-Identifier: MIT
/// One watcher for each main window: it follows all controls and refreshes when the event loop turns.
#include "forms/calc/layout/after_event.h"

#include <QEvent>
#include <QPointer>
#include <QTimer>
#include <utility>
#include <vector>

#include "qt/widget_kit.h"

namespace mero::forms {
namespace {

class Watcher : public QObject {
  public:
    Watcher(frmCalc& form, QWidget& window) : QObject(&window) {
        setObjectName(QLatin1String(kName));
        timer_.setSingleShot(true);
        connect(&timer_, &QTimer::timeout, this, [this] { refresh(); });
        // A calculation that is refused changes no control.
        form.record().ended = [self = QPointer<Watcher>(this)] {
            if (!self.isNull()) {
                self->schedule();
            }
        };
        const std::vector<platform::Form*> forms{&form, &form.intDialog, &form.areaDialog, &form.coefDialog};
        for (platform::Form* each : forms) {
            for (platform::Control* control : each->controls()) {
                qt::follow(*control, window, [this](platform::Aspect aspect) {
                    if (aspect != platform::Aspect::Focus) {
                        schedule();
                    }
                });
            }
        }
    }

    void add(QWidget& widget, std::function<void()> action) {
        parts_.push_back({&widget, std::move(action)});
        widget.installEventFilter(this);
        schedule();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Show) {
            schedule();
        }
        return QObject::eventFilter(watched, event);
    }

    static constexpr const char* kName = "after_event";

  private:
    struct Part {
        QPointer<QWidget> widget;
        std::function<void()> refresh;
    };

    void schedule() {
        if (!std::exchange(pending_, true)) {
            timer_.start(0);
        }
    }
    void refresh() {
        pending_ = false;
        for (const Part& part : parts_) {
            if (!part.widget.isNull() && part.widget->isVisible()) {
                try {
                    part.refresh();
                } catch (const RuntimeError&) {  // numbers that nothing can be said about
                    continue;
                }
            }
        }
    }

    QTimer timer_;
    std::vector<Part> parts_;
    bool pending_ = false;
};

}  // namespace

void refreshAfterEvents(frmCalc& form, QWidget& widget, std::function<void()> refresh) {
    QWidget& window = *widget.window();
    auto* watcher = dynamic_cast<Watcher*>(
        window.findChild<QObject*>(QLatin1String(Watcher::kName), Qt::FindDirectChildrenOnly));
    if (watcher == nullptr) {
        watcher = new Watcher(form, window);
    }
    watcher->add(widget, std::move(refresh));
}

}  // namespace mero::forms
