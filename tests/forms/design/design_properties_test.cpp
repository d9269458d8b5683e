// SPDX-License-Identifier: MIT
/// Whole designs of random sites, typed into the forms, against the reference written from the procedures.
/// Every result text, every message and every reported error must agree.
#include "forms/design/design_fixture.h"

// RapidCheck's header for GoogleTest needs GoogleTest included before it.
#include <rapidcheck/gtest.h>

#include "forms/design/design_reference.h"
#include "forms/design/random_site.h"
#include "platform/numbers/number_text.h"

namespace mero::forms::test {
namespace {

std::string text(float value) {
    return numbers::general(value);
}

/// Types a site as a user would and looks at the results.
class Typist {
  public:
    explicit Typist(const RandomSite& site) : site_(site) {
        std::vector<TypedRain> rows;
        for (const calc::Rain& rain : site.rains) {
            rows.push_back({text(rain.duration_min), text(rain.intensity_l_s_ha)});
        }
        project_.site(text(site.area_m2), text(site.filtration_m_s), rows, site.picked_row);
        project_.set(window_.txtHPV, text(site.groundwater_m));
        // On the trench's page, where the keystroke computes nothing but an area of 0.
        project_.choose(FacilityType::Trench);
        project_.set(window_.txtSoucBezp[FacilityType::Trench], text(site.safety_factor));
        // What a careless input made the dialogs say is not the design's.
        project_.messages();
        project_.errors();
    }

    Outcome design(FacilityType type) {
        switch (type) {
            case FacilityType::Surface:
                project_.choose(FacilityType::Surface);
                break;
            case FacilityType::Swale:
                project_.choose(FacilityType::Swale);
                chooseSoil(window_.optSelTypPudy2);
                break;
            case FacilityType::SwaleTrench:
                project_.choose(FacilityType::SwaleTrench);
                chooseSoil(window_.optSelTypPudy3);
                project_.set(window_.txtSoucFiltrPruleh[FacilityType::SwaleTrench],
                             text(site_.swale_filtration_m_s));
                typeTrench(FacilityType::SwaleTrench);
                break;
            case FacilityType::Trench:
                project_.choose(FacilityType::Trench);
                typeTrench(FacilityType::Trench);
                break;
            case FacilityType::Shaft:
                project_.choose(FacilityType::Shaft);
                typeShaft();
                break;
            case FacilityType::Tank:
                project_.chooseTank();
                typeTank();
                break;
            case FacilityType::None:
                break;
        }
        if (type >= FacilityType::SwaleTrench) {
            project_.calculate();
        }
        return look(type);
    }

  private:
    void chooseSoil(frmCalc::ControlArray<platform::OptionButton>& options) {
        if (site_.soil_option == 1) {
            project_.click(options[1]);
        }
    }

    void typeTrench(FacilityType type) {
        project_.set(window_.txtPorVyplne[type], text(site_.porosity));
        project_.set(window_.txtSirkaRyhy[type], text(site_.trench_width_m));
        project_.set(window_.txtVyskaRyhy[type], text(site_.trench_height_m));
        if (!site_.has_drain) {
            return;
        }
        project_.click(window_.chkSelPretok[type]);
        project_.set(window_.txtPrumTroubVnit[type], text(site_.inner_pipe_mm));
        project_.set(window_.txtPrumTroubVnej[type], text(site_.outer_pipe_mm));
        project_.set(window_.txtPocetPotrubi[type], text(site_.pipe_count));
        if (type == FacilityType::SwaleTrench) {
            project_.set(window_.txtSpecDrenOdtok[type], text(site_.throttled_l_s_ha));
        } else {
            project_.set(window_.txtVystupPlocha[type], text(site_.openings_cm2_m));
            project_.set(window_.txtVystupRychlost[type], text(site_.velocity_m_s));
        }
        project_.click(window_.cmdOK[type]);
    }

    void typeShaft() {
        project_.click(window_.optSelTypSachty[site_.rectangular ? 1 : 0]);
        project_.click(window_.optSelTypPudy5[site_.type_b ? 1 : 0]);
        project_.set(window_.txtPrumerSachtyVnit, text(site_.first_side_m));
        if (site_.rectangular) {
            project_.set(window_.txtPrumerSachtyVnej, text(site_.second_side_m));
        }
        project_.set(window_.txtTloustkaSteny, text(site_.wall_m));
        project_.set(window_.txtSachtyCount, numbers::general(site_.shafts));
        project_.set(window_.txtNezamrzHlPritok, text(site_.inlet_depth_m));
        project_.set(window_.txtVyskaFiltrVrstvy, text(site_.filter_m));
        project_.set(window_.txtMinPrusakDraha, text(site_.seepage_path_m));
        if (site_.type_b) {
            project_.set(window_.txtVyskaPiskVrstvy, text(site_.sand_m));
        }
    }

    void typeTank() {
        project_.set(window_.txtSpecMeroIntenz, text(site_.specific_intensity_l_s_ha));
        project_.set(window_.txtDelkaDnaNadrz, text(site_.tank_length_m));
        project_.set(window_.txtSirkaDnaNadrz, text(site_.tank_width_m));
        project_.set(window_.txtHloubkaNadrz, text(site_.tank_depth_m));
        project_.set(window_.txtSklonSvahuNadrz, text(site_.tank_slope));
        if (site_.settled) {
            project_.click(window_.chkPredUsaz);
        }
    }

    Outcome look(FacilityType type) {
        Outcome seen{.texts = {},
                     .messages = project_.messages(),
                     .errors = project_.errors(),
                     .picked = {project_.values().VybranaDoba, project_.values().VybranaIntenzita}};
        for (const auto& [box, unused] : expectedOutcome(type, site_).texts) {
            seen.texts[box] = dynamic_cast<platform::TextBox&>(*window_.find(box)).text();
        }
        return seen;
    }

    const RandomSite& site_;
    Project project_;
    frmCalc& window_ = project_.window();
};

void compare(FacilityType type, const RandomSite& site) {
    const Outcome expected = expectedOutcome(type, site);
    RC_PRE(!expected.hangs_on_rounding);
    const Outcome seen = Typist(site).design(type);
    RC_CLASSIFY(!expected.errors.empty(), "run-time error");
    RC_CLASSIFY(expected.errors.empty() && !expected.messages.empty(), "message");
    if (!(seen == expected)) {
        RC_LOG() << site << "--- expected\n" << expected << "--- seen\n" << seen;
        RC_FAIL("the design differs from the reference");
    }
}

RC_GTEST_PROP(RandomDesigns, Surface, ()) {
    compare(FacilityType::Surface, randomSite());
}

RC_GTEST_PROP(RandomDesigns, Swale, ()) {
    compare(FacilityType::Swale, randomSite());
}

RC_GTEST_PROP(RandomDesigns, Combined, ()) {
    const RandomSite site = randomSite();
    // Without infiltration area the swale stores all that comes, and the trench gets what rounding leaves.
    RC_PRE(site.area_m2 >= 0);
    compare(FacilityType::SwaleTrench, site);
}

RC_GTEST_PROP(RandomDesigns, Trench, ()) {
    compare(FacilityType::Trench, randomSite());
}

RC_GTEST_PROP(RandomDesigns, Shaft, ()) {
    compare(FacilityType::Shaft, randomSite());
}

RC_GTEST_PROP(RandomDesigns, Tank, ()) {
    const RandomSite site = randomSite();
    // Without area or coefficient the tank cannot be chosen.
    RC_PRE(site.area_m2 > 0 && site.filtration_m_s > 0);
    compare(FacilityType::Tank, site);
}

}  // namespace
}  // namespace mero::forms::test
