# file_splices.py - the bytes of a drawing, what the index knows of them, and the splices that become the saved file.
from paper import INK, MARK, OPENING, OUTER, SOFT, Svg

LEFT = 20
FILE, KEPT, ADDED, GONE = "#f1f1f1", "#dfe9f5", "#dcefdc", "#f7dcd8"
FILE_TOP, SAVED_TOP, HEIGHT = 92, 268, 50
# The pieces of the file: name, length in the picture, whether they are one entity's range.
PIECES = (("HEADER", 120), ("TABLES", 150), ("BLOCKS", 90), ("3DFACE", 60), ("LINE", 60), ("LINE", 60), ("3DFACE", 60),
          ("OBJECTS", 150), ("EOF", 40), ("behind", 60))
ENTITIES = range(3, 7)
REMOVED = 5
SEED_PLACE = LEFT + 98


def box(svg, x, y, width, fill, words, colour=INK):
    svg.polygon([(x, y), (x + width, y), (x + width, y + HEIGHT), (x, y + HEIGHT)], INK, fill, 1)
    svg.text(x + width / 2, y + HEIGHT / 2 + 5, words, colour, "middle", 13)


def arrow_down(svg, x, y1, y2, colour, to=None):
    to = x if to is None else to
    svg.line(x, y1, to, y2, colour, 1.5)
    svg.polygon([(to, y2), (to - 4, y2 - 9), (to + 4, y2 - 9)], colour, colour, 0)


def file_as_loaded(svg):
    """The upper row: gives the x of each piece's begin, and of the last one's end."""
    places = [LEFT]
    for number, (name, width) in enumerate(PIECES):
        box(svg, places[-1], FILE_TOP, width, GONE if number == REMOVED else KEPT if number in ENTITIES else FILE, name)
        places.append(places[-1] + width)
    first, last = places[ENTITIES.start], places[ENTITIES.stop]
    svg.line(first, FILE_TOP - 12, last, FILE_TOP - 12, OUTER, 1.5)
    for x in (first, last):
        svg.line(x, FILE_TOP - 16, x, FILE_TOP - 8, OUTER, 1.5)
    svg.text((first + last) / 2, FILE_TOP - 22, "ENTITIES: a range a piece in the index", OUTER, "middle")
    return places


def splices(svg, places):
    """Between the rows: what each splice takes out and puts in."""
    after_removal = places[REMOVED]  # in the lower row
    removed = (places[REMOVED] + places[REMOVED + 1]) / 2
    marks = ((SEED_PLACE, ("$HANDSEED: its", "value gives way"), OUTER, SEED_PLACE),
             (places[2] - 14, ("new layer,", "in its table"), MARK, places[2] - 14),
             (removed, ("removed: its", "range goes"), OPENING, after_removal),
             (places[ENTITIES.stop] + 8, ("new entities,", "at the end"), MARK, places[ENTITIES.stop] - 12),
             (places[8] - 20, ("new group", "and its name"), MARK, places[8] - 20))
    for x, words, colour, target in marks:
        arrow_down(svg, x, FILE_TOP + HEIGHT + 4, FILE_TOP + HEIGHT + 30, colour)
        for k, line in enumerate(words):
            svg.text(x, FILE_TOP + HEIGHT + 48 + 17 * k, line, colour, "middle", 13)
        arrow_down(svg, x, FILE_TOP + HEIGHT + 74, SAVED_TOP - 4, colour, target)


def file_as_saved(svg, places):
    """The lower row: old pieces with their bytes, new ones between them."""
    x = LEFT
    parts = (("HEADER", SEED_PLACE - 6 - LEFT, FILE), ("", 12, ADDED), ("", places[1] - SEED_PLACE - 6, FILE),
             ("TABLES", places[2] - 28 - places[1], FILE), ("+", 28, ADDED), ("BLOCKS", 90, FILE),
             ("3DFACE", 60, KEPT), ("LINE", 60, KEPT), ("3DFACE", 60, KEPT), ("+ window", 90, ADDED),
             ("OBJECTS", 102, FILE), ("+", 28, ADDED), ("EOF", 40, FILE), ("behind", 60, FILE))
    for words, width, fill in parts:
        box(svg, x, SAVED_TOP, width, fill, words)
        x += width


def file_splices():
    svg = Svg(920, 360, "A drawing's bytes and its splices")
    svg.text(LEFT, 30, "The file as it was loaded, and as it is saved", INK, size=16)
    svg.text(LEFT, FILE_TOP - 22, "loaded: the document's bytes", SOFT)
    places = file_as_loaded(svg)
    splices(svg, places)
    file_as_saved(svg, places)
    svg.text(LEFT, SAVED_TOP + HEIGHT + 24, "saved: what no splice touches goes out as it came in", SOFT)
    svg.save("file-splices.svg")
