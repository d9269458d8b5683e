// SPDX-License-Identifier: MIT
/// The shared values by name, as `value` prints them.
/// A box that shows a shared value of another name (the reduced area, the picked rain) gives that value.
#include <functional>
#include <map>

#include "automation/inspection.h"
#include "design/input.h"
#include "design/quantity.h"
#include "design/text_input.h"

namespace mero::automation {
namespace {

using Values = data::modPublicVariables;
using Reader = std::function<std::string(const Values&)>;
using data::FacilityType;

template <typename Owner, typename T>
Reader member(T Owner::*pointer) {
    return [pointer](const Values& values) { return json(values.*pointer); };
}

template <typename T>
Reader list(data::OneBasedList<T> data::DrainedAreaValues::*pointer) {
    return [pointer](const Values& values) { return json((values.*pointer).items()); };
}

#define MERO_VALUE(name) \
    { #name, member(&Values::name) }

/// The boxes of the tables, without the index of an array.
void addBoxes(std::map<std::string_view, Reader>& readers) {
    const auto add = [&](std::string_view box, float data::DesignNumbers::*stored) {
        const std::string_view name = box.substr(0, box.find('('));
        if (!name.empty() && stored != nullptr) {
            readers.emplace(name, member(stored));
        }
    };
    for (const design::TextInputInfo& text : design::textInputs()) {
        readers.emplace(text.box, member(text.stored));
    }
    for (const design::InputInfo& input : design::inputs()) {
        add(input.box, input.stored);
    }
    for (const FacilityType type : data::kFacilityTypes) {
        for (const design::ResultBox& row : design::resultBoxes(type)) {
            add(row.box, info(row.quantity).stored);
        }
    }
}

const std::map<std::string_view, Reader>& readers() {
    static const std::map<std::string_view, Reader> kReaders = [] {
        std::map<std::string_view, Reader> named{
            MERO_VALUE(txtOdtokDoVsak),
            MERO_VALUE(txtSachtyCount),
            MERO_VALUE(D_i),
            MERO_VALUE(D_a),
            MERO_VALUE(s_RR),
            MERO_VALUE(Q_dr),
            MERO_VALUE(RedukovanaPlocha),
            MERO_VALUE(IntenzitaDeste),
            MERO_VALUE(DobaTrvani),
            MERO_VALUE(VybranaIntenzita),
            MERO_VALUE(VybranaDoba),
            MERO_VALUE(VybranaStanice),
            MERO_VALUE(VybranaPeriodicita),
            MERO_VALUE(IntenzitaStanice),
            MERO_VALUE(DobaStanice),
            MERO_VALUE(StaniceNazev),
            MERO_VALUE(Periodicita),
            MERO_VALUE(TypyZasakovani),
            MERO_VALUE(TypPudy),
            MERO_VALUE(SoucFiltracePudy),
            MERO_VALUE(SachtaKruhova),
            MERO_VALUE(SachtaObdelnikova),
            MERO_VALUE(PovrchSkupina),
            MERO_VALUE(PovrchPopis),
            MERO_VALUE(SoucOdtoku),
            MERO_VALUE(CestaDatabaze),
            MERO_VALUE(ResultsFilePath),
            MERO_VALUE(ResultsFileName),
            {"DilciPlocha", list(&Values::DilciPlocha)},
            {"OdtokovySoucinitel", list(&Values::OdtokovySoucinitel)},
            {"TypPovrchu", list(&Values::TypPovrchu)},
            {"StaniceCislo", [](const Values& values) { return json(values.StaniceCislo.items()); }},
            {"txtOdvodNepPlocha", member(&Values::RedukovanaPlocha)},
            {"txtSelIntDeste", member(&Values::VybranaIntenzita)},
            {"txtSelDTrvDeste", member(&Values::VybranaDoba)},
        };
        addBoxes(named);
        return named;
    }();
    return kReaders;
}

#undef MERO_VALUE

}  // namespace

std::optional<std::string> sharedValue(forms::Program& program, std::string_view name) {
    const forms::frmCalc& window = program.window();
    if (name == "TypeGroup") {
        return json(window.TypeGroup);
    }
    if (name == "SelectedType") {
        return json(static_cast<int>(window.SelectedType));
    }
    if (name == "SoilVariant") {
        return json(window.SoilVariant);
    }
    if (name == "ShaftShape") {
        return json(static_cast<int>(window.ShaftShape));
    }
    const auto reader = readers().find(name);
    return reader == readers().end() ? std::nullopt : std::optional(reader->second(program.values()));
}

}  // namespace mero::automation
