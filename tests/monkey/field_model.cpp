// SPDX-License-Identifier: MIT
/// Lists the boxes of every quantity and applies the field rules.
#include "monkey/field_model.h"

#include <cmath>
#include <initializer_list>
#include <utility>

#include "platform/numbers/checked.h"
#include "platform/numbers/number_text.h"

namespace mero::monkey {
namespace {

enum class Reading { Number, NoNumber, TooLarge };

/// Result of strict reading of a text.
struct Read {
    Reading reading = Reading::NoNumber;
    double value = 0;
};

template <typename Convert>
Read readBy(Convert convert, const std::string& text) {
    try {
        return {Reading::Number, static_cast<double>(convert(text))};
    } catch (const RuntimeError& error) {
        return {error.is(ErrorNumber::TypeMismatch) ? Reading::NoNumber : Reading::TooLarge};
    }
}

bool isSame(double one, double other) {
    return !(one < other) && !(other < one);
}

std::string array(const std::string& name, int index) {
    return name + "(" + numbers::general(index) + ")";
}

std::vector<std::string> members(const std::string& name, std::initializer_list<int> indices) {
    std::vector<std::string> names;
    for (const int index : indices) {
        names.push_back(array(name, index));
    }
    return names;
}

}  // namespace

FieldModel::FieldModel(forms::Program& program) : program_(&program) {
    const Values& values = program.values();
    watch(Rule::Number, &Values::txtHPV, {"txtHPV"});
    watch(Rule::Number, &Values::txtMinPrusakDraha, {"txtMinPrusakDraha"});
    watch(Rule::Number, &Values::txtNezamrzHlPritok, {"txtNezamrzHlPritok"});
    watch(Rule::Number, &Values::txtVyskaPiskVrstvy, {"txtVyskaPiskVrstvy"});
    watch(Rule::Number, &Values::txtVyskaFiltrVrstvy, {"txtVyskaFiltrVrstvy"});
    watch(Rule::Number, &Values::txtSpecMeroIntenz, {"txtSpecMeroIntenz"});
    watch(Rule::Number, &Values::txtDelkaDnaNadrz, {"txtDelkaDnaNadrz"});
    watch(Rule::Number, &Values::txtSirkaDnaNadrz, {"txtSirkaDnaNadrz"});
    watch(Rule::Number, &Values::txtHloubkaNadrz, {"txtHloubkaNadrz"});
    watch(Rule::Number, &Values::txtSklonSvahuNadrz, {"txtSklonSvahuNadrz"});
    watch(Rule::Number, &Values::txtPrumerSachtyVnit, {"txtPrumerSachtyVnit"});
    watch(Rule::Number, &Values::txtPrumerSachtyVnej, {"txtPrumerSachtyVnej"});
    watch(Rule::Number, &Values::txtTloustkaSteny, {"txtTloustkaSteny"});
    watch(Rule::Number, &Values::txtSoucBezp, members("txtSoucBezp", {1, 2, 3, 4, 5, 6}));
    watch(Rule::Number, &Values::txtPorVyplne, members("txtPorVyplne", {3, 4}));
    watch(Rule::Number, &Values::txtSirkaRyhy, members("txtSirkaRyhy", {3, 4}));
    watch(Rule::Number, &Values::txtVyskaRyhy, members("txtVyskaRyhy", {3, 4}));
    watch(Rule::Number, &Values::txtPrumTroubVnej, members("txtPrumTroubVnej", {3, 4}));
    watch(Rule::Number, &Values::txtPrumTroubVnit, members("txtPrumTroubVnit", {3, 4}));
    watch(Rule::Number, &Values::txtSpecDrenOdtok, {"txtSpecDrenOdtok(3)"});
    watch(Rule::Number, &Values::txtVystupPlocha, {"txtVystupPlocha(4)"});
    watch(Rule::Number, &Values::txtVystupRychlost, {"txtVystupRychlost(4)"});
    watch(Rule::Area, &Values::txtVsakPlocha, members("txtVsakPlocha", {1, 2, 3, 4, 5}));
    watch(Rule::Filtration, &Values::txtSoucFiltrace, {"txtSoucFiltrace"});
    watch(Rule::Filtration, &Values::txtSoucFiltrPruleh, members("txtSoucFiltrPruleh", {3, 5}));
    watch(Rule::Unguarded, &Values::txtPocetPotrubi, members("txtPocetPotrubi", {3, 4}));
    watch(Rule::Unguarded, &Values::txtPotrHloubkaZahl, {"txtPotrHloubkaZahl"});
    watch("txtSachtyCount", Rule::Count, [&values] { return static_cast<double>(values.txtSachtyCount); },
          {"txtSachtyCount"});

    watchText("txtProjName", values.txtProjName);
    watchText("txtProjektant", values.txtProjektant);
    watchText("txtMistoAkce", values.txtMistoAkce);
    watchText("txtInvestor", values.txtInvestor);
    watchText("txtTypPudyPodlozi", values.txtTypPudyPodlozi);
}

void FieldModel::watch(Rule rule, float Values::*stored, const std::vector<std::string>& boxes) {
    const Values& values = program_->values();
    watch(
        boxes.front(), rule, [&values, stored] { return static_cast<double>(values.*stored); }, boxes);
}

void FieldModel::watch(std::string name, Rule rule, std::function<double()> stored,
                       const std::vector<std::string>& boxes) {
    auto quantity = std::make_unique<Quantity>(Quantity{std::move(name), rule, std::move(stored)});
    const bool is_subsoil = quantity->name == "txtSoucFiltrace";
    for (const std::string& box_name : boxes) {
        auto* box = dynamic_cast<platform::TextBox*>(program_->window().find(box_name));
        if (box == nullptr) {
            throw std::logic_error("no such box: " + box_name);
        }
        box->observe([this, box, is_subsoil, changed = quantity.get()](platform::Aspect aspect) {
            if (aspect == platform::Aspect::Text) {
                changed->last_changed = box;
                picked_soil_ = is_subsoil ? 0 : picked_soil_;
            }
        });
    }
    quantities_.push_back(std::move(quantity));
}

void FieldModel::watchText(const std::string& box, const std::string& stored) {
    texts_.push_back({dynamic_cast<const platform::TextBox*>(program_->window().find(box)), &stored});
}

std::string FieldModel::disagreement() const {
    for (const auto& quantity : quantities_) {
        const std::string wrong = judge(*quantity);
        if (!wrong.empty()) {
            const auto* box = quantity->last_changed;
            return (box != nullptr ? box->name() : quantity->name) + " " + wrong + ": text \"" +
                   (box != nullptr ? box->text() : "") + "\", stored " + numbers::general(quantity->stored());
        }
    }
    for (const Text& text : texts_) {
        if (text.box->text() != *text.stored) {
            return text.box->name() + " differs from its stored text";
        }
    }
    return {};
}

std::string FieldModel::judge(const Quantity& quantity) const {
    const double stored = quantity.stored();
    if (!std::isfinite(stored)) {
        return "is stored as no finite number";
    }
    if (quantity.name == "txtSoucFiltrace" && picked_soil_ > 0) {
        const auto soil = static_cast<std::size_t>(picked_soil_) - 1;
        const double coefficient = program_->values().SoucFiltracePudy.at(soil);
        return isSame(stored, static_cast<double>(numbers::toSingle(coefficient)))
                   ? ""
                   : "is not the picked soil's";
    }
    if (quantity.last_changed == nullptr || (quantity.rule == Rule::Area && stored == 0.0)) {
        return {};
    }
    const std::string& text = quantity.last_changed->text();
    if (text.empty() && quantity.rule != Rule::Unguarded) {
        return isSame(stored, 0.0) ? "" : "is empty, its value is not 0";
    }
    const Read read = quantity.rule == Rule::Count ? readBy(numbers::strictInteger, text)
                                                   : readBy(numbers::strictSingle, text);
    switch (read.reading) {
        case Reading::Number:
            return isSame(stored, read.value) ? "" : "is not what is stored";
        case Reading::TooLarge:
            return {};
        case Reading::NoNumber:
            return judgeStrange(quantity, text);
    }
    return {};
}

std::string FieldModel::judgeStrange(const Quantity& quantity, const std::string& text) const {
    if (quantity.rule == Rule::Unguarded) {
        return {};
    }
    if (quantity.rule != Rule::Filtration || text.find('e') == std::string::npos) {
        return "kept what is no number";
    }
    const auto leading = [](const std::string& typed) {
        return numbers::toSingle(numbers::leadingNumber(typed));
    };
    const Read read = readBy(leading, text);
    return read.reading != Reading::Number || isSame(quantity.stored(), read.value)
               ? ""
               : "does not begin with what is stored";
}

}  // namespace mero::monkey
