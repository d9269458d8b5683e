// SPDX-License-Identifier: MIT
/// The reference designs.
/// Straight from the procedures, step by step; nothing of the program's own formulas is used.
#include "forms/design/design_reference.h"

#include <cmath>
#include <functional>

#include "forms/design/reference_arithmetic.h"
#include "platform/numbers/number_text.h"

namespace mero::forms::test {
namespace {

using mero::test::critical;
using mero::test::exclamation;
using mero::test::MessageBox;
using platform::MessageIcon;

class Design {
  public:
    explicit Design(const RandomSite& site) : site_(site) {
        if (site.picked_row > 0) {
            outcome_.picked = site.rains[static_cast<std::size_t>(site.picked_row) - 1];
        }
    }

    Outcome run(FacilityType type) {
        switch (type) {
            case FacilityType::Surface:
                event([this] { surface(); });
                break;
            case FacilityType::Swale:
                clear({"txtVsakPlocha(2)", "txtObjAkum(2)", "txtVyskaVzduti(2)", "txtDobaPrazdneni(2)"});
                event([this] { swale(0.1L); });
                if (site_.soil_option == 1) {
                    event([this] { swale(0.2L); });
                }
                break;
            case FacilityType::SwaleTrench:
                clear({"txtVsakPlocha(3)", "txtObjAkum(3)", "txtDelkaRyhy(3)", "txtHloubkaPrulehu(3)",
                       "txtSirkaPrulehu(3)", "txtDobaPrazdneni(3)"});
                event([this] { combined(); });
                break;
            case FacilityType::Trench:
                clear({"txtVsakPlocha(4)", "txtObjAkum(4)", "txtDelkaRyhy(4)"});
                event([this] { trench(); });
                break;
            case FacilityType::Shaft:
                clear({"txtVsakPlocha(5)", "txtVyskaVzduti(5)", "txtHloubkaSachty", "txtPotrHloubkaZahl",
                       "txtObjAkum(5)", "txtSoucFiltrPruleh(5)"});
                shaft();
                break;
            case FacilityType::Tank:
                clear({"txtVsakTok", "txtObjAkum(6)", "txtVypObjNadrz"});
                event([this] { tank(); });
                break;
            case FacilityType::None:
                break;
        }
        return outcome_;
    }

  private:
    void clear(const std::vector<std::string>& boxes) {
        for (const std::string& box : boxes) {
            outcome_.texts[box] = "";
        }
    }
    void write(const std::string& box, float value, int decimals) {
        outcome_.texts[box] = numbers::fixed(value, decimals);
    }
    /// A result whose box reads itself back.
    float writeBack(const std::string& box, float value, int decimals) {
        write(box, value, decimals);
        return numbers::strictSingle(outcome_.texts[box]);
    }
    void say(const std::string& text, MessageIcon icon) { outcome_.messages.push_back({text, icon}); }
    bool refuses(const std::string& problems) {
        if (!problems.empty()) {
            say(problems, MessageIcon::Critical);
        }
        return !problems.empty();
    }
    void event(const std::function<void()>& action) {
        try {
            action();
        } catch (const Fault& fault) {
            outcome_.errors.push_back(fault.number);
        }
    }

    /// The largest value over the rows; its row becomes the picked rain.
    Exact search(bool only_positive, const std::function<Exact(Exact t, Exact i)>& quantity) {
        Exact maximum = 0;
        for (const calc::Rain& row : site_.rains) {
            if (only_positive && row.duration_min <= 0) {
                continue;
            }
            const Exact value = quantity(row.duration_min, row.intensity_l_s_ha);
            judgeCloseness(value, maximum);
            if (value > maximum) {
                maximum = value;
                outcome_.picked = row;
            }
        }
        return maximum;
    }
    /// Notes two quantities that only rounding tells apart.
    void judgeCloseness(Exact one, Exact other) {
        if (other > 0 && std::fabs(one - other) <= 1e-12L * other) {
            outcome_.hangs_on_rounding = true;
        }
    }
    float swaleVolume(Exact infiltration_area, Exact kf) {
        return store(search(false, [&](Exact t, Exact i) {
            return ((area_ + infiltration_area) * kRate * i - infiltration_area * kf / 2) * t * 60 * f_;
        }));
    }

