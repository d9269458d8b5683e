# SPDX-License-Identifier: MIT
"""Maps captions of the window to controls, and rows of the manual to script lines."""

import csv

from manual_text import ROOT, Action, Example, Message, Result

TYPES = ("", "Plošné vsakování", "Vsakování v průlezích", "Vsakování v kombinovaném objektu",
         "Vsakování rýhové a kombinace rýhy a drénu", "Šachtové vsakování", "Vsakovací nádrže")
TABS = ("Základní informace", "Výpočet", "Popis technologie", "Výsledky")
DURATIONS = (5, 10, 15, 20, 30, 45, 60, 90, 120)
SOILS = "Výběr u zeminy "
SURFACES = "Výběr u povrchu "
RAINS = "Výběr u doby "
TAB = "Záložka "

# Fields of the first tab, shared by all types.
SITE = {
    "Název projektu": "txtProjName",
    "Řešitel projektu": "txtProjektant",
    "Místo akce": "txtMistoAkce",
    "Investor": "txtInvestor",
    "Detilní popis": "txtDetails",
    "Typ nesoudržné horniny": "txtTypPudyPodlozi",
    "Hladina podzemní vody (pod povrchem)": "txtHPV",
    "Celková odvodňovaná plocha": "txtOdvodNepPlocha",
    "Intenzita trvání deště": "txtSelIntDeste",
    "Doba trvání deště": "txtSelDTrvDeste",
    "Odtok do vsakovacího zařízení": "txtOdtokDoVsak",
    "Součinitel filtrace (kf) podloží": "txtSoucFiltrace",
}

# Fields of the panels; # stands for the number of the type.
PANEL = {
    "Součinitel bezpečnosti": "txtSoucBezp(#)",
    "Součinitel filtrace (kf) průlehu": "txtSoucFiltrPruleh(#)",
    "Pórovitost výplně rýhy": "txtPorVyplne(#)",
    "Šířka rýhy (střední)": "txtSirkaRyhy(#)",
    "Výška rýhy": "txtVyskaRyhy(#)",
    "Počet potrubí": "txtPocetPotrubi(#)",
    "Vnější průměr vsakovací trouby": "txtPrumTroubVnej(#)",
    "Vnitřní průměr vsakovací trouby": "txtPrumTroubVnit(#)",
    "Škrcená odtoková intenzita": "txtSpecDrenOdtok(#)",
    "Výstupní plocha": "txtVystupPlocha(#)",
    "Výstupní rychlost": "txtVystupRychlost(#)",
    "Počet šachet": "txtSachtyCount",
    "DN / Šířka": "txtPrumerSachtyVnit",
    "Délka": "txtPrumerSachtyVnej",
    "Tloušťka": "txtTloustkaSteny",
    "Nezámrzná hloubka přitoku": "txtNezamrzHlPritok",
    "Minimální průsaková dráha": "txtMinPrusakDraha",
    "Výška filtrační vrstvy": "txtVyskaFiltrVrstvy",
    "Vrstva písku/jemného štěrku": "txtVyskaPiskVrstvy",
    "Délka dna nádrže": "txtDelkaDnaNadrz",
    "Šířka dna nádrže": "txtSirkaDnaNadrz",
    "Hloubka nádrže": "txtHloubkaNadrz",
    "Sklon svahů nádrže": "txtSklonSvahuNadrz",
    "Specifická vsakovací intenzita": "txtSpecMeroIntenz",
    # Results.
    "Plocha potřebná pro vsakování": "txtVsakPlocha(#)",
    "Vsakovací plocha šachty": "txtVsakPlocha(#)",
    "Objem akumulace průlehu": "txtObjAkum(#)",
    "Objem akumulace": "txtObjAkum(#)",
    "Potřebný objem akumulace": "txtObjAkum(#)",
    "Výška vzdutí": "txtVyskaVzduti(#)",
    "Doba prázdnění průlehu": "txtDobaPrazdneni(#)",
    "Délka vsakovací rýhy": "txtDelkaRyhy(#)",
    "Šířka průlehu": "txtSirkaPrulehu(#)",
    "Hloubka průlehu (výška vzdutí)": "txtHloubkaPrulehu(#)",
    "Celkový součinitel akumulace vsakovací rýhy (vč. příp. trouby)": "txtSoucAkum(#)",
    "Potřebná hloubka šachty": "txtHloubkaSachty",
    "Min. hloubka hladiny podzemní vody": "txtPotrHloubkaZahl",
    "Součinitel filtrace náplně filtru": "txtSoucFiltrPruleh(#)",
    "Vsakovací tok": "txtVsakTok",
    "Objem dle rozměrů nádrže": "txtVypObjNadrz",
}

