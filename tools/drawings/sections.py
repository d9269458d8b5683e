# SPDX-License-Identifier: MIT
"""Draws the sections of the six infiltration types with the dimensions of their input panels."""
from canvas import INK, WATER, WHITE, Canvas

WIDTH = 650


def groundwater(c, y, mark_x=600):
    c.level(0, WIDTH, y, mark_x, dash=[9, 5])


def surface():
    c = Canvas(WIDTH, 340)
    ground = 120
    c.soil([(0, ground), (WIDTH, ground), (WIDTH, 340), (0, 340)])
    c.topsoil([(300, ground), (560, ground), (560, ground + 24), (300, ground + 24)])
    c.concrete([(0, ground - 16), (300, ground - 4), (300, ground + 12), (0, ground + 12)])
    c.line((300, ground), (WIDTH, ground), width=2)
    c.grass((302, ground), (560, ground))
    c.rain(40, 560, 42, 74, step=40)
    c.text(12, 28, "Intenzita deště $i$ [l/(s.ha)]", size=12)
    c.flow((150, ground - 18), (280, ground - 12))
    c.seepage(range(330, 560, 40), ground + 30, ground + 62)
    c.across(6, 299, 170, "Celková odvodňovaná plocha $A_red$", below=True)
    c.across(300, 560, 96, "Vsakovací plocha $A_s$", reach=(ground + 20, ground + 20))
    c.text(430, ground + 17, "zatravněný humus", "centre")
    c.text(430, 212, "Součinitel filtrace podloží $k_f$", "centre", backed=True)
    groundwater(c, 300, mark_x=330)
    c.down(618, ground, 300, "Hladina podzemní vody (pod povrchem)", side="left", at=262)
    return c


def swale():
    c = Canvas(WIDTH, 380)
    ground, bottom, level = 90, 170, 118
    c.soil([(0, ground), (WIDTH, ground), (WIDTH, 380), (0, 380)])
    hollow = [(190, ground), (270, bottom), (430, bottom), (510, ground)]
    outer = [(180, ground), (262, bottom + 30), (438, bottom + 30), (520, ground)]
    c.topsoil(outer)
    c.polygon(hollow, WHITE)
    left, right = 190 + 80 * (level - ground) / 80, 510 - 80 * (level - ground) / 80
    c.water([(left, level), (270, bottom), (430, bottom), (right, level)])
    c.line((0, ground), (190, ground), (270, bottom), (430, bottom), (510, ground), (WIDTH, ground), width=2)
    c.grass((130, ground), (190, ground))
    c.grass((510, ground), (570, ground))
    c.concrete([(0, ground - 10), (128, ground - 2), (128, ground + 10), (0, ground + 10)])
    c.level(left, right, level, 300)
    c.rain(40, 600, 26, 50, step=56)
    c.text(12, 18, "Intenzita deště $i$ [l/(s.ha)]")
    c.flow((70, ground - 14), (180, ground - 8))
    c.text(12, 70, "přítok z plochy $A_red$", backed=True)
    c.down(400, level, bottom, "Výška vzdutí $h$", backed=False, side="left")
    c.seepage(range(285, 430, 35), bottom + 36, bottom + 64)
    c.across(left, right, 262, "Vsakovací plocha $A_s$  (objem akumulace průlehu $V$)",
             reach=(level, level), below=True)
    c.note((470, ground + 52), (526, 170), "humus s trávníkem")
    c.text(350, 318, "Součinitel filtrace podloží $k_f$", "centre", backed=True)
    groundwater(c, 352, mark_x=430)
    c.down(30, ground + 10, 352, "Hladina podzemní vody\n(pod povrchem)", at=230)
    return c