    void surface() {
        const Exact i = outcome_.picked.intensity_l_s_ha;
        if (i <= 0) {
            outcome_.messages.push_back(exclamation("Intenzita návrhového deště není zadána", "Chyba"));
            write("txtVsakPlocha(1)", 0, 1);
            return;
        }
        outcome_.texts["txtVsakPlocha(1)"] = "0";
        const Exact uptake_ratio = kf_ * 1e7L / (2 * i);
        outcome_.hangs_on_rounding = std::fabs(uptake_ratio - 1) < 1e-6L;
        write("txtVsakPlocha(1)", store(divide(area_, uptake_ratio - 1)), 1);
    }

    void swale(Exact share) {
        if (area_ <= 0) {
            return;
        }
        const float sized = store(share * area_);
        outcome_.texts["txtObjAkum(2)"] = "";
        const Exact infiltration_area = writeBack("txtVsakPlocha(2)", sized, 1);
        const float volume = swaleVolume(infiltration_area, kf_);
        write("txtObjAkum(2)", volume, 1);
        const float depth = store(divide(volume, infiltration_area));
        write("txtVyskaVzduti(2)", depth, 2);
        if (kf_ > 0) {
            write("txtDobaPrazdneni(2)", store(2 * static_cast<Exact>(depth) / kf_ / 3600), 1);
        }
    }

    /// The confirmation of a sub-panel; false when its box is ticked no more.
    bool confirmDrain(FacilityType type) {
        const Exact count = site_.pipe_count;
        if (type == FacilityType::SwaleTrench) {
            throttled_ = store(area_ / 10000 * site_.throttled_l_s_ha / 1000);
            if (throttled_ == 0) {
                return false;
            }
        }
        const Exact inner = static_cast<Exact>(site_.inner_pipe_mm) / 1000;
        const Exact outer = static_cast<Exact>(site_.outer_pipe_mm) / 1000;
        const Exact section = width_ * height_;
        storage_ = store(
            divide(((divide(inner * inner * count, porosity_) - outer * outer * count) * kPi / 4 + section) *
                       porosity_,
                   section));
        return type == FacilityType::SwaleTrench ? storage_ != 0
                                                 : site_.inner_pipe_mm != 0 && site_.outer_pipe_mm != 0;
    }

    /// Ticks the box, fills the sub-panel, confirms; an error leaves the box ticked.
    bool openDrain(FacilityType type) {
        bool ticked = site_.has_drain;
        if (ticked) {
            event([&] { ticked = confirmDrain(type); });
        }
        return ticked;
    }

    Exact uptake(Exact seconds) const {
        return divide(width_ * height_ * storage_, seconds) + (width_ + height_ / 2) * kf_ / 2;
    }

