# plain_dxf.py - writes small DXF drawings of faces and lines, complete enough for the strictest readers.
"""A drawing is a list of layers and entities; text() gives the file, always the same bytes for the same calls.

    drawing = Drawing(units="mm")
    drawing.layer("ROOF", colour=1)
    handle = drawing.face("ROOF", (0, 0, 0), (10, 0, 0), (10, 5, 3), (0, 5, 3))
    drawing.save("roof.dxf")

Versions are "R2000" and "R12", the oldest form, without handles' owners and subclass markers.
"""

UNIT_CODES = {"unitless": 0, "mm": 4, "cm": 5, "m": 6, "km": 7, "in": 1, "ft": 2, "us-ft": 21}  # $INSUNITS
UNITS_PER_METRE = {"mm": 1000, "cm": 100, "m": 1, "km": 0.001, "in": 1000 / 25.4, "ft": 1000 / 304.8,
                   "us-ft": 3937 / 1200}
DIGITS = 6  # decimals of a coordinate, unless a drawing asks for others

# Handles of what every drawing holds; the tables have 1 to A, their records those from 20 on.
MODEL_SPACE, PAPER_SPACE = "1F", "1E"
FIXED_RECORD_HANDLES = {"*Model_Space": MODEL_SPACE, "*Paper_Space": PAPER_SPACE}

LINETYPE_GROUPS = [(70, 0), (3, ""), (72, 65), (73, 0), (40, "0.0")]
STYLE_GROUPS = [(70, 0), (40, "0.0"), (41, "1.0"), (50, "0.0"), (71, 0), (42, "2.5"), (3, "txt"), (4, "")]
OBJECTS = [(0, "DICTIONARY"), (5, "C"), (330, "0"), (100, "AcDbDictionary"), (281, 1),
           (3, "ACAD_GROUP"), (350, "D"),
           (0, "DICTIONARY"), (5, "D"), (330, "C"), (100, "AcDbDictionary"), (281, 1)]


def number(value, digits=DIGITS):
    """The shortest text of a number rounded to so many decimals, never -0.0."""
    return repr(round(float(value), digits) + 0.0)


