// SPDX-License-Identifier: MIT
/// Collects inputs from the stored values; the controls say which options are chosen.
#include "forms/keeping/inputs_of_state.h"

#include <algorithm>
#include <array>

#include "design/input.h"
#include "design/quantity.h"
#include "design/shaft_catalogue.h"
#include "platform/numbers/number_text.h"
#include "project/fields.h"

namespace mero::forms {
namespace {

using design::Input;
using project::Project;

class Collector {
  public:
    Collector(const WindowState& state, const StateDocument& document)
        : state_(&state), document_(&document) {}

    Project collect() {
        static_cast<data::ProjectTexts&>(project_.texts) = state_->texts;
        collectRain();
        collectAreas();
        if (state_->numbers.txtSoucFiltrace != 0.0F) {
            give(Input::Filtration, state_->numbers.txtSoucFiltrace);
        }
        if (state_->numbers.txtHPV != 0.0F) {
            give(Input::Groundwater, state_->numbers.txtHPV);
        }
        collectNumbers();
        collectOptions();
        collectShaft();
        if (state_->selected_type != FacilityType::None) {
            give(Input::Type, static_cast<float>(data::index(state_->selected_type) - 1));
        }
        return std::move(project_);
    }

  private:
    void give(Input input, float value) {
        project::store(design::info(input), project_.inputs, value);
        project_.given.emplace_back(design::info(input).path);
    }

    [[nodiscard]] bool isChosen(const std::string& control) const {
        return document_->control(*state_, control).chosen;
    }

    /// The chosen one of two options, -1 for none.
    [[nodiscard]] int option(const std::string& array) const {
        return isChosen(array + "(0)") ? 0 : isChosen(array + "(1)") ? 1 : -1;
    }

    void collectRain() {
        const data::ReferenceTables& tables = project::reference();
        const data::RainValues& rain = state_->rain;
        const auto station = std::ranges::find(tables.StaniceNazev, rain.VybranaStanice);
        const auto periodicity = std::ranges::find_if(tables.Periodicita, [&](float each) {
            return numbers::general(each) == rain.VybranaPeriodicita;
        });
        const bool has_periodicity = periodicity != tables.Periodicita.end();
        const auto position = static_cast<std::size_t>(periodicity - tables.Periodicita.begin());
        // Durations that were typed hold for a station, too, and its values may have been overtyped.
        const bool of_station = station != tables.StaniceNazev.end() &&
                                station != tables.StaniceNazev.begin() && has_periodicity &&
                                state_->durations_min == tables.DobaTrvani &&
                                rain.IntenzitaDeste == rain.IntenzitaStanice[position];
        const bool own_durations = state_->durations_min != tables.DobaTrvani;
        const bool empty =
            std::ranges::all_of(rain.IntenzitaDeste, [](float intensity) { return intensity == 0.0F; });
        if (of_station) {
            give(Input::Station, static_cast<float>(station - tables.StaniceNazev.begin()));
        } else if (!empty || own_durations) {
            project_.inputs.rain.intensities_l_s_ha = rain.IntenzitaDeste;
            project_.given.emplace_back("rain.intensities_l_s_ha");
            project_.inputs.rain.durations_min = state_->durations_min;
            if (own_durations) {
                project_.given.emplace_back("rain.durations_min");
            }
        }
        if (has_periodicity) {
            give(Input::Periodicity, static_cast<float>(position));
        }
        if (state_->numbers.VybranaIntenzita != 0.0F &&
            std::ranges::find(state_->durations_min, state_->numbers.VybranaDoba) !=
                state_->durations_min.end()) {
            give(Input::DesignDuration, state_->numbers.VybranaDoba);
        }
    }

    /// Entries that were overtyped with 0 add nothing to the reduced area, and a file must not have them.
    void collectAreas() {
        const data::DrainedAreaValues& areas = state_->areas;
        for (int i = 1; i < areas.DilciPlocha.length(); ++i) {
            if (areas.DilciPlocha(i) != 0.0F && areas.OdtokovySoucinitel(i) != 0.0F) {
                project_.inputs.areas.push_back({areas.DilciPlocha(i), areas.OdtokovySoucinitel(i)});
                project_.texts.surfaces.push_back(areas.TypPovrchu(i));
            }
        }
    }