    void combined() {
        Exact infiltration_area = 0;
        if (area_ > 0) {
            // The soil of the first option is selected with the type, the user's then.
            infiltration_area = writeBack("txtVsakPlocha(3)", store(0.1L * area_), 1);
            if (site_.soil_option == 1) {
                infiltration_area = writeBack("txtVsakPlocha(3)", store(0.2L * area_), 1);
            }
        }
        const bool drained = openDrain(FacilityType::SwaleTrench);
        const Exact kf_swale = site_.swale_filtration_m_s;
        if (refuses(lines({{kf_swale <= 0, "Součinitel filtrace průlehu je menší nebo rovna nule."},
                           {f_ <= 0, "Součinitel bezpečnosti je menší nebo roven nule."},
                           {porosity_ <= 0, "Pórovitost výplně je menší nebo rovna nule."},
                           {height_ <= 0, "Výška rýhy je menší nebo rovna nule."},
                           {width_ <= 0, "Šířka rýhy je menší nebo rovna nule."}}))) {
            return;
        }
        if (!drained) {
            throttled_ = 0;
            storage_ = site_.porosity;
        }
        const float volume = swaleVolume(infiltration_area, kf_swale);
        write("txtObjAkum(3)", volume, 1);
        if (infiltration_area <= 0) {
            outcome_.messages.push_back(critical("Není zadána odvodňovaná plocha.", "Chyba"));
        } else {
            static_cast<void>(store(volume / infiltration_area));
        }
        const float length = store(search(true, [&](Exact t, Exact i) {
            const Exact seconds = t * 60 * f_;
            const Exact to_trench =
                (area_ + infiltration_area) * kRate * i - throttled_ - divide(volume, seconds);
            return divide(to_trench, uptake(seconds));
        }));
        write("txtDelkaRyhy(3)", length, 1);
        // So short a trench is what rounding leaves of the inflow less the storage.
        outcome_.hangs_on_rounding = outcome_.hangs_on_rounding || (length > 0 && length < 0.1F);
        float depth = 0;
        if (length > 0) {
            const Exact plan = length * width_;
            depth = store(divide(volume, plan));
            write("txtHloubkaPrulehu(3)", depth, 2);
            write("txtSirkaPrulehu(3)", site_.trench_width_m, 2);
            const std::string left = numbers::fixed(static_cast<double>(plan), 2);
            const std::string right = numbers::fixed(static_cast<float>(infiltration_area), 2);
            if (plan < infiltration_area) {
                say("Navržená vsakovací plocha je dostatečná ( " + left + " < " + right + " ).",
                    MessageIcon::Information);
            } else {
                say("Navržená vsakovací plocha je nedostatečná ( " + left + " > " + right + " ).",
                    MessageIcon::Exclamation);
            }
        }
        write("txtDobaPrazdneni(3)", store(2 * static_cast<Exact>(depth) / kf_swale / 3600), 1);
    }

    void trench() {
        const bool drained = openDrain(FacilityType::Trench);
        if (refuses(lines({{height_ <= 0, "Výška rýhy je menší nebo rovna nule."},
                           {width_ <= 0, "Šířka rýhy je menší nebo rovna nule."},
                           {porosity_ <= 0, "Pórovitost výplně je menší nebo rovna nule."}}))) {
            return;
        }
        if (!drained) {
            storage_ = site_.porosity;
        }
        const float length = store(
            search(true, [&](Exact t, Exact i) { return divide(kRate * area_ * i, uptake(t * 60 * f_)); }));
        write("txtDelkaRyhy(4)", length, 1);
        const Exact t = outcome_.picked.duration_min;
        const Exact i = outcome_.picked.intensity_l_s_ha;
        write("txtObjAkum(4)",
              store((kRate * area_ * i - (height_ / 2 + width_) * length * kf_ / 2) * t * 60 * f_), 1);
        const float inflow = store(1e-4L * area_ * i);
        // Without a drain nothing was typed into its panel.
        const Exact openings = site_.has_drain ? site_.openings_cm2_m : 0.0F;
        const float outflow = store(openings / 10000 * site_.pipe_count * site_.velocity_m_s * length * 1000);
        write("txtVsakPlocha(4)", store((height_ / 2 + width_) * length), 1);
        if (!drained) {
            return;
        }
        const std::string out = numbers::fixed(outflow, 2);
        const std::string in = numbers::fixed(inflow, 2);
        if (outflow < inflow) {
            say("Není splněna podmínka výstupního odtoku. ( " + out + " < " + in + " )",
                MessageIcon::Exclamation);
        } else {
            say("Podmínka výstupního odtoku je splněna. ( " + out + " > " + in + " )",
                MessageIcon::Information);
        }
    }

