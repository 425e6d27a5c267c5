# readers.py - what independent programs read from a drawing.
import difflib
import json
import os
import re
import subprocess
import zlib

import ezdxf


def audited(path):
    """The drawing as ezdxf reads it, after its audit found nothing to report and nothing to mend."""
    drawing = ezdxf.readfile(path)
    auditor = drawing.audit()
    findings = [entry.message for entry in (*auditor.errors, *auditor.fixes)]
    assert findings == [], f"{path}: {findings}"
    return drawing


def gdal_entities(path):
    """The entities as GDAL reads them: a list of properties, each with "geometry" beside the attributes."""
    done = subprocess.run(["ogr2ogr", "-f", "GeoJSON", "/vsistdout/", str(path), "--config",
                           "DXF_INCLUDE_RAW_CODE_VALUES", "YES"], capture_output=True, text=True, check=True)
    return [{**feature["properties"], "geometry": feature["geometry"]} for feature in json.loads(done.stdout)["features"]]


def gdal_extended_data(path):
    """The extended data of each entity that has any: its handle and a list of (group code, text) in file order."""
    found = {}
    for entity in gdal_entities(path):
        groups = [text.split(" ", 1) for text in entity.get("RawCodeValues") or []]
        items = [(int(code), value.strip() if int(code) in (1070, 1071) else value) for code, value in groups
                 if int(code) >= 1000]
        if items:
            found[entity["EntityHandle"]] = items
    return found


def librecad_plot(path, folder):
    """The strokes of a drawing's plan as LibreCAD prints it, fitted to a page: a list of ((x, y), (x, y)) in dots of
    the page, y upwards."""
    page = folder / f"{path.stem}.pdf"
    subprocess.run(["librecad", "dxf2pdf", "-a", "-m", "-o", str(page), str(path)], capture_output=True, check=True,
                   timeout=60, env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
    strokes, start = [], None
    for stream in re.findall(rb"stream\r?\n(.*?)endstream", page.read_bytes(), re.DOTALL):
        try:
            content = zlib.decompress(stream).decode("ascii").partition("W* n")[2]  # behind the page's own frame
        except (zlib.error, UnicodeDecodeError):
            continue  # a font or a picture
        for x, y, operator in re.findall(r"(-?[\d.]+) (-?[\d.]+) ([ml])\n", content):
            point = (float(x), -float(y))
            if operator == "l":
                strokes.append((start, point))
            start = point
    return strokes


def handles(path):
    """All handles of a drawing's text, in file order, doubles included."""
    lines = path.read_bytes().decode("cp1250").splitlines()
    groups = zip(lines[0::2], lines[1::2])
    return [value.strip() for code, value in groups if code.strip() in ("5", "105")]


# Of the bytes of a drawing in any form.
TABLES = re.compile(rb"TABLES[\0\r\n].*?ENDSEC", re.DOTALL)
SEED = re.compile(rb"(\$HANDSEED[\0\r\n]+ *(?:5|\x05\0?)[\r\n]*)[0-9A-F]+")


def without_records(content):
    """The bytes without the section TABLES and the value of the handle seed."""
    return SEED.sub(rb"\1", TABLES.sub(b"", content))


def line_changes(before, after):
    """What became of a file's lines: those that were changed or went, and the number of lines that came."""
    matcher = difflib.SequenceMatcher(None, before.splitlines(), after.splitlines(), autojunk=False)
    changed, came = [], 0
    for kind, start, end, new_start, new_end in matcher.get_opcodes():
        if kind != "equal":
            changed += before.splitlines()[start:end]
            came += new_end - new_start
    return changed, came


def first_difference(expected, actual):
    """The first line in which two files differ, for a message; None when they are equal."""
    if expected == actual:
        return None
    pairs = zip(expected.splitlines(keepends=True), actual.splitlines(keepends=True))
    for index, (left, right) in enumerate(pairs, start=1):
        if left != right:
            return f"line {index}: expected {left!r}, got {right!r}"
    return f"one is the other's beginning: {len(expected)} bytes expected, {len(actual)} found"
