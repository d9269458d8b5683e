#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes the expected reports of the sample projects from the report's rules, without the program.

Each report is the list of its rows as the format describes them: label, value text, key of the closing cell.
The value texts are written out by hand. `make_golden.py --check` compares instead of writing.
"""
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent

# Closing cells: unit, does the row end with </TR>.
UNITS = {
    "m2": ("m<sup>2</sup>", "</TR>"), "m2x": ("m<sup>2</sup>", ""),
    "m2t": ("m<sup>2</sup>", "</TR></table>"),
    "m3": ("m<sup>3</sup>", "</TR>"), "m3x": ("m<sup>3</sup>", ""), "m3s": ("m<sup>3</sup>/s", ""),
    "m": ("m", "</TR>"), "mx": ("m", ""), "e": ("", "</TR>"), "ex": ("", ""),
    "ms": ("m/s", "</TR>"), "msx": ("m/s", ""), "h": ("hod.", "</TR>"), "hx": ("hod.", ""),
    "mm": ("mm", "</TR>"), "lsha": ("l/s.ha", "</TR>"), "cm2": ("cm<sup>2</sup>/m", "</TR>"),
}

RULE = '<TR><TD valign=bottom colspan=3><hr></TD></tr>'
END = '</table>'
NEWLINE = object()


def option(words):
    return ('<TR><TD>-</TD><TD><TD></TD></TR><TR><TD valign=bottom width=200><i><u>%s</u></i></TD>'
            '<TH valign=bottom align=right width=200></TH>'
            '<TH valign=bottom align=left width=250></TH></TR>' % words)


def render(items):
    """Converts rows to text: a tuple is a value row, a text is copied, NEWLINE ends a line of the file."""
    out = ''
    for item in items:
        if item is NEWLINE:
            out += '\n'
        elif isinstance(item, str):
            out += item
        else:
            label, value, key = item
            if key in UNITS:
                unit, tail = UNITS[key]
                key = '</TH><TH valign=bottom align=left width=250>%s</TH>%s' % (unit, tail)
            out += ('<TR><TD valign=bottom width=200>%s</TD><TH valign=bottom align=right width=200>%s%s'
                    % (label, value, key))
    return out


RESULTS = '<u>Výsledky</u><p><table border=0>'

SURFACE = [RESULTS, ('Vsakovací plocha', '428.60', 'm2t'), NEWLINE]

SWALE = [RESULTS,
         ('Typ půdy', 'Písek střední až jemný', 'e'), ('Součinitel bezpečnosti', '1.20', 'e'), RULE,
         ('Vsakovací plocha', '428.60', 'm2'), ('Objem akumulace průlehu', '33.70', 'm3'),
         ('Výška vzdutí', '0.26', 'm'), ('Doba prázdnění průlehu', '7.20', 'h'), END, NEWLINE]


def combined(overflow):
    items = [RESULTS,
             ('Typ půdy', 'Slit a písek, slit', 'e'), ('Součinitel filtrace průlehu', '1.00E-04', 'ms'),
             ('Součinitel bezpečnosti', '1.20', 'e'), ('Pórovitost výplně rýhy', '0.35', 'e'),
             ('Šířka rýhy (střední)', '0.80', 'm'), ('Výška rýhy', '1.05', 'm'), NEWLINE]
    if overflow:
        items += [option('Přetok a škrcený odtok'),
                  ('Vnitřní průměr vsakovací trouby', '188.00', 'mm'),
                  ('Vnější průměr vsakovací trouby', '200.00', 'mm'),
                  ('Škrcená odtoková intenzita', '1.50', 'lsha'), ('Počet potrubí', '2.00', 'e'), NEWLINE]
    return items + [RULE,
                    ('Vsakovací plocha', '428.60', 'm2'), ('Objem akumulace průlehu', '33.70', 'm3x'),
                    ('Délka vsakovací rýhy', '61.30', 'mx'), ('Šířka průlehu', '0.80', 'mx'),
                    ('Hloubka průlehu (výška vzdutí)', '0.31', 'mx'),
                    ('Doba prázdnění průlehu', '7.20', 'hx'), END, NEWLINE]


def trench(drain):
    items = [RESULTS,
             ('Součinitel bezpečnosti', '1.20', 'e'), ('Pórovitost výplně rýhy', '0.35', 'e'),
             ('Šířka rýhy (střední)', '0.80', 'm'), ('Výška rýhy', '1.05', 'm'), NEWLINE]
    if drain:
        items += [option('Drenáž'),
                  ('Vnitřní průměr vsakovací trouby', '188.00', 'mm'),
                  ('Vnější průměr vsakovací trouby', '200.00', 'mm'), ('Počet potrubí', '2.00', 'e'),
                  ('Výstupní plocha', '180.00', 'cm2'), ('Výstupní rychlost', '0.25', 'ms'), NEWLINE]
    return items + [RULE,
                    ('Vsakovací plocha', '428.60', 'm2'), ('Objem akumulace průlehu', '33.70', 'm3x'),
                    ('Délka vsakovací rýhy', '61.30', 'mx'), END, NEWLINE]


ROUND = [('Vnitřní průměr šachty', '1.20', 'mx'), NEWLINE]
RECTANGULAR = [('Šířka šachty', '2.40', 'mx'), NEWLINE, ('Délka šachty', '1.90', 'mx'), NEWLINE]


def shaft(ring, cross_section, wall, sand):
    items = [RESULTS,
             ('Součinitel bezpečnosti', '1.20', 'ex'), ('Nezámrzná hloubka přítoku', '0.80', 'mx'),
             ('Typ šachty', ring, 'ex'), ('Počet šachet', '3', 'ex'), NEWLINE]
    items += cross_section
    items += [('Tloušťka stěny', wall, 'mx'), ('Výška vzdutí', '0.26', 'mx'),
              ('Výška filtrační vrstvy', '0.50', 'mx'), NEWLINE]
    if sand:
        items += [('Výška vrstvy písku/jem. štěrku', '0.30', 'mx'), NEWLINE]
    return items + [RULE,
                    ('Potřebná hloubka šachty', '1.56', 'mx'), ('Min. hloubka podzemní vody', '2.56', 'mx'),
                    ('Potřebný součinitel filtrace filtru', '8.30E-05', 'msx'),
                    ('Vsakovací plocha', '428.60', 'm2x'), END, NEWLINE]


def tank(settling):
    items = [RESULTS,
             ('Součinitel bezpečnosti', '1.20', 'ex'), ('Specifická vsakovací intenzita', '2.00', 'mx'),
             ('Délka dna nádrže', '20.00', 'ex'), ('Šířka dna nádrže', '12.50', 'mx'),
             ('Hloubka nádrže', '1.00', 'mx'),
             ('Sklon svahů nádrže', '1 : ', '</TH><TH valign=bottom align=left width=250>2.50</TH>'), NEWLINE]
    if settling:
        items += [option('Předsazené usazování'), NEWLINE]
    return items + [RULE,
                    ('Vsakovací tok', '0.03', 'm3s'), ('Potřebný objem akumulace', '33.70', 'm3x'),
                    ('Objem dle rozměrů nádrže', '1 234.50', 'm3x'), END, NEWLINE]


RAINS = [('5', '315'), ('10', '212'), ('15', '161.5'), ('20', '131.2'), ('30', '96.3'), ('45', '69'),
         ('60', '54.1'), ('90', '38.25'), ('120', '0.75')]

AREAS = [('850', '0.95', 'kov, sklo, břidlice, vláknocementová krytina'),
         ('120.5', '0.9', 'asfalt, bezesparý beton'),
         ('1234567', '0.3', 'humusová vrstva > 10 cm')]

NAMES = ['[Vyber typ zasakování]', 'Plošné vsakování', 'Vsakování v průlezích',
         'Vsakování v kombinovaném objektu', 'Vsakování rýhové a kombinace rýhy a drénu',
         'Šachtové vsakování', 'Vsakovací nádrže']


def report(kind, section, project='Nákupní centrum Žďár', description='', chosen='15', areas=tuple(AREAS),
           soil='Střední písek', soil_kf='2.00E-05'):
    text = '<html><body><div style=position:relative;width:650px;height:350px><table border=0>'
    for row, (label, value) in enumerate([('Název projektu', project), ('Projektant', 'Ing. Jiří Šťastný'),
                                          ('Investor', 'Město Žďár nad Sázavou'),
                                          ('Místo akce', 'Brněnská ulice'),
                                          ('Typ vsakování', NAMES[kind])]):
        logo = ('<TD rowspan=4 width=210><img border=0 src=Webs\\Desc_soubory\\logo.gif></TD>'
                if row == 0 else '')
        text += '<TR><TD width=200>%s</TD><TH align=left width=450>%s</TH>%s</TR>' % (label, value, logo)
    text += '</table>\n'
    if description:
        text += '<br><u>Detailní popis</u><br><align=justify>%s</p>\n' % description
    text += ('<hr><u>Návrhový déšť</u> dešťoměrná stanice - <b>Telč</b>, periodicita - <b>0.2</b><p>'
             '<table border=1 style=border-collapse:collapse><tr>'
             '<th width=150 align=center>Doba trvání deště (min)</th>'
             '<th width=150 align=center>Intenzita deště (l/s.ha)</th></tr>\n')
    for duration, intensity in RAINS:
        tag = 'th' if duration == chosen else 'td'
        text += '<tr>' + ''.join('<%s width=150 align=center>%s</%s>' % (tag, cell, tag)
                                 for cell in (duration, intensity)) + '</tr>\n'
    text += '</table><hr>\n'
    text += ('<u>Odvodňovaná plocha</u><p><table border=1 style=border-collapse:collapse><tr>'
             '<th width=150 align=center>Dílčí plocha (m<sup>2</sup>)</th>'
             '<th width=200 align=center>Souč. povrch. odtoku</th>'
             '<th width=250 align=center>Dílčí typ povrchu</th></tr>\n')
    for area, coefficient, surface in areas:
        text += ('<tr><td width=150 align=center>%s</td><td width=200 align=center>%s</td>'
                 '<td width=250 align=left>%s</td></tr>\n' % (area, coefficient, surface))
    text += '</table><br>\n'
    if section:
        text += render(['<table border=0>', ('Celková odvodňovaná plocha', '1 250.00', 'm2'),
                        ('Součinitel filtrace podloží', soil_kf,
                         '</TH><TD valign=bottom align=left width=250><b>m/s - </b>(%s)</TD></TR>' % soil),
                        ('Hladina podzemní vody', '4.50', 'm'), '</table><br><hr>'] + section)
    text += ('<hr><p><font size=2>Datum a čas výpočtu:  3.4.2026,  14:05</font></p>'
             '</div></body><html>\n')
    return text


CASES = {
    'no_type': report(0, None),
    'surface': report(1, SURFACE),
    'surface_without_areas': report(1, SURFACE, areas=(), soil='', soil_kf='5.00E-05', chosen='none'),
    'swale': report(2, SWALE),
    'swale_described': report(2, SWALE, description='První řádek<br>druhý & "třetí" <i>řádek</i>',
                              project='A<B>"C" ? ?'),
    'combined': report(3, combined(overflow=False), chosen='5'),
    'combined_overflow': report(3, combined(overflow=True), chosen='120'),
    'trench': report(4, trench(drain=False)),
    'trench_drain': report(4, trench(drain=True)),
    'shaft_round': report(5, shaft('RSA - Q.1 120/..', ROUND, '0.14', sand=False)),
    'shaft_rectangular_sand': report(5, shaft('RSD 240/190/..', RECTANGULAR, '0.10', sand=True)),
    'shaft_without_shape': report(5, shaft('', [], '0.10', sand=False)),
    'tank': report(6, tank(settling=False)),
    'tank_settling': report(6, tank(settling=True)),
}


def main():
    check = '--check' in sys.argv[1:]
    wrong = []
    for name, text in CASES.items():
        data = text.replace('\n', '\r\n').encode('cp1250')
        path = HERE / (name + '.html')
        if not check:
            path.write_bytes(data)
        elif not path.exists() or path.read_bytes() != data:
            wrong.append(path.name)
    unknown = [p.name for p in HERE.glob('*.html') if p.stem not in CASES]
    for name in wrong + unknown:
        print('differs from the rules:', name)
    return 1 if wrong or unknown else 0


if __name__ == '__main__':
    sys.exit(main())
