// SPDX-License-Identifier: MIT
/// The messages by their first words, and their fields.
/// A list of missing inputs leads to the first of them.
#include "forms/calc/layout/concerned_field.h"

#include <algorithm>
#include <vector>

namespace mero::forms {
namespace {

using platform::Control;

struct Concern {
    std::string_view begins;
    std::vector<Control*> fields;  ///< the first that can be reached counts
};

std::vector<Concern> concernsOfDialogs(frmCalc& form) {
    return {
        {"Vyberte odtokový součinitel", {&form.areaDialog.txtSoucinitel}},
        {"Zadejte dílčí plochu", {&form.areaDialog.txtPlocha}},
        {"Nejsou zadány žádné intenzity deště", {&form.intDialog.cboSelStanice}},
    };
}

std::vector<Concern> concernsOfInputs(frmCalc& form) {
    return {
        {"Zadejte nepropustnou odvodňovanou plochu", {&form.cmdEdit[1]}},
        {"Není zadána odvodňovaná plocha", {&form.cmdEdit[1]}},
        {"Zadejte součinitel filtrace podloží", {&form.txtSoucFiltrace}},
        {"Intenzita návrhového deště není zadána", {&form.cmdEdit[0]}},
        {"Není vybrána technologie", {&form.cboSelType, &form.optSelType[0]}},
    };
}

std::vector<Concern> concernsOfTrenches(frmCalc& form, int type) {
    const std::string_view insufficient = "Navržená vsakovací plocha je nedostatečná";
    std::vector<Concern> concerns{
        {"Součinitel bezpečnosti", {&form.txtSoucBezp[type]}},
        {"Pórovitost výplně", {&form.txtPorVyplne[type]}},
        {"Výška rýhy", {&form.txtVyskaRyhy[type]}},
        {"Šířka rýhy", {&form.txtSirkaRyhy[type]}},
    };
    if (type == kSwaleTrench) {
        concerns.push_back({"Součinitel filtrace průlehu", {&form.txtSoucFiltrPruleh[type]}});
        concerns.push_back({insufficient, {&form.txtSirkaRyhy[type]}});
    } else {
        concerns.push_back(
            {"Není splněna podmínka výstupního odtoku", {&form.txtVystupPlocha[type], &form.cmdEdit[type]}});
    }
    return concerns;
}

std::vector<Concern> concernsOfShafts(frmCalc& form) {
    const std::vector<Control*> size{&form.txtPrumerSachtyVnit, &form.cboTypSachty, &form.txtSachtyCount};
    const std::vector<Control*> outer{&form.txtPrumerSachtyVnej, &form.txtTloustkaSteny, &form.cboTypSachty};
    return {
        {"Součinitel bezpečnosti", {&form.txtSoucBezp[kShaft]}},
        {"Nezámrzná hloubka přítoku", {&form.txtNezamrzHlPritok}},
        {"Výška filtrační vrstvy", {&form.txtVyskaFiltrVrstvy}},
        {"Vnitřní průměr šachty", size},
        {"Vnější průměr šachty", outer},
        {"Minimální průsaková dráha", {&form.txtMinPrusakDraha}},
        {"Výška pískové vrstvy", {&form.txtVyskaPiskVrstvy}},
        {"Min. hloubka maximální hladiny podzemní vody je překročena", size},
        {"Dno šachty je vzdáleno méně než", {&form.txtVyskaFiltrVrstvy}},
        {"Potřebná propustnost filtru je příliš vysoká", size},
    };
}

std::vector<Concern> concernsOfTanks(frmCalc& form) {
    return {
        {"Specifická vsakovací intenzita", {&form.txtSpecMeroIntenz}},
        {"Délka dna nádrže", {&form.txtDelkaDnaNadrz}},
        {"Šířka dna nádrže", {&form.txtSirkaDnaNadrz}},
        {"Hloubka nádrže", {&form.txtHloubkaNadrz}},
        {"Sklon svahů nádrže", {&form.txtSklonSvahuNadrz}},
        {"Vypočítaný objem nádrže je menší", {&form.txtDelkaDnaNadrz}},
        {"Vsakovací tok přesahuje", {&form.txtSpecMeroIntenz}},
    };
}

std::vector<Concern> concernsOfPanels(frmCalc& form) {
    for (const int type : {kSwaleTrench, kTrench}) {
        if (form.picResults[type].onScreen()) {
            return concernsOfTrenches(form, type);
        }
    }
    return form.picResults[kShaft].onScreen() ? concernsOfShafts(form) : concernsOfTanks(form);
}

}  // namespace

Control* concernedControl(frmCalc& form, std::string_view message) {
    for (const auto& concerns : {concernsOfDialogs(form), concernsOfInputs(form), concernsOfPanels(form)}) {
        for (const Concern& concern : concerns) {
            if (!message.starts_with(concern.begins)) {
                continue;
            }
            const auto found = std::ranges::find_if(
                concern.fields, [](const Control* field) { return field->onScreen() && field->reachable(); });
            return found == concern.fields.end() ? nullptr : *found;
        }
    }
    return nullptr;
}

}  // namespace mero::forms
