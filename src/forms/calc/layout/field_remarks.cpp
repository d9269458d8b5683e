// SPDX-License-Identifier: MIT
/// Fills the notes. A remark about the field in which a person is typing waits for a pause: the first digits
/// of a number are often an implausible one.
#include "forms/calc/layout/field_remarks.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <unordered_map>
#include <utility>

#include "forms/calc/layout/after_event.h"
#include "forms/calc/remarks.h"
#include "qt/field_note.h"
#include "qt/texts.h"

namespace mero::forms {
namespace {

constexpr int kPauseMs = 900;

class RemarkBoard : public QObject {
  public:
    RemarkBoard(qt::WidgetKit& kit, QWidget& holder, std::function<std::vector<Remark>()> remarks)
        : QObject(&holder), kit_(&kit), holder_(&holder), remarks_(std::move(remarks)) {
        pause_.setSingleShot(true);
        pause_.setInterval(kPauseMs);
        connect(&pause_, &QTimer::timeout, this, [this] { show(true); });
    }

    /// @param after_pause nobody has typed for a while
    void show(bool after_pause) {
        const std::vector<Remark> found = remarks_();
        std::unordered_map<const platform::Control*, const Remark*> wanted;
        for (const Remark& remark : found) {
            wanted[remark.beside] = &remark;
        }
        for (auto& [control, note] : shown_) {
            if (!wanted.contains(control)) {
                tell(*control, note, {});
            }
        }
        bool waits = false;
        for (const auto& [control, remark] : wanted) {
            QLabel* note = noteOf(*control);
            if (note == nullptr) {
                continue;
            }
            if (!after_pause && isBeingTyped(*control) && !note->isVisibleTo(holder_)) {
                waits = true;
            } else {
                tell(*control, note, *remark);
            }
        }
        if (waits) {
            pause_.start();
        }
    }

  private:
    [[nodiscard]] bool isBeingTyped(const platform::Control& control) const {
        const auto* line = qobject_cast<const QLineEdit*>(kit_->find(control));
        return line != nullptr && line->hasFocus() && line->isModified() && !line->isReadOnly();
    }
    QLabel* noteOf(const platform::Control& control) {
        const auto known = shown_.find(&control);
        if (known != shown_.end()) {
            return known->second;
        }
        QLabel* note = qt::findFieldNote(control, *holder_);
        if (note != nullptr) {
            shown_.emplace(&control, note);
        }
        return note;
    }
    void tell(const platform::Control& control, QLabel* note, const Remark& remark) const {
        if (note == nullptr) {
            return;
        }
        qt::tellInNote(*note, qt::shown(remark.text), remark.caution);
        QWidget* field = kit_->find(control);
        const auto* line = qobject_cast<QLineEdit*>(field);
        if ((line != nullptr && !line->isReadOnly()) || qobject_cast<QCheckBox*>(field) != nullptr) {
            field->setAccessibleDescription(qt::shown(remark.text));
        }
    }

    qt::WidgetKit* kit_;
    QWidget* holder_;
    std::function<std::vector<Remark>()> remarks_;
    std::unordered_map<const platform::Control*, QPointer<QLabel>> shown_;
    QTimer pause_;
};

void keepRemarks(qt::WidgetKit& kit, frmCalc& form, QWidget& holder,
                 std::function<std::vector<Remark>()> remarks) {
    auto* board = new RemarkBoard(kit, holder, std::move(remarks));
    refreshAfterEvents(form, holder, [board] { board->show(false); });
}

}  // namespace

void showSiteRemarks(qt::WidgetKit& kit, frmCalc& form, QWidget& page) {
    keepRemarks(kit, form, page, [&form] { return siteRemarks(form); });
}

void showPanelRemarks(qt::WidgetKit& kit, frmCalc& form, FacilityType type, QWidget& panel) {
    keepRemarks(kit, form, panel, [&form, type] { return panelRemarks(form, type); });
}

}  // namespace mero::forms