class Drawing:
    """Collects layers and entities and writes them as one drawing file."""

    def __init__(self, units="mm", version="R2000", code_page="ANSI_1250", digits=DIGITS):
        self.units, self.version, self.code_page, self.digits = units, version, code_page, digits
        self.layers = [("0", 7)]
        self.entities = []
        self.lowest = self.highest = None
        self.next_handle = 0x100  # the tables and objects use those below

    def layer(self, name, colour=7):
        self.layers.append((name, colour))

    def face(self, layer, *corners, hidden_edges=0):
        """A 3DFACE of three or four corners; bits 1, 2, 4, 8 hide its edges. Gives the handle as text."""
        corners = list(corners) + [corners[-1]] * (4 - len(corners))
        groups = self._points(corners)
        if hidden_edges:
            groups.append((70, hidden_edges))
        return self._entity("3DFACE", "AcDbFace", layer, groups)

    def line(self, layer, start, end):
        """A LINE; gives the handle as text."""
        return self._entity("LINE", "AcDbLine", layer, self._points([start, end]))

    def outline(self, layer, *corners):
        """Lines around a closed polygon."""
        for start, end in zip(corners, corners[1:] + corners[:1]):
            self.line(layer, start, end)

    def closed_polyline(self, layer, *corners):
        """A closed 3D POLYLINE with its vertices; gives its handle as text."""
        self._points(corners)
        handle = self._entity("POLYLINE", "AcDb3dPolyline", layer,
                              [(66, 1), (10, "0.0"), (20, "0.0"), (30, "0.0"), (70, 9)])
        for corner in corners:
            self._entity("VERTEX", ("AcDbVertex", "AcDb3dPolylineVertex"), layer,
                         self._points([corner]) + [(70, 32)], owner=handle)
        self._entity("SEQEND", (), layer, [], owner=handle)
        return handle

    def text(self):
        """The whole file, lines ended by a line feed."""
        r12 = self.version == "R12"
        sections = [("HEADER", self._header()), ("TABLES", self._tables()), ("BLOCKS", _blocks(r12)),
                    ("ENTITIES", self.entities)]
        if not r12:
            sections.insert(1, ("CLASSES", []))
            sections.append(("OBJECTS", OBJECTS))
        groups = []
        for name, content in sections:
            groups += [(0, "SECTION"), (2, name), *content, (0, "ENDSEC")]
        groups.append((0, "EOF"))
        return "".join(f"{code:>3}\n{value}\n" for code, value in groups)

    def save(self, path):
        encoding = "cp" + self.code_page.removeprefix("ANSI_")
        with open(path, "wb") as file:
            file.write(self.text().encode(encoding))
        return path

    def _handle(self):
        self.next_handle += 1
        return f"{self.next_handle - 1:X}"

    def _points(self, points):
        groups = []
        for index, point in enumerate(points):
            self.lowest = tuple(map(min, self.lowest or point, point))
            self.highest = tuple(map(max, self.highest or point, point))
            groups += [(10 * axis + index, number(value, self.digits)) for axis, value in enumerate(point, start=1)]
        return groups

    def _entity(self, kind, classes, layer, groups, owner=MODEL_SPACE):
        handle = self._handle()
        self.entities += [(0, kind), (5, handle)]
        if self.version == "R12":
            self.entities += [(8, layer), *groups]
        else:
            classes = [classes] if isinstance(classes, str) else classes
            self.entities += [(330, owner), (100, "AcDbEntity"), (8, layer),
                              *((100, name) for name in classes), *groups]
        return handle

    def _header(self):
        lowest, highest = self.lowest or (0, 0, 0), self.highest or (0, 0, 0)
        variables = [("$ACADVER", [(1, "AC1009" if self.version == "R12" else "AC1015")]),
                     ("$DWGCODEPAGE", [(3, self.code_page)]),
                     ("$EXTMIN", list(zip((10, 20, 30), map(number, lowest)))),
                     ("$EXTMAX", list(zip((10, 20, 30), map(number, highest)))),
                     ("$HANDSEED", [(5, f"{self.next_handle:X}")])]
        if self.version == "R12":
            variables.append(("$HANDLING", [(70, 1)]))
        else:
            variables += [("$INSUNITS", [(70, UNIT_CODES[self.units])]), ("$MEASUREMENT", [(70, 1)])]
        return [group for name, values in variables for group in [(9, name), *values]]

    def _tables(self):
        r12 = self.version == "R12"
        tables = [("VPORT", "8", [("*Active", "AcDbViewportTableRecord", self._view())]),
                  ("LTYPE", "5", [(name, "AcDbLinetypeTableRecord", LINETYPE_GROUPS)
                                  for name in ("ByBlock", "ByLayer", "Continuous")]),
                  ("LAYER", "2", [(name, "AcDbLayerTableRecord", [(70, 0), (62, colour), (6, "Continuous")])
                                  for name, colour in self.layers]),
                  ("STYLE", "3", [("Standard", "AcDbTextStyleTableRecord", STYLE_GROUPS)]),
                  ("VIEW", "6", []), ("UCS", "7", []),
                  ("APPID", "9", [("ACAD", "AcDbRegAppTableRecord", [(70, 0)])]),
                  ("DIMSTYLE", "A", [("Standard", "AcDbDimStyleTableRecord", [(70, 0)])])]
        if r12:
            tables[1] = ("LTYPE", "5", [("CONTINUOUS", "", LINETYPE_GROUPS)])
        else:
            tables.append(("BLOCK_RECORD", "1", [(name, "AcDbBlockTableRecord", [])
                                                 for name in ("*Model_Space", "*Paper_Space")]))
        handles = iter(range(0x20, 0x100))
        return [group for name, handle, records in tables
                for group in _table(name, handle, records, handles, r12)]

    def _view(self):
        """The plan of the whole drawing."""
        lowest, highest = self.lowest or (0, 0, 0), self.highest or (1, 1, 1)
        centre = [(low + high) / 2 for low, high in zip(lowest, highest)]
        height = max(1.0, (highest[1] - lowest[1]) * 1.1, (highest[0] - lowest[0]) * 0.75)
        plane = [(10, 0, 0), (11, 1, 1), (12, centre[0], centre[1]), (13, 0, 0), (14, 10, 10), (15, 10, 10)]
        corners = [(code + 10 * axis, number(value)) for code, *point in plane for axis, value in enumerate(point)]
        return [(70, 0), *corners, (16, "0.0"), (26, "0.0"), (36, "1.0"), (17, "0.0"), (27, "0.0"), (37, "0.0"),
                (40, number(height)), (41, "1.34"), (42, "50.0"), (43, "0.0"), (44, "0.0"), (50, "0.0"),
                (51, "0.0"), (71, 0), (72, 100), (73, 1), (74, 3), (75, 0), (76, 0), (77, 0), (78, 0)]


def _table(name, table_handle, records, handles, r12):
    """A symbol table; `handles` gives the numbers of its records."""
    groups = [(0, "TABLE"), (2, name)]
    if not r12:
        groups += [(5, table_handle), (330, "0"), (100, "AcDbSymbolTable")]
    groups.append((70, len(records)))
    if name == "DIMSTYLE" and not r12:
        groups.append((100, "AcDbDimStyleTable"))
    for record, subclass, content in records:
        groups.append((0, name))
        if r12:
            groups += [(2, record.upper()), *content]
            continue
        handle = FIXED_RECORD_HANDLES.get(record) or f"{next(handles):X}"
        groups += [(105 if name == "DIMSTYLE" else 5, handle), (330, table_handle),
                   (100, "AcDbSymbolTableRecord"), (100, subclass), (2, record), *content]
    return groups + [(0, "ENDTAB")]


def _blocks(r12):
    """The two empty blocks that stand for model space and paper space."""
    if r12:
        return []
    groups = []
    for name, owner, first, last in (("*Model_Space", MODEL_SPACE, "10", "11"),
                                     ("*Paper_Space", PAPER_SPACE, "12", "13")):
        space = [(67, 1)] if owner == PAPER_SPACE else []
        groups += [(0, "BLOCK"), (5, first), (330, owner), (100, "AcDbEntity"), *space, (8, "0"),
                   (100, "AcDbBlockBegin"), (2, name), (70, 0), (10, "0.0"), (20, "0.0"), (30, "0.0"),
                   (3, name), (1, ""),
                   (0, "ENDBLK"), (5, last), (330, owner), (100, "AcDbEntity"), *space, (8, "0"),
                   (100, "AcDbBlockEnd")]
    return groups