def combined():
    c = Canvas(WIDTH, 500)
    ground, bottom, level = 70, 140, 92
    top, foot = 178, 330
    left, right = 240, 400
    c.soil([(0, ground), (WIDTH, ground), (WIDTH, 500), (0, 500)])
    c.topsoil([(170, ground), (228, top), (412, top), (470, ground)])
    c.polygon([(180, ground), (left, bottom), (right, bottom), (460, ground)], WHITE)
    edge = 60 * (level - ground) / 70
    c.water([(180 + edge, level), (left, bottom), (right, bottom), (460 - edge, level)])
    c.line((0, ground), (180, ground), (left, bottom), (right, bottom), (460, ground), (WIDTH, ground),
           width=2)
    c.grass((120, ground), (180, ground))
    c.grass((460, ground), (520, ground))
    c.gravel([(left, top), (right, top), (right, foot), (left, foot)])
    c.polygon([(left, top), (right, top), (right, foot), (left, foot)], stroke=INK, width=1.6)
    # overflow pipe, drain pipe
    c.rectangle(362, level - 2, 376, 276, WHITE, INK, 1.2)
    c.circle(320, 290, 26, WHITE, INK, 1.4)
    c.circle(320, 290, 21, WHITE, INK, 1)
    c.level(180 + edge, 460 - edge, level, 230)
    c.flow((70, ground - 12), (168, ground - 8))
    c.text(12, 40, "přítok z plochy $A_red$")
    c.note((369, 86), (420, 34), "přetok do rýhy")
    c.note((452, 98), (510, 124), "humus průlehu, $k_fP$", backed=True)
    c.note((388, 220), (440, 200), "štěrková výplň,", backed=True)
    c.text(444, 219, "pórovitost výplně rýhy $s_R$", backed=True)
    c.note((344, 282), (440, 252), "Vnější průměr", backed=True)
    c.text(444, 271, "vsakovací trouby $d_a$", backed=True)
    c.note((335, 303), (440, 296), "Vnitřní průměr", backed=True)
    c.text(444, 315, "vsakovací trouby $d_i$", backed=True)
    c.note((320, 312), (440, 340), "Škrcená odtoková", backed=True)
    c.text(444, 359, "intenzita $q_dr$", backed=True)
    c.down(212, level, bottom, "Hloubka průlehu\n(výška vzdutí) $h_P$", reach=(230, 240), side="left",
           at=125)
    c.down(200, top, foot, "Výška rýhy $h_r$", reach=(left, left), side="left")
    c.across(left, right, 372, "Šířka rýhy (střední) $b_r$ = Šířka průlehu", reach=(foot, foot),
             below=True)
    c.seepage(range(262, 400, 38), foot + 4, foot + 28)
    c.text(320, 424, "Součinitel filtrace podloží $k_f$", "centre", backed=True)
    groundwater(c, 460, mark_x=520)
    c.down(30, ground, 460, "Hladina podzemní\nvody (pod\npovrchem)", at=370)
    c.text(640, 490, "Délka vsakovací rýhy $L$ se měří kolmo k řezu", "right", backed=True)
    return c


def trench():
    c = Canvas(WIDTH, 430)
    ground, top, foot = 70, 120, 250
    c.soil([(0, ground), (WIDTH, ground), (WIDTH, 430), (0, 430)])
    c.line((0, ground), (WIDTH, ground), width=2)
    c.text(150, 22, "Příčný řez", "centre", bold=True)
    c.text(490, 22, "Podélný řez", "centre", bold=True)
    # cross section
    left, right = 95, 205
    c.gravel([(left, top), (right, top), (right, foot), (left, foot)])
    c.polygon([(left, top), (right, top), (right, foot), (left, foot)], stroke=INK, width=1.6)
    for x in (125, 175):
        c.circle(x, 172, 20, WHITE, INK, 1.4)
        c.circle(x, 172, 16, WHITE, INK, 1)
    c.down(78, top, foot, "Výška\nrýhy $h_r$", reach=(left, left), side="left")
    c.across(left, right, 282, "Šířka rýhy (střední) $b_r$", reach=(foot, foot), below=True)
    c.note((195, 140), (222, 100), "štěrková výplň,", backed=True)
    c.text(226, 119, "pórovitost $s_R$", backed=True)
    c.note((191, 172), (222, 172), "vsakovací", backed=True)
    c.text(226, 191, "trouba $d_i$, $d_a$", backed=True)
    c.seepage((112, 150, 188), foot + 4, foot + 20)
    # lengthwise section
    start, end = 390, 625
    c.gravel([(start, top), (end, top), (end, foot), (start, foot)])
    c.polygon([(start, top), (end, top), (end, foot), (start, foot)], stroke=INK, width=1.6)
    c.rectangle(368, 152, end - 10, 192, WHITE, INK, 1.4)
    x = start + 12
    while x < end - 16:
        c.line((x, 187), (x + 6, 187), color=INK, width=2)
        c.line((x, 157), (x + 6, 157), color=INK, width=2)
        x += 16
    c.concrete([(340, ground - 8), (348, ground - 8), (348, 200), (368, 200), (368, 208), (340, 208)])
    c.polygon([(348, ground - 2), (368, ground - 2), (368, 200), (348, 200)], WHITE)
    c.water([(348, 160), (368, 160), (368, 200), (348, 200)])
    c.concrete([(368, ground - 8), (376, ground - 8), (376, 152), (368, 152)])
    c.flow((312, 50), (356, 50), (356, 96))
    c.text(306, 54, "přítok $Q_in$", "right")
    c.flow((378, 172), (440, 172))
    c.note((522, 187), (545, 226), "výstupní otvory", align="centre", backed=True)
    c.across(start, end, 282, "Délka vsakovací rýhy $L$", reach=(foot, foot), below=True)
    c.seepage(range(420, 620, 50), foot + 4, foot + 20)
    c.text(490, 344, "Výstupní plocha [cm²/m], výstupní rychlost [m/s]", "centre", size=11, backed=True)
    c.text(150, 344, "Součinitel filtrace podloží $k_f$", "centre", backed=True)
    groundwater(c, 392, mark_x=600)
    c.down(24, ground, 392, "Hladina podzemní vody (pod povrchem)", at=372)
    return c