BUTTONS = {
    "Zadat u pole Intenzita trvání deště": "cmdEdit(0)",
    "Zadat u pole Celková odvodňovaná plocha": "cmdEdit(1)",
    "Zadat u pole Součinitel filtrace (kf) podloží": "cmdEdit(2)",
    "Decenralizované": "optSelType(0)",
    "Centralizované": "optSelType(1)",
    "Výpočti": "cmdCalcul(#)",
    "Editovat": "cmdEdit(#)",
    "Přetok a škrcený odtok": "chkSelPretok(3)",
    "Drenáž": "chkSelPretok(4)",
    "Předsazené usazování": "chkPredUsaz",
    "kruhový": "optSelTypSachty(0)",
    "pravoúhlý": "optSelTypSachty(1)",
    "typ A": "optSelTypPudy5(0)",
    "typ B": "optSelTypPudy5(1)",
    "Písek střední až jemný": "optSelTypPudy#(0)",
    "Slit a písek, slit": "optSelTypPudy#(1)",
}
DIALOGS = {"cmdEdit(0)": "frmIntDialog", "cmdEdit(1)": "frmDialog", "cmdEdit(2)": "frmCoefDialog"}
LISTS = {"Stanice": "frmIntDialog.cboSelStanice", "Periodicita": "frmIntDialog.cboSelPeriod",
         "Šachta z katalogu": "cboTypSachty"}
# The user leaves these fields, for example with the Tab key; the number is then formatted.
FILTRATION = ("txtSoucFiltrace", "txtSoucFiltrPruleh")


def reference_rows(name: str, column: str) -> list[str]:
    with open(ROOT / "tests" / "data" / "expected" / name, encoding="utf-8") as file:
        return [row[column] for row in csv.DictReader(file, delimiter=";", quoting=csv.QUOTE_NONE)]


class Person:
    """A reader of the manual: keeps which window is open and which type is chosen."""

    def __init__(self) -> None:
        self.dialog = ""
        self.type_number = 0
        self.tab = 0

    def control(self, caption: str) -> str:
        """The field of a caption, in any window. KeyError if there is none."""
        found = SITE.get(caption) or PANEL.get(caption) or LISTS.get(caption)
        if found is None:
            raise KeyError(f"no field is called {caption}")
        return found.replace("#", str(self.type_number))

    def seen(self, caption: str) -> str:
        """The field of a caption that is on the screen now."""
        control = self.control(caption)
        if caption not in LISTS and (self.dialog or self.tab != (0 if caption in SITE else 1)):
            raise KeyError(f"{caption} is not on the screen here")
        return control

    def script(self, step: Action | Result | Message) -> list[str]:
        """The script lines of a step. KeyError for a caption that the window does not have."""
        if isinstance(step, Message):
            return []
        if isinstance(step, Result):
            return [f"get {self.seen(step.caption)}"]
        if step.value is None:
            return self.press(step.caption)
        if step.caption == "Typ vsakování":
            self.type_number = TYPES.index(step.value)
            return ["focus cboSelType", f'select cboSelType "{step.value}"']
        if step.caption in LISTS:
            return [f'select {LISTS[step.caption]} "{step.value}"']
        if step.caption in ("Dílčí plocha", "Součinitel odtoku"):
            box = {"Dílčí plocha": "txtPlocha", "Součinitel odtoku": "txtSoucinitel"}[step.caption]
            return [f'type frmDialog.{box} "{step.value}"']
        control = self.seen(step.caption)
        if control.startswith(FILTRATION):
            return [f'set {control} ""', f'type {control} "{step.value}"', f"leave {control}"]
        return [f'set {control} "{step.value}"']

    def press(self, caption: str) -> list[str]:
        if caption.startswith(TAB):
            self.tab = TABS.index(caption.removeprefix(TAB))
            return [f"tab {self.tab}"]
        for prefix, grid, column, rows in (
                (RAINS, "frmIntDialog.fgIntDeste", 2, [f"{t} min" for t in DURATIONS]),
                (SURFACES, "frmDialog.fgSoucPovrchOdtok", 3, reference_rows("surfaces.csv", "description")),
                (SOILS, "frmCoefDialog.fgCoefProp", 2, reference_rows("soils.csv", "name"))):
            if caption.startswith(prefix):
                return [f"cell {grid} {rows.index(caption.removeprefix(prefix)) + 1} {column}"]
        if caption == "Zapsat do tabulky":
            return ["click frmDialog.cmdZapsat"]
        if caption == "OK":
            return [f"click {self.confirm()}"]
        if caption == "Centralizované":
            self.type_number = TYPES.index("Vsakovací nádrže")
        control = BUTTONS[caption].replace("#", str(self.type_number))
        self.dialog = DIALOGS.get(control, self.dialog)
        return [f"click {control}"]

    def confirm(self) -> str:
        """The OK button of the open window or panel."""
        dialog, self.dialog = self.dialog, ""
        if not dialog:
            return f"cmdOK({self.type_number})"
        return f"{dialog}.OKButton" if dialog == "frmDialog" else f"{dialog}.cmdOK"


def script_of(example: Example) -> list[str]:
    """The whole script: each step's lines after an echo of its line in the manual."""
    person = Person()
    lines = []
    for step in example.steps:
        try:
            lines += [f'echo "{step.line}"', *person.script(step)]
        except (KeyError, ValueError) as error:
            raise ValueError(f"{step.line}: {error}") from error
    return lines
