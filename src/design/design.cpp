// SPDX-License-Identifier: MIT
/// The user who enters a project once: the events in their order, each over the procedures of its type.
/// A run-time error ends its event and is reported.
#include "design/design.h"

#include "calc/inflow.h"
#include "design/input.h"
#include "design/record_sink.h"
#include "design/shaft_inputs.h"
#include "platform/numbers/runtime_error.h"

namespace mero::design {
namespace {

using data::DesignNumbers;

template <typename Action>
void event(DesignResult& result, Action action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        result.verdicts.add(verdict(verdictOf(error), result.numbers));
    }
}

/// Left after typing, a filtration field shows and stores a positive coefficient with two significant digits.
float leftFiltration(float typed_m_s) {
    return typed_m_s > 0.0F ? throughField(typed_m_s, kScientific) : typed_m_s;
}

/// Groundwater, design rain, drained areas, filtration coefficient.
void enterSite(const Site& site, DesignResult& result) {
    DesignNumbers& numbers = result.numbers;
    numbers.txtHPV = site.groundwater_depth_m;
    if (site.picked_row >= 0) {
        const calc::Rain& picked = site.rains[static_cast<std::size_t>(site.picked_row)];
        numbers.VybranaDoba = picked.duration_min;
        numbers.VybranaIntenzita = picked.intensity_l_s_ha;
    }
    const bool rain_accepted = site.rain_confirmation == RainConfirmation::Accepted;
    if (!rain_accepted) {
        const bool empty = site.rain_confirmation == RainConfirmation::NoIntensities;
        result.verdicts.add(
            verdict(empty ? VerdictId::RainIntensitiesMissing : VerdictId::ErrorOverflow, numbers));
    }
    numbers.RedukovanaPlocha = site.reduced_area_m2;
    result.show(Quantity::ReducedArea);
    numbers.txtSoucFiltrace = leftFiltration(site.filtration_m_s);
    result.show(Quantity::Filtration);
    // The box is empty without a picked rain, and after areas that cancel each other.
    const bool inflow_shown = site.has_areas ? site.reduced_area_m2 != 0.0F : rain_accepted;
    if (numbers.VybranaIntenzita > 0.0F && inflow_shown) {
        event(result, [&] {
            numbers.txtOdtokDoVsak = calc::inflow(numbers.RedukovanaPlocha, numbers.VybranaIntenzita);
            result.show(Quantity::Inflow);
        });
    }
}

/// One panel, filled in from top to bottom with the safety factor last, and its calculate button.
template <FacilityType type>
class Panel {
  public:
    Panel(const Site& site, const Facility& facility, DesignResult& result)
        : facility_(&facility), result_(&result), sink_(site, facility, result) {}

    void run() {
        result_->type_chosen = true;
        enter([this] { sink_.clearResults(); });
        // Surface infiltration without a design rain leaves no panel to fill in.
        if (!result_->type_chosen) {
            return;
        }
        enterInputs();
        enterNumber(&DesignNumbers::txtSoucBezp, facility_->txtSoucBezp, true);
        enterPipes();
        if constexpr (checks::kChecks<type>.empty()) {
            return;
        }
        if (checks::pass<type>(sink_, facility_->sand_layer)) {
            enter([this] {
                if constexpr (type == FacilityType::Shaft) {
                    calculateArea(OfType<type>(), sink_);
                }
                calculateDesign(OfType<type>(), sink_);
            });
        }
    }

  private:
    DesignNumbers& numbers() { return result_->numbers; }

    template <typename Action>
    void enter(Action action) {
        event(*result_, action);
    }

    /// A number that the user changes; the design of a live one is calculated at once.
    void enterNumber(float DesignNumbers::*stored, float value, bool live) {
        const bool changed = numbers().*stored != value;
        numbers().*stored = value;
        if (live && changed) {
            enter([this] { calculateArea(OfType<type>(), sink_); });
        }
    }

    /// The plain numbers of the panel, or of its sub-panel.
    void enterNumbers(bool of_sub_panel) {
        const auto enter_one = [&]<Input input>() {
            constexpr const InputInfo& row = info(input);
            if constexpr (row.stored != nullptr && input != Input::SafetyFactor) {
                // Without its variant the box of the sand layer is disabled.
                const bool enabled = input != Input::SandLayer || facility_->sand_layer;
                if (enabled && isOfSubPanel(input) == of_sub_panel) {
                    enterNumber(row.stored, row.given(*facility_), isLive(type));
                }
            }
        };
        [&]<std::size_t... i>(std::index_sequence<i...>) {
            (enter_one.template operator()<table::kPanel<type>[i].input>(), ...);
        }
        (std::make_index_sequence<table::kPanel<type>.size()>());
    }

