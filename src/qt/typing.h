// SPDX-License-Identifier: MIT
/// Messages that a person's keystroke raises are told beside the field, so that typing is not interrupted.
/// What the last keystroke raised has its box when the field is left or anything else is done.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <vector>

#include "platform/desk.h"

namespace mero::qt {

class Typing : public QObject {
  public:
    /// Shows a message in its box.
    std::function<void(const platform::Message& message)> show_box;

    /// Runs the event of a keystroke or paste in the field. What earlier keystrokes raised is forgotten.
    void run(QWidget& field, const std::function<void()>& event);

    /// Tells the message beside the field and keeps it, if a keystroke raised it.
    /// @return false when no keystroke is running: the caller shows the box, and an equal message that was
    /// kept
    ///         is forgotten
    [[nodiscard]] bool tell(const platform::Message& message);

    /// The field was left: shows the boxes once the running event is over and no mouse button is down,
    /// because a box would swallow the rest of a click.
    void leave();
    /// Shows the boxes at once; not within a keystroke.
    void settle();
    /// Forgets what was kept.
    void forget();

  private:
    QPointer<QWidget> field_;  ///< whose keystroke is running
    bool leaving_ = false;
    std::vector<platform::Message> kept_;
};

}  // namespace mero::qt
