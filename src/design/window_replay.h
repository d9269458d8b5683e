// SPDX-License-Identifier: MIT
/// The main window's calculation as a replay on plain numbers: the steps of the handlers in their order.
/// One replay serves one design; the steps of each type stand in a file of their own.
#pragma once

#include "calc/critical_rain.h"
#include "calc/shaft.h"
#include "calc/trench_section.h"
#include "design/design_result.h"
#include "design/facility.h"
#include "design/field_rounding.h"
#include "design/site.h"
#include "platform/numbers/checked.h"
#include "platform/numbers/runtime_error.h"

namespace mero::design {

/// The safety factor that the boxes open with.
inline constexpr float kOpeningSafetyFactor = 1.2F;

class WindowReplay {
  public:
    WindowReplay(const Site& site, const Facility& facility, DesignResult& result);

    void enterSite();
    /// Chooses the type, fills in its panel and calculates.
    void run();

  private:
    /// One event: a run-time error ends it and is told.
    template <typename Event>
    void event(Event action) {
        try {
            action();
        } catch (const RuntimeError& error) {
            result_->verdicts.add(verdictOf(error));
        }
    }

    void tell(Verdict verdict) { result_->verdicts.add(verdict); }
    [[nodiscard]] float value(Quantity quantity) const { return result_->value(quantity); }
    /// Tells of the first failed check and all that follow it; true when there was one.
    bool refuse(bool failed, Verdict verdict);
    /// The guard of the type choice: tells which input is missing; true when one is.
    bool tellMissingInput();
    void pick(const calc::CriticalRain& critical);
    /// The safety factor is typed in: every page calculates with it at once, as far as it can.
    template <typename Recalculate>
    void enterSafetyFactor(Recalculate recalculate) {
        if (facility_->safety_factor == kOpeningSafetyFactor) {
            return;
        }
        event([&] {
            safety_factor_ = facility_->safety_factor;
            recalculate();
        });
    }
    void showArea1(float area_m2) {
        result_->show(Quantity::InfiltrationArea, area_m2, throughField1(area_m2));
    }
    /// An area box without text stores 0.
    void clearArea();
    [[nodiscard]] calc::TrenchSection trenchSection() const;
    void setStorageCoefficient(const Pipes& pipes);

    void runSurface();
    void calcSurface();

    void runSwale();
    void calcSwaleArea();
    void designSwale();

    void runSwaleTrench();
    void calcSwaleTrenchArea();
    void confirmOverflow();
    void designSwaleTrench();
    void judgeSwaleTrenchArea();

    void runTrench();
    void calcTrenchArea();
    void confirmDrain();
    void designTrench();

    void runShaft();
    void enterShaftDimensions();
    void chooseRing();
    void setInnerSide(float side_m);
    void setInnerLength(float length_m);
    void setWall(float wall_m);
    void recomputeDiameters();
    void calcShaftBalance();
    void designShaft();
    [[nodiscard]] calc::shaft::Balance shaftBalance() const;
    void setDiameters(float inner_m, float outer_m);

    void runTank();
    void designTank();

    const Site* site_;
    const Facility* facility_;
    DesignResult* result_;

    float filtration_m_s_;
    float safety_factor_ = kOpeningSafetyFactor;
    int soil_option_ = 0;
    ShaftShape shape_ = ShaftShape::Round;
};

}  // namespace mero::design
