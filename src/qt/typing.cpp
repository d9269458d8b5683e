// SPDX-License-Identifier: MIT
/// Keeps the messages of one keystroke: there is only one field in which one types.
#include "qt/typing.h"

#include <QGuiApplication>
#include <QStringList>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "qt/balloon.h"
#include "qt/texts.h"

namespace mero::qt {
namespace {

/// How often a held mouse button is looked at.
constexpr int kButtonPeriodMs = 20;

QString joined(const std::vector<platform::Message>& messages) {
    QStringList lines;
    for (const platform::Message& message : messages) {
        lines += shown(message.text).replace(QLatin1String("\r\n"), QLatin1String("\n")).trimmed();
    }
    return lines.join(QLatin1Char('\n'));
}

}  // namespace

void Typing::run(QWidget& field, const std::function<void()>& event) {
    forget();
    field_ = &field;
    event();
    field_ = nullptr;
}

bool Typing::tell(const platform::Message& message) {
    const auto same = std::ranges::find(kept_, message);
    if (field_.isNull()) {
        if (same != kept_.end()) {
            kept_.erase(same);
        }
        return false;
    }
    if (same == kept_.end()) {
        kept_.push_back(message);
    }
    showBalloon(*field_, joined(kept_));
    return true;
}

void Typing::leave() {
    // Also while nothing is kept: what ends the entry of the left field may still raise something.
    if (std::exchange(leaving_, true)) {
        return;
    }
    auto* timer = new QTimer(this);
    QObject::connect(timer, &QTimer::timeout, this, [this, timer] {
        if (QGuiApplication::mouseButtons() == Qt::NoButton) {
            timer->stop();
            timer->deleteLater();
            leaving_ = false;
            settle();
        } else {
            timer->setInterval(kButtonPeriodMs);
        }
    });
    timer->start(0);
}

void Typing::settle() {
    if (kept_.empty() || !field_.isNull()) {
        return;
    }
    hideBalloon();
    for (const platform::Message& message : std::exchange(kept_, {})) {
        show_box(message);
    }
}

void Typing::forget() {
    if (!kept_.empty()) {
        kept_.clear();
        hideBalloon();
    }
}

}  // namespace mero::qt