def shaft():
    c = Canvas(WIDTH, 590)
    ground, inflow, top = 70, 150, 250
    filter_end, bottom, required, water_table = 300, 340, 440, 500
    c.soil([(0, ground), (WIDTH, ground), (WIDTH, 590), (0, 590)])
    c.line((0, ground), (WIDTH, ground), width=2)
    left, right, wall = 255, 375, 16
    c.concrete([(left - wall, ground - 12), (right + wall, ground - 12), (right + wall, ground),
                (left - wall, ground)])
    c.rectangle(left, ground, right, bottom, WHITE)
    c.water([(left, inflow), (right, inflow), (right, top), (left, top)])
    c.gravel([(left, top), (right, top), (right, filter_end), (left, filter_end)])
    c.sand([(left, filter_end), (right, filter_end), (right, bottom), (left, bottom)])
    for x1, x2 in ((left - wall, left), (right, right + wall)):
        c.concrete([(x1, ground), (x2, ground), (x2, bottom), (x1, bottom)])
        for y in (165, 190, 215, 238, 262, 282, 306, 326):
            c.rectangle(x1, y - 3, x2, y + 3, WHITE, INK, 0.7)
    c.line((left, top), (right, top), width=1.2)
    c.line((left, filter_end), (right, filter_end), width=1.2)
    c.rectangle(150, inflow - 24, left + 6, inflow, WHITE, INK, 1.3)
    c.flow((160, inflow - 12), (240, inflow - 12))
    c.text(146, inflow - 8, "přítok", "right", backed=True)
    c.level(left, right, inflow, 330)
    # left: what the shaft is made of
    c.down(218, ground, inflow, "Nezámrzná\nhloubka přítoku $z_f$", reach=(left - wall, 218), side="left",
           at=92)
    c.down(218, inflow, top, "Výška vzdutí $h$", reach=(left - wall, left - wall), side="left", at=205)
    c.down(218, top, filter_end, "Výška filtrační vrstvy $h_f$", reach=(left - wall, left - wall),
           side="left")
    c.down(218, filter_end, bottom, "Vrstva písku / jemného\nštěrku $h_p$ (jen typ B)",
           reach=(left - wall, left - wall), side="left")
    # right: depths
    c.down(410, ground, bottom, "Hloubka\nšachty $H_s$", reach=(right + wall, right + wall), at=180)
    c.down(440, top, required, "Minimální\nprůsaková\ndráha $z_min$", reach=(right + wall, right + wall),
           at=392)
    c.down(620, ground, required, "Min. hloubka\nhladiny podzemní\nvody $z_pož$", reach=(620, 440),
           side="left", at=160)
    c.down(40, ground, water_table, "Hladina podzemní\nvody (pod\npovrchem) HPV", at=436)
    c.seepage((275, 315, 355), bottom + 6, bottom + 34)
    for x1, x2 in ((left - wall - 4, left - wall - 24), (right + wall + 4, right + wall + 16)):
        c.flow((x1, 232), (x2, 232))
    c.across(left, right, 392, "DN $D_i$", reach=(bottom, bottom), below=True)
    c.across(left - wall, right + wall, 436, "vnější průměr $D_a = D_i$ + 2 $t_s$",
             reach=(bottom, bottom), below=True)
    c.note((left - 8, 334), (196, 372), "Tloušťka stěny $t_s$", align="right", backed=True)
    groundwater(c, water_table, mark_x=120)
    c.text(24, 544, "Součinitel filtrace podloží $k_f$", backed=True)
    c.text(24, 574, "Pravoúhlá šachta: DN / Šířka $a$, Délka $b$, Tloušťka $t_s$; počítá se s náhradními "
           "průměry.", backed=True)
    return c


