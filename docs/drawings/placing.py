# placing.py - a roof seen square to its slope, with the distances that the words of a place mean.
from paper import INK, MARK, OUTER, ROOF, SOFT, Panel, Svg

SCALE = 62  # pixels a metre
EAVES, RIDGE, LEFT, RIGHT = 0, 5, 0, 10
RIGHT_AT_RIDGE = 8.4
WIDTH, LENGTH = 0.94, 1.4


def verge(up):
    """Where the right edge, a hip, lies at a level."""
    return RIGHT + (RIGHT_AT_RIDGE - RIGHT) * up / RIDGE


def window(panel, left, bottom, words):
    corners = [(left, bottom), (left + WIDTH, bottom), (left + WIDTH, bottom + LENGTH), (left, bottom + LENGTH)]
    panel.polygon(corners, OUTER, "#dfe9f5", 2)
    panel.text((left + WIDTH / 2, bottom + LENGTH / 2), words, OUTER, dy=5, anchor="middle", size=15)


def placing():
    svg = Svg(760, 430, "Words for the place of a window on its roof")
    panel = Panel(svg, 90, 370, SCALE)
    panel.polygon([(LEFT, EAVES), (RIGHT, EAVES), (RIGHT_AT_RIDGE, RIDGE), (LEFT, RIDGE)], ROOF, "#fbeedd", 2)
    panel.text((RIGHT / 2, EAVES), "eaves", ROOF, dy=22, anchor="middle")
    panel.text((RIGHT_AT_RIDGE / 2, RIDGE), "ridge", ROOF, dy=-10, anchor="middle")
    panel.text((LEFT, RIDGE / 2), "left verge", ROOF, dx=-8, dy=5, anchor="end", size=13)

    window(panel, 1.6, 0.9, "1")
    panel.measure((1.6 + WIDTH / 2, EAVES), (1.6 + WIDTH / 2, 0.9), "", MARK, side=0.01)
    panel.text((1.6 + WIDTH / 2, 0.45), "--from-eaves", MARK, dx=8, dy=5, size=13)
    panel.measure((LEFT, 1.6), (1.6, 1.6), "", MARK, side=0.01)
    panel.text((0.8, 1.6), "--from-verge", MARK, dy=-6, anchor="middle", size=13)
    panel.text((1.6 + WIDTH, 0.9), "--sill", SOFT, dx=8, dy=-6, size=13)
    panel.text((1.6 + WIDTH, 0.9 + LENGTH), "--head", SOFT, dx=8, dy=4, size=13)

    top = RIDGE - 0.7
    right = verge(top) - 1.5
    window(panel, right - WIDTH, top - LENGTH, "2")
    panel.measure((right - WIDTH / 2, top), (right - WIDTH / 2, RIDGE), "", MARK, side=0.01)
    panel.text((right - WIDTH / 2, RIDGE - 0.35), "--from-ridge", MARK, dx=-8, dy=5, anchor="end", size=13)
    panel.measure((right, top), (verge(top), top), "", MARK, side=-0.01)
    panel.text((right, top), "--from-right-verge", MARK, dx=4, dy=20, size=13)

    other = right - WIDTH
    window(panel, other, 0.9, "3")
    panel.line((other + WIDTH / 2, 0.9 + LENGTH), (other + WIDTH / 2, top - LENGTH), SOFT, 1, "6 4")
    panel.text((other + WIDTH / 2, 2.6), "--align 2 --edge axis", SOFT, dx=6, dy=5, size=13)
    panel.line((1.6 + WIDTH, 0.9), (other, 0.9), SOFT, 1, "6 4")
    panel.text((other, 0.9), "--align 1", SOFT, dx=-6, dy=16, anchor="end", size=13)

    middle = (1.6 + WIDTH + other) / 2
    window(panel, middle - WIDTH / 2, 0.9, "4")
    panel.text((middle, 0.9 + LENGTH), "--between 1 3", INK, dy=-8, anchor="middle", size=13)
    svg.save("placing.svg")
