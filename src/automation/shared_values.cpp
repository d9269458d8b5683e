// SPDX-License-Identifier: MIT
/// The shared values by name, as `value` prints them.
/// A box that shows a shared value of another name (the reduced area, the picked rain) gives that value.
#include <functional>
#include <map>

#include "automation/inspection.h"

namespace mero::automation {
namespace {

using Values = data::modPublicVariables;
using Reader = std::function<std::string(const Values&)>;

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

const std::map<std::string_view, Reader>& readers() {
    static const std::map<std::string_view, Reader> kReaders{
        MERO_VALUE(txtProjName),
        MERO_VALUE(txtProjektant),
        MERO_VALUE(txtMistoAkce),
        MERO_VALUE(txtInvestor),
        MERO_VALUE(txtDetails),
        MERO_VALUE(txtTypPudyPodlozi),
        MERO_VALUE(txtHPV),
        MERO_VALUE(txtOdtokDoVsak),
        MERO_VALUE(txtSoucFiltrace),
        MERO_VALUE(txtSoucBezp),
        MERO_VALUE(txtSoucFiltrPruleh),
        MERO_VALUE(txtPorVyplne),
        MERO_VALUE(txtSirkaRyhy),
        MERO_VALUE(txtVyskaRyhy),
        MERO_VALUE(txtPrumTroubVnej),
        MERO_VALUE(txtPrumTroubVnit),
        MERO_VALUE(txtPocetPotrubi),
        MERO_VALUE(txtSpecDrenOdtok),
        MERO_VALUE(txtVystupPlocha),
        MERO_VALUE(txtVystupRychlost),
        MERO_VALUE(txtSachtyCount),
        MERO_VALUE(txtMinPrusakDraha),
        MERO_VALUE(txtNezamrzHlPritok),
        MERO_VALUE(txtVyskaPiskVrstvy),
        MERO_VALUE(txtVyskaFiltrVrstvy),
        MERO_VALUE(txtPotrHloubkaZahl),
        MERO_VALUE(txtSpecMeroIntenz),
        MERO_VALUE(txtDelkaDnaNadrz),
        MERO_VALUE(txtSirkaDnaNadrz),
        MERO_VALUE(txtHloubkaNadrz),
        MERO_VALUE(txtSklonSvahuNadrz),
        MERO_VALUE(txtVsakPlocha),
        MERO_VALUE(txtPrumerSachtyVnit),
        MERO_VALUE(txtPrumerSachtyVnej),
        MERO_VALUE(txtTloustkaSteny),
        MERO_VALUE(D_i),
        MERO_VALUE(D_a),
        MERO_VALUE(txtObjAkum),
        MERO_VALUE(txtVyskaVzduti),
        MERO_VALUE(txtDobaPrazdneni),
        MERO_VALUE(txtDelkaRyhy),
        MERO_VALUE(txtHloubkaPrulehu),
        MERO_VALUE(txtSirkaPrulehu),
        MERO_VALUE(txtHloubkaSachty),
        MERO_VALUE(txtVsakTok),
        MERO_VALUE(txtVypObjNadrz),
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
        return json(window.SelectedType);
    }
    if (name == "SoilVariant") {
        return json(window.SoilVariant);
    }
    if (name == "ShaftShape") {
        return json(window.ShaftShape);
    }
    const auto reader = readers().find(name);
    return reader == readers().end() ? std::nullopt : std::optional(reader->second(program.values()));
}

}  // namespace mero::automation