    void rectangularDiameters(Exact a, Exact b, Exact wall) {
        inner_ = store(root(4 * a * b / kPi));
        outer_ = store(root(4 * (a + wall) * (b + wall) / kPi));
    }
    /// The boxes are filled one after the other; a root that fails ends that keystroke only.
    void shaftDiameters() {
        const Exact a = site_.first_side_m;
        const Exact b = site_.second_side_m;
        const Exact wall = site_.wall_m;
        if (site_.rectangular) {
            event([&] { rectangularDiameters(a, 0, 0); });
            event([&] { rectangularDiameters(a, b, 0); });
            event([&] { rectangularDiameters(a, b, wall); });
        } else {
            event([&] { inner_ = outer_ = site_.first_side_m; });
            event([&] { outer_ = store(2 * wall + inner_); });
        }
    }

    void shaft() {
        shaftDiameters();
        if (refuses(lines(
                {{f_ <= 0, "Součinitel bezpečnosti je menší nebo roven nule."},
                 {site_.inlet_depth_m <= 0, "Nezámrzná hloubka přítoku je menší nebo rovna nule."},
                 {site_.filter_m <= 0, "Výška filtrační vrstvy je menší nebo rovna nule."},
                 {inner_ <= 0, "Vnitřní průměr šachty je menší nebo rovna nule."},
                 {outer_ <= 0, "Vnější průměr šachty je menší nebo rovna nule."},
                 {site_.seepage_path_m <= 0, "Minimální průsaková dráha je menší nebo rovna nule."},
                 {site_.type_b && site_.sand_m <= 0, "Výška pískové vrstvy je menší nebo rovna nule."}}))) {
            return;
        }
        if (outer_ <= inner_) {
            say("Vnější průměr šachty je menší než vnitřní průměr.", MessageIcon::Critical);
            return;
        }
        event([this] { shaftDesign(); });
    }

    void shaftDesign() {
        const Exact joined_outer = static_cast<Exact>(site_.shafts) * outer_;
        const Exact joined_inner = static_cast<Exact>(site_.shafts) * inner_;
        const float level = store(search(true, [&](Exact t, Exact i) {
            const Exact surplus = kRate * area_ * i - kPi * joined_outer * joined_outer / 4 * (kf_ / 2);
            return divide(surplus, divide(kPi * joined_inner * joined_inner, t * 4 * 60 * f_) +
                                       joined_outer * kPi * kf_ / 4);
        }));
        write("txtVyskaVzduti(5)", level, 2);
        const Exact infiltration_area =
            writeBack("txtVsakPlocha(5)", store(kPi * joined_outer * joined_outer / 4 + kPi * level / 2), 2);
        const Exact to_filter = static_cast<Exact>(site_.inlet_depth_m) + level;
        const float depth = store(to_filter + site_.filter_m + (site_.type_b ? site_.sand_m : 0.0L));
        write("txtHloubkaSachty", depth, 2);
        const float required = writeBack("txtPotrHloubkaZahl", store(to_filter + site_.seepage_path_m), 2);

        const Exact t = outcome_.picked.duration_min;
        const Exact i = outcome_.picked.intensity_l_s_ha;
        write("txtObjAkum(5)", store((kRate * area_ * i - kf_ * infiltration_area / 2) * t * f_), 2);
        const Exact outer = outer_;
        const float permeability = store(divide(outer * outer + 2 * static_cast<Exact>(level) * outer,
                                                static_cast<Exact>(inner_) * inner_) *
                                         kf_);
        std::string& shown = outcome_.texts["txtSoucFiltrPruleh(5)"];
        shown = numbers::scientific(permeability, 1);

        if (site_.groundwater_m != 0 && std::fabs(site_.groundwater_m) < required) {
            say("Min. hloubka maximální hladiny podzemní vody je překročena.  Zvolte větší průměr šachty či "
                "jejich počet a opakujte výpočet.",
                MessageIcon::Exclamation);
        } else if (depth + 0.5L > required) {
            say("Dno šachty je vzdáleno méně než 0.5 m od hladiny podzemní vody. Zvolte menší výšku filtru.",
                MessageIcon::Exclamation);
        } else if (numbers::strictSingle(shown) <= 0.001F) {
            say("Potřebná propustnost filtru je dostačující.", MessageIcon::Information);
        } else {
            say("Potřebná propustnost filtru je příliš vysoká. Zvolte větší průměr šachty či jejich počet a "
                "opakujte výpočet.",
                MessageIcon::Exclamation);
        }
    }