    [[nodiscard]] bool isOfChosenPanel(Input input) const {
        const auto panel = design::panelInputs(state_->selected_type);
        return std::ranges::find(panel, input, &design::PanelInput::input) != panel.end();
    }

    void collectNumbers() {
        for (const design::InputInfo& field : design::inputs()) {
            const bool of_panel = field.stored != nullptr && field.given != nullptr;
            const bool of_shaft_dimensions = project::isReplacedByRing(field);
            if (!of_panel || of_shaft_dimensions || design::isOfSubPanel(field.input)) {
                continue;
            }
            const float value = state_->numbers.*field.stored;
            if (isOfChosenPanel(field.input) || value != field.given(design::Facility())) {
                give(field.input, value);
            }
        }
        collectPipes(FacilityType::SwaleTrench, "facility.overflow", project_.inputs.facility.overflow);
        collectPipes(FacilityType::Trench, "facility.drain", project_.inputs.facility.drain);
    }

    void collectPipes(FacilityType type, const char* path, design::Pipes& pipes) {
        if (!isChosen("chkSelPretok(" + numbers::general(static_cast<int>(type)) + ")")) {
            return;
        }
        pipes.given = true;
        project_.given.emplace_back(path);
        for (const design::PanelInput& row : design::panelInputs(type)) {
            if (design::isOfSubPanel(row.input)) {
                give(row.input, state_->numbers.*design::info(row.input).stored);
            }
        }
    }

    void collectOptions() {
        const FacilityType type = state_->selected_type;
        const int soil = type == FacilityType::Swale         ? option("optSelTypPudy2")
                         : type == FacilityType::SwaleTrench ? option("optSelTypPudy3")
                                                             : -1;
        if (soil >= 0) {
            give(Input::Soil, static_cast<float>(soil));
        }
        if (isChosen("optSelTypPudy5(1)")) {
            give(Input::Variant, 1.0F);
        }
        if (isChosen("chkPredUsaz")) {
            give(Input::UpstreamSettling, 1.0F);
        }
        if (type == FacilityType::Shaft ||
            state_->numbers.txtSachtyCount != design::Facility().txtSachtyCount) {
            give(Input::ShaftCount, static_cast<float>(state_->numbers.txtSachtyCount));
        }
    }

    void collectShaft() {
        const int shape = option("optSelTypSachty");
        if (shape < 0) {
            return;
        }
        if (const int row = catalogueRow(); row >= 0) {
            give(Input::CatalogueShaft, static_cast<float>(row));
            return;
        }
        const bool round = state_->shaft_shape == data::ShaftShape::Round;
        give(Input::Shape, static_cast<float>(shape));
        give(round ? Input::InnerDiameter : Input::InnerWidth, state_->numbers.txtPrumerSachtyVnit);
        if (!round) {
            give(Input::InnerLength, state_->numbers.txtPrumerSachtyVnej);
        }
        give(Input::WallThickness, state_->numbers.txtTloustkaSteny);
    }

    /// The row of both catalogues that is chosen and whose dimensions were not overtyped, -1 for none.
    [[nodiscard]] int catalogueRow() const {
        const int position = document_->control(*state_, "cboTypSachty").position;
        const auto rows = design::shaftCatalogue(state_->shaft_shape);
        if (position < 0 || position >= static_cast<int>(rows.size())) {
            return -1;
        }
        const design::CatalogueShaft& row = rows[static_cast<std::size_t>(position)];
        const auto as_shown = [](float dimension_m) {
            return numbers::strictSingle(numbers::fixed(dimension_m, 2));
        };
        const data::DesignNumbers& numbers = state_->numbers;
        const bool same =
            numbers.txtPrumerSachtyVnit == as_shown(row.side1_m) &&
            numbers.txtTloustkaSteny == as_shown(row.wall_m) &&
            (row.shape == data::ShaftShape::Round || numbers.txtPrumerSachtyVnej == as_shown(row.side2_m));
        return same ? static_cast<int>(&row - design::shaftCatalogue().data()) : -1;
    }

    const WindowState* state_;
    const StateDocument* document_;
    Project project_;
};

}  // namespace

project::Project inputsOf(const WindowState& state, const StateDocument& document) {
    return Collector(state, document).collect();
}

}  // namespace mero::forms