    void enterInputs() {
        if constexpr (type == FacilityType::Swale || type == FacilityType::SwaleTrench) {
            if (facility_->soil_option != 0) {
                sink_.selectSoil(facility_->soil_option);
                enter([this] { calculateArea(OfType<type>(), sink_); });
            }
        }
        enterNumbers(false);
        if constexpr (type == FacilityType::SwaleTrench) {
            numbers().txtSoucFiltrPruleh = leftFiltration(facility_->txtSoucFiltrPruleh);
        }
        if constexpr (type == FacilityType::Shaft) {
            numbers().txtSachtyCount = facility_->txtSachtyCount;
            enterShaft();
        }
    }

    void enterPipes() {
        if constexpr (type == FacilityType::SwaleTrench || type == FacilityType::Trench) {
            const Pipes& pipes = type == FacilityType::Trench ? facility_->drain : facility_->overflow;
            if (!pipes.given) {
                return;
            }
            result_->pipes = true;
            // Ticking the box clears the results; the confirmation of the overflow does so once more.
            if constexpr (type == FacilityType::Trench) {
                enter([this] { sink_.clearResults(); });
            }
            enterNumbers(true);
            enter([this] { confirmPipes(OfType<type>(), sink_); });
        }
    }

    /// A ring of the catalogue, or the dimension boxes; each recomputes the diameters with what the others
    /// hold at that moment.
    void enterShaft() {
        result_->show(Quantity::ShaftInnerDiameter);
        result_->show(Quantity::ShaftOuterDiameter);
        numbers().txtPrumerSachtyVnit = 0.0F;
        numbers().txtPrumerSachtyVnej = 0.0F;
        numbers().txtTloustkaSteny = 0.0F;
        if (facility_->catalogue_row >= 0) {
            const auto& row = shaftCatalogue()[static_cast<std::size_t>(facility_->catalogue_row)];
            enter([&] {
                shaft::takeRow(numbers(), row);
                enterInnerSide(row.shape, throughField(row.side1_m, 2));
                if (row.shape == ShaftShape::Rectangular) {
                    enterSecondSide(throughField(row.side2_m, 2));
                }
                enterWall(row.shape, throughField(row.wall_m, 2));
            });
            return;
        }
        const bool rectangular = facility_->shape == ShaftShape::Rectangular;
        enter([&] {
            enterInnerSide(facility_->shape,
                           rectangular ? facility_->inner_width_m : facility_->inner_diameter_m);
        });
        if (rectangular) {
            enter([&] { enterSecondSide(facility_->txtPrumerSachtyVnej); });
        }
        enter([&] { enterWall(facility_->shape, facility_->txtTloustkaSteny); });
    }

    void enterInnerSide(ShaftShape shape, float side_m) {
        numbers().txtPrumerSachtyVnit = side_m;
        shaft::innerSideStored(numbers(), shape, false);
    }
    void enterSecondSide(float side_m) {
        numbers().txtPrumerSachtyVnej = side_m;
        shaft::secondSideStored(numbers(), false);
    }
    void enterWall(ShaftShape shape, float wall_m) {
        numbers().txtTloustkaSteny = wall_m;
        shaft::wallStored(numbers(), shape, false);
    }

    const Facility* facility_;
    DesignResult* result_;
    RecordSink<type> sink_;
};

}  // namespace

DesignResult design(const Site& site, const Facility& facility) {
    DesignResult result;
    static_cast<data::FacilityInputs&>(result.numbers) = data::kOpeningInputs;
    static_cast<data::PipeInputs&>(result.numbers) = data::kOpeningPipes;
    enterSite(site, result);
    const auto missing = checks::missingInput(result.numbers);
    if (missing) {
        result.verdicts.add(verdict(*missing, result.numbers));
    }
    // Only the tank refuses to go on without the input.
    if (!missing || facility.type != FacilityType::Tank) {
        data::withType(facility.type, [&]<FacilityType type>() {
            if constexpr (type != FacilityType::None) {
                Panel<type>(site, facility, result).run();
            }
        });
    }
    if (result.pickedRain() != calc::Rain{}) {
        result.show(Quantity::CriticalDuration);
        result.show(Quantity::CriticalIntensity);
    }
    return result;
}

}  // namespace mero::design