def tank():
    c = Canvas(WIDTH, 560)
    ground, bottom, level = 110, 200, 128
    c.soil([(0, ground), (WIDTH, ground), (WIDTH, 300), (0, 300)])
    x1, x2, x3, x4 = 230, 330, 470, 570
    c.polygon([(x1, ground - 1), (x2, bottom), (x3, bottom), (x4, ground - 1)], WHITE)
    edge = 100 * (level - ground) / 90
    c.water([(x1 + edge, level), (x2, bottom), (x3, bottom), (x4 - edge, level)])
    # settling basin
    c.polygon([(40, ground - 1), (60, 160), (140, 160), (160, ground - 1)], WHITE)
    c.water([(46, 126), (60, 160), (140, 160), (154, 126)])
    c.line((0, ground), (40, ground), (60, 160), (140, 160), (160, ground), (x1, ground), (x2, bottom),
           (x3, bottom), (x4, ground), (WIDTH, ground), width=2)
    c.level(46, 154, 126, 80)
    c.rectangle(150, 124, 248, 136, WHITE, INK, 1.2)
    c.flow((160, 130), (240, 130))
    c.flow((4, ground - 10), (44, ground - 4), (52, 122))
    c.level(x1 + edge, x4 - edge, level, 400)
    c.text(100, 182, "Předsazené usazování", "centre", backed=True)
    c.text(12, 24, "Řez", bold=True)
    c.across(x1 + edge, x4 - edge, 74, "šířka při maximální hladině $B_h$", reach=(level, level))
    c.across(x2, x3, 226, "Šířka dna nádrže $B_d$", reach=(bottom, bottom), below=True)
    c.down(600, level, bottom, "Hloubka\nnádrže $H_n$", reach=(x4 - edge, x3), side="left", at=176)
    c.down(600, ground, level, "", reach=(x4, x4 - edge), backed=False)
    c.text(WIDTH - 8, 96, "převýšení", "right", backed=False)
    c.text(268, 178, "1 : $m$", "centre", backed=True)
    c.text(268, 215, "Sklon svahů nádrže", "centre", backed=True)
    c.text(400, 168, "objem $V_n$", "centre")
    c.seepage(range(345, 470, 36), 250, 274)
    c.text(120, 270, "Součinitel filtrace podloží $k_f$", "centre", backed=True)
    # plan
    c.text(12, 330, "Půdorys", bold=True)
    px1, px2, py1, py2, inset = 170, 520, 360, 510, 40
    c.rectangle(px1, py1, px2, py2, WATER, INK, 1.8)
    c.polygon([(px1 + inset, py1 + inset), (px2 - inset, py1 + inset), (px2 - inset, py2 - inset),
               (px1 + inset, py2 - inset)], WATER, INK, 1.4)
    for a, b in (((px1, py1), (px1 + inset, py1 + inset)), ((px2, py1), (px2 - inset, py1 + inset)),
                 ((px1, py2), (px1 + inset, py2 - inset)), ((px2, py2), (px2 - inset, py2 - inset))):
        c.line(a, b, width=1)
    c.across(px1 + inset, px2 - inset, 440, "Délka dna nádrže $L_d$", backed=False)
    c.across(px1, px2, 534, "délka při maximální hladině $L_h$", reach=(py2, py2), below=True)
    c.down(150, py1, py2, "šířka při max.\nhladině $B_h$", reach=(px1, px1), side="left")
    c.down(540, py1 + inset, py2 - inset, "Šířka dna\nnádrže $B_d$", reach=(px2 - inset, px2 - inset))
    return c


SECTIONS = {1: surface, 2: swale, 3: combined, 4: trench, 5: shaft, 6: tank}
