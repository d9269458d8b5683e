// SPDX-License-Identifier: MIT
/// Values of the sample project. Some are chosen to show rounding: 0.135 m of wall is written as 0.14.
#include "report/sample_project.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace mero::report::test {
namespace {

constexpr std::array<std::string_view, 7> kTypeNames = {
    "[Vyber typ zasakování]",
    "Plošné vsakování",
    "Vsakování v průlezích",
    "Vsakování v kombinovaném objektu",
    "Vsakování rýhové a kombinace rýhy a drénu",
    "Šachtové vsakování",
    "Vsakovací nádrže",
};

void fillSwaleAndTrench(ReportData& data) {
    data.options.soil_caption =
        data.type == data::FacilityType::SwaleTrench ? "Slit a písek, slit" : "Písek střední až jemný";
    data::DesignNumbers& numbers = data.numbers;
    numbers.txtSoucFiltrPruleh = data.type == data::FacilityType::Shaft ? 8.3e-5F : 1e-4F;
    numbers.txtDobaPrazdneni = 7.2F;
    numbers.txtSirkaPrulehu = 0.8F;
    numbers.txtHloubkaPrulehu = 0.305F;
    numbers.txtPorVyplne = 0.35F;
    numbers.txtSirkaRyhy = 0.8F;
    numbers.txtVyskaRyhy = 1.045F;
    numbers.txtDelkaRyhy = 61.3F;
    numbers.txtPrumTroubVnit = 188;
    numbers.txtPrumTroubVnej = 200;
    numbers.txtPocetPotrubi = 2;
    numbers.txtSpecDrenOdtok = 1.5F;
    numbers.txtVystupPlocha = 180;
    numbers.txtVystupRychlost = 0.25F;
}

void fillShaft(ReportData& data) {
    data.options.ring = "RSA - Q.1 120/..";
    data::DesignNumbers& numbers = data.numbers;
    numbers.txtSachtyCount = 3;
    numbers.txtNezamrzHlPritok = 0.8F;
    numbers.D_i = 1.2F;
    numbers.shaft_side1_m = 2.4F;
    numbers.txtPrumerSachtyVnej = 1.9F;
    numbers.txtTloustkaSteny = 0.135F;
    numbers.txtVyskaFiltrVrstvy = 0.5F;
    numbers.txtVyskaPiskVrstvy = 0.3F;
    numbers.txtHloubkaSachty = 1.56F;
    numbers.txtPotrHloubkaZahl = 2.56F;
}

void fillTank(data::DesignNumbers& numbers) {
    numbers.txtSpecMeroIntenz = 2;
    numbers.txtDelkaDnaNadrz = 20;
    numbers.txtSirkaDnaNadrz = 12.5F;
    numbers.txtHloubkaNadrz = 1;
    numbers.txtSklonSvahuNadrz = 2.5F;
    numbers.txtVsakTok = 0.025F;
    numbers.txtVypObjNadrz = 1234.5F;
}

}  // namespace

ReportData sampleProject(int infiltration_type) {
    ReportData data;
    data.texts.txtProjName = "Nákupní centrum Žďár";
    data.texts.txtProjektant = "Ing. Jiří Šťastný";
    data.texts.txtInvestor = "Město Žďár nad Sázavou";
    data.texts.txtMistoAkce = "Brněnská ulice";
    data.texts.txtTypPudyPodlozi = "Střední písek";
    data.type = static_cast<data::FacilityType>(infiltration_type);
    data.type_name = kTypeNames.at(static_cast<std::size_t>(infiltration_type));
    data.rain = {.station = "Telč",
                 .periodicity = "0.2",
                 .rows = {{{5, 315},
                           {10, 212},
                           {15, 161.5F},
                           {20, 131.2F},
                           {30, 96.3F},
                           {45, 69},
                           {60, 54.1F},
                           {90, 38.25F},
                           {120, 0.75F}}}};
    data.partial_areas = {{850, 0.95F, "kov, sklo, břidlice, vláknocementová krytina"},
                          {120.5F, 0.9F, "asfalt, bezesparý beton"},
                          {1234567, 0.3F, "humusová vrstva > 10 cm"}};
    data.numbers.VybranaDoba = 15;
    data.numbers.RedukovanaPlocha = 1250;
    data.numbers.txtSoucFiltrace = 2e-5F;
    data.numbers.txtHPV = 4.5F;
    data.numbers.txtSoucBezp = 1.2F;
    data.numbers.txtVsakPlocha = 428.6F;
    data.numbers.txtObjAkum = 33.7F;
    data.numbers.txtVyskaVzduti = 0.26F;
    fillSwaleAndTrench(data);
    fillShaft(data);
    fillTank(data.numbers);
    data.date = "3.4.2026";
    data.time = "14:05";
    return data;
}

}  // namespace mero::report::test