    void tank() {
        if (refuses(lines({{site_.specific_intensity_l_s_ha <= 0,
                            "Specifická vsakovací intenzita je menší nebo rovna nule."},
                           {site_.tank_length_m <= 0, "Délka dna nádrže je menší nebo rovna nule."},
                           {site_.tank_width_m <= 0, "Šířka dna nádrže je menší nebo rovna nule."},
                           {site_.tank_depth_m <= 0, "Hloubka nádrže je menší nebo rovna nule."},
                           {site_.tank_slope < 0, "Sklon svahů nádrže je menší než nula."}}))) {
            return;
        }
        const Exact depth = site_.tank_depth_m;
        const Exact length = site_.tank_length_m;
        const Exact width = site_.tank_width_m;
        const float flow = store(kRate * site_.specific_intensity_l_s_ha * area_);
        const float required =
            store(search(false, [&](Exact t, Exact i) { return (kRate * area_ * i - flow) * t * 60 * f_; }));
        const Exact top_length = store(2 * depth * site_.tank_slope + length);
        const Exact top_width = store(2 * depth * site_.tank_slope + width);
        const float volume =
            store(depth / 3 *
                  (top_length * top_width + length * width + root(top_length * length * width * top_width)));
        write("txtVsakTok", flow, 2);
        write("txtObjAkum(6)", required, 2);
        write("txtVypObjNadrz", volume, 2);
        if (volume < required) {
            say("Vypočítaný objem nádrže je menší než nutná akumulace. Zvětšete rozměry nádrže.",
                MessageIcon::Exclamation);
            return;
        }
        say("Objem nádrže je dostačující.", MessageIcon::Information);
        const Exact effective = site_.settled ? kf_ : kf_ / 5;
        const Exact mean = (width * length * effective / 2 + top_width * top_length * effective / 2) / 2;
        if (mean >= flow) {
            say("Průkaz předpokladu vsakovacího toku je v pořádku.", MessageIcon::Information);
        } else {
            say("Vsakovací tok přesahuje průměrný vsakovací tok.", MessageIcon::Exclamation);
        }
    }

    const RandomSite& site_;
    Outcome outcome_;
    Exact area_ = site_.area_m2;
    Exact kf_ = site_.filtration_m_s;
    Exact f_ = site_.safety_factor;
    Exact width_ = site_.trench_width_m;
    Exact height_ = site_.trench_height_m;
    Exact porosity_ = site_.porosity;
    float storage_ = 0;
    float throttled_ = 0;
    float inner_ = 0;
    float outer_ = 0;
};

}  // namespace

Outcome expectedOutcome(FacilityType type, const RandomSite& site) {
    return Design(site).run(type);
}

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
    for (const auto& [box, text] : outcome.texts) {
        out << box << " = " << text << '\n';
    }
    for (const MessageBox& box : outcome.messages) {
        out << mero::test::lineOf(box) << '\n';
    }
    for (const int number : outcome.errors) {
        out << "error " << number << '\n';
    }
    return out << "picked " << numbers::general(outcome.picked.duration_min) << " min "
               << numbers::general(outcome.picked.intensity_l_s_ha) << '\n';
}

}  // namespace mero::forms::test
