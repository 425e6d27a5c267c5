# test_schedule.py - schedules of the windows of a drawing, in every format, as other programs read them.
import csv
import html.parser
import io
import itertools
import zipfile

import openpyxl
import pytest
from conftest import ROOT

CATALOGUE = ROOT / "examples" / "BREVANTA.LIB"
HEADINGS = {"en": ["Mark", "Width mm", "Sill height m", "Orientation"],
            "cs": ["Označení", "Šířka mm", "Výška parapetu m", "Světová strana"],
            "de": ["Position", "Breite mm", "Brüstungshöhe m", "Himmelsrichtung"]}
FEW = ("--columns", "mark,width,sill,compass")


@pytest.fixture
def windows(teskarlt, house):
    """The example house with two windows of one type to the south and one from a catalogue to the north."""
    for at in ("2500,1200", "4800,1200"):
        teskarlt.done("insert", house, "--at", at)
    teskarlt.done("insert", house, "--at", "6000,6800", "--window", "OL 78x118", "--catalogue", CATALOGUE)
    return house


def table(answer):
    """The lines of a table on the terminal."""
    return [line.rstrip() for line in answer.stdout.splitlines()]


def records(path, **options):
    return list(csv.reader(io.StringIO(path.read_bytes().decode("utf-8-sig"), newline=""), **options))


def test_row_for_each_window_and_their_sums(teskarlt, windows):
    before = windows.read_bytes()
    assert table(teskarlt.done("schedule", windows, "--columns", "mark,quantity,key,width,length,roof,glassArea")) == [
        "Mark   Quantity  Catalogue key  Width mm  Length mm  Roof  Glass area m²",
        "W01    1                        940       1400       R1    0.89",
        "W02    1                        940       1400       R1    0.89",
        "W03    1         OL 78x118      780       1180       R2    0.63",  # 0.62 m x 1.02 m: a frame of 8 cm
        "Total  3                                                   2.41"]
    assert windows.read_bytes() == before


def test_terminal_has_no_columns_in_which_nothing_stands_and_headings_as_wide_as_their_columns(teskarlt, house):
    teskarlt.done("insert", house, "--at", "2500,1200")
    assert [line.split() for line in table(teskarlt.done("schedule", house))] == [
        "Frame Frame Roof Sill Head Glass Frame To To".split(),
        "Width Length width depth pitch height height area area eaves ridge".split(),
        "Mark Quantity mm mm mm mm Opening ° Roof Orientation m m m² m² m m Layer".split(),
        "W01 1 940 1400 100 80 centre-pivot 35.0 R1 S 4.240 5.043 0.89 0.43 2.075 2.018 ROOF_SOUTH".split(),
        "Total 1 0.89 0.43".split()]
    assert "Maker" in teskarlt.done("schedule", house, "--columns", "mark,maker").stdout


def test_row_for_each_type_with_its_quantity(teskarlt, windows):
    answer = teskarlt.done("schedule", windows, "--by", "type", "--columns", "mark,quantity,maker,width,compass")
    assert table(answer) == ["Mark      Quantity  Maker            Width mm  Orientation",
                             "W03       1         Oblačnice Lhota  780       N",
                             "W01, W02  2                          940       S",
                             "Total     3"]


def test_schedule_tells_what_a_maker_needs(teskarlt, windows):
    window = teskarlt.done("schedule", windows, "--json").json["windows"][2]
    listed = teskarlt.done("list", windows, "--json").json["windows"][2]
    assert (window["maker"], window["key"], window["text"]) == ("Oblačnice Lhota", "OL 78x118", "kyvné okno, borovice")
    assert [window[name] for name in ("width", "length", "frameWidth", "frameDepth", "opening", "compass", "layer")] == [
        0.78, 1.18, 0.08, 0.08, "centre-pivot", "N", "ROOF_NORTH"]
    assert (window["sill"], window["head"]) == (listed["frame"]["lowerEdge"], listed["frame"]["upperEdge"])
    assert window["pitch"] == listed["fields"]["pitch"]


@pytest.mark.parametrize("word, column", [("--from-eaves", "toEaves"), ("--from-ridge", "toRidge")])
def test_distances_are_those_that_place_a_window(teskarlt, house, word, column):
    teskarlt.done("insert", house, "--on", "R2", word, "1.2", "--centre")
    window, = teskarlt.done("schedule", house, "--json").json["windows"]
    assert window["roof"] == "R2" and abs(window[column] - 1.2) < 1e-9


def test_window_on_a_given_plane_has_no_roof(teskarlt, tmp_path):
    path = tmp_path / "empty.dxf"
    teskarlt.done("new", path)
    teskarlt.done("insert", path, "--at", "4000,2000", "--roof", "0,0,0", "8000,0,0", "0,6000,6000")
    teskarlt.done("schedule", path, "--columns", "mark,roof,toEaves,toRidge,layer,compass", "-o", tmp_path / "w.csv")
    assert records(tmp_path / "w.csv")[1] == ["W01", "", "", "", "", "S"]


@pytest.mark.parametrize("language", HEADINGS)
def test_languages_have_their_headings(teskarlt, windows, language):
    answer = teskarlt.done("schedule", windows, *FEW, "--language", language, "--format", "csv")
    assert answer.stdout.splitlines()[0].split(",") == HEADINGS[language]


def test_csv_is_the_same_bytes_everywhere(teskarlt, windows, tmp_path):
    path = tmp_path / "windows.csv"
    answer = teskarlt.done("schedule", windows, *FEW, "--language", "cs", "-o", path)
    assert answer.stdout == f"{teskarlt.spelled(path)} written.\n"
    assert path.read_bytes().decode() == ("Označení,Šířka mm,Výška parapetu m,Světová strana\r\n"
                                          "W01,940,4.240,J\r\nW02,940,4.240,J\r\nW03,780,4.240,S\r\n")


def test_csv_for_spreadsheet_programs_of_countries_with_a_decimal_comma(teskarlt, windows, tmp_path):
    path = tmp_path / "windows.csv"
    teskarlt.done("schedule", windows, *FEW, "--decimal-comma", "--bom", "-o", path)
    assert path.read_bytes().startswith("\ufeffMark;Width mm;Sill height m;".encode())
    assert records(path, delimiter=";")[1] == ["W01", "940", "4,240", "S"]


def test_texts_of_any_kind_come_back_from_csv_and_do_no_harm(teskarlt, house, tmp_path):
    teskarlt.done("insert", house, "--at", "2500,1200", "--set", "text1=a;b,\"c\"", "--set", "text2==HYPERLINK(1)",
                  "--set", "text3=Žluťoučký 天窓")
    path = tmp_path / "windows.csv"
    teskarlt.done("schedule", house, "--columns", "maker,key,text", "-o", path)
    assert records(path)[1] == ["a;b,\"c\"", "'=HYPERLINK(1)", "Žluťoučký 天窓"]


def test_workbook_has_numbers_and_a_head_that_stays(teskarlt, windows, tmp_path):
    path = tmp_path / "windows.xlsx"
    teskarlt.done("schedule", windows, "--columns", "mark,width,sill,opening,quantity", "-o", path)
    sheet = openpyxl.load_workbook(path).active
    assert list(sheet.iter_rows(values_only=True)) == [
        ("Mark", "Width mm", "Sill height m", "Opening", "Quantity"),
        ("W01", 940, 4.24, "centre-pivot", 1), ("W02", 940, 4.24, "centre-pivot", 1),
        ("W03", 780, 4.24, "centre-pivot", 1), ("Total", None, None, None, 3)]
    assert [cell.number_format for cell in sheet[2]] == ["General", "0", "0.000", "General", "0"]
    assert (sheet.title, sheet.freeze_panes, sheet.print_title_rows) == ("Roof window schedule", "A2", "$1:$1")
    assert all(8 <= sheet.column_dimensions[letter].width <= 40 for letter in "ABCDE")


def test_workbook_takes_any_text_as_a_text(teskarlt, house, tmp_path):
    texts = ["=1+1", "<b>&\"'", "\uffff 🏠"]
    settings = [word for number, text in enumerate(texts, 1) for word in ("--set", f"text{number}={text}")]
    teskarlt.done("insert", house, "--at", "2500,1200", *settings)
    path = tmp_path / "windows.xlsx"
    teskarlt.done("schedule", house, "--columns", "maker,key,text", "-o", path)
    cells = list(openpyxl.load_workbook(path).active[2])
    assert [cell.value for cell in cells] == ["=1+1", "<b>&\"'", "\ufffd 🏠"]
    assert b"<f>" not in path.read_bytes()


def test_same_drawing_gives_the_same_workbook(teskarlt, windows, tmp_path):
    paths = [tmp_path / "one.xlsx", tmp_path / "two.xlsx"]
    for path in paths:
        teskarlt.done("schedule", windows, "-o", path)
    assert paths[0].read_bytes() == paths[1].read_bytes()
    with zipfile.ZipFile(paths[0]) as archive:
        assert archive.testzip() is None
        assert {entry.date_time for entry in archive.infolist()} == {(1980, 1, 1, 0, 0, 0)}


class Cells(html.parser.HTMLParser):
    """The texts of the cells of a page, and the tags that it has."""

    def __init__(self, page):
        super().__init__()
        self.texts, self.tags = [], set()
        self.feed(page)

    def handle_starttag(self, tag, attributes):
        self.tags.add(tag)
        if tag in ("td", "th"):
            self.texts.append("")

    def handle_data(self, data):
        if self.texts:
            self.texts[-1] += data.strip()


def test_page_shows_texts_as_they_are(teskarlt, house, tmp_path):
    teskarlt.done("insert", house, "--at", "2500,1200", "--set", "text1=<script>alert(1)</script>&amp;")
    path = tmp_path / "windows.html"
    teskarlt.done("schedule", house, "--columns", "maker,sill", "--language", "de", "-o", path)
    cells = Cells(path.read_text())
    assert cells.texts == ["Hersteller", "Brüstungshöhe m", "<script>alert(1)</script>&amp;", "4,240"]
    assert "script" not in cells.tags and "link" not in cells.tags


def test_markdown_escapes_what_divides_columns(teskarlt, house, tmp_path):
    teskarlt.done("insert", house, "--at", "2500,1200", "--set", "text1=a|b")
    path = tmp_path / "windows.md"
    teskarlt.done("schedule", house, "--columns", "mark,maker,sill", "-o", path)
    assert path.read_bytes().decode() == ("# Roof window schedule house.dxf\n\n| Mark | Maker | Sill height m |\n"
                                          "| --- | --- | ---: |\n| W01 | a\\|b | 4.240 |\n")


@pytest.mark.parametrize("sort, marks", [("mark", ["W01", "W02", "W03"]), ("roof", ["W02", "W03", "W01"]),
                                         ("type", ["W03", "W01", "W02"])])
def test_rows_are_sorted(teskarlt, house, sort, marks):
    teskarlt.done("insert", house, "--at", "6000,6800")  # R2
    teskarlt.done("insert", house, "--at", "2500,1200")  # R1
    teskarlt.done("insert", house, "--at", "4800,1200", "--set", "width=0.78")
    answer = teskarlt.done("schedule", house, "--sort", sort, "--json").json
    assert [window["mark"] for window in answer["windows"]] == marks


def test_comparison_tells_what_came_went_and_changed(teskarlt, windows, tmp_path):
    now = tmp_path / "now.dxf"
    teskarlt.done("edit", windows, "2", "--set", "width=1.14", "-o", now)
    teskarlt.done("erase", now, "3")
    teskarlt.done("insert", now, "--at", "6000,6800")
    answer = teskarlt.done("schedule", now, "--against", windows, "--columns", "width,length,roof", "--format", "csv")
    assert answer.stdout.splitlines() == ["Mark,Change,Value,Before,Now",
                                          "W04,new,,,940 x 1400",
                                          "W03,gone,,Oblačnice Lhota OL 78x118 780 x 1180,",
                                          "W02,changed,Width mm,940,1140"]
    told = teskarlt.done("schedule", now, "--against", windows, "--columns", "mark,width", "--json").json
    assert told["came"] == [{"mark": "W04", "width": 0.94}]
    assert told["went"] == [{"mark": "W03", "width": 0.78}]
    assert told["changed"] == [{"mark": "W02", "changes": [{"column": "width", "before": 0.94, "after": 1.14}]}]


def test_comparison_of_types_tells_their_quantities(teskarlt, windows, tmp_path):
    now = tmp_path / "now.dxf"
    teskarlt.done("erase", windows, "2", "-o", now)
    teskarlt.done("edit", now, "3", "--set", "width=1.14")
    answer = teskarlt.done("schedule", now, "--against", windows, "--by", "type", "--columns", "quantity", "--format",
                           "csv")
    assert answer.stdout.splitlines() == ["Mark,Change,Value,Before,Now",
                                          "W03,new,,,Oblačnice Lhota OL 78x118 1140 x 1180",
                                          "W03,gone,,Oblačnice Lhota OL 78x118 780 x 1180,",
                                          "W01,changed,Quantity,2,1"]


def test_comparison_of_the_same_windows_says_so(teskarlt, windows):
    answer = teskarlt.done("schedule", windows, "--against", windows)
    assert answer.stdout == f"The windows of {teskarlt.spelled(windows)} are those of {teskarlt.spelled(windows)}.\n"


def test_lengths_in_feet_and_inches(teskarlt, house):
    teskarlt.done("insert", house, "--at", "2500,1200", "--set", "width=3'")
    answer = teskarlt.done("schedule", house, "--columns", "mark,width,glassArea", "--lengths", "ft", "--format", "md")
    assert "| Mark | Width ft-in | Glass area sq ft |\n" in answer.stdout
    assert "| W01 | 3'-0\" | 9.23 |\n" in answer.stdout  # (0.9144 - 0.2) m x 1.2 m = 0.8573 m2


def test_lengths_of_a_drawing_without_a_unit_are_its_own(teskarlt, tmp_path):
    path = tmp_path / "plan.dxf"
    teskarlt.done("new", path)
    path.write_bytes(path.read_bytes().replace(b"$INSUNITS\n 70\n4\n", b"$INSUNITS\n 70\n0\n"))
    teskarlt.done("insert", path, "--units", "mm", "--at", "4000,2000", "--roof", "0,0,0", "8000,0,0", "0,6000,6000",
                  "--set", "bodyAsFaces=0")
    answer = teskarlt.done("schedule", path, "--columns", "mark,width,sill")
    assert table(answer) == ["Mark  Width    Sill height", "W01   940.000  2000.000"]
    assert "does not say its unit, and lengths are in drawing units" in answer.stderr
    told = teskarlt.done("schedule", path, "--columns", "mark,width,sill", "--units", "mm")
    assert table(told) == ["Mark  Width mm  Sill height m", "W01   940       2.000"]


def test_window_with_a_note_is_told(teskarlt, house):
    teskarlt.done("insert", house, "--at", "2500,1200")
    head, window = house.read_text().split("ENTITIES", 1)
    house.write_text(head + "ENTITIES" + window.replace("1040\n1400.0\n", "1040\nxyz\n"))
    answer = teskarlt("schedule", house, "--columns", "mark,width,opening,notes")
    assert answer.status == 0
    assert "warning: house.dxf: W01: it cannot be changed: its description is damaged" in answer.stderr
    assert table(answer)[1].split()[:2] == ["W01", "it"]


def test_drawing_without_windows_has_a_schedule_without_rows(teskarlt, house, tmp_path):
    assert teskarlt.done("schedule", house).stdout == f"{teskarlt.spelled(house)} holds no roof window.\n"
    teskarlt.done("schedule", house, "--columns", "mark,width", "-o", tmp_path / "none.csv")
    assert (tmp_path / "none.csv").read_bytes() == b"Mark,Width mm\r\n"
    assert teskarlt.done("schedule", house, "--json").json["windows"] == []


WRONG_USAGE = [
    (("--columns", "mark,widht"), "--columns: no column is named \"widht\"; there are mark, quantity, "),
    (("--columns", "mark,Mark"), "--columns: names mark twice"),
    (("--format", "xlsx"), "--format xlsx: a workbook goes into a file; add -o FILE"),
    (("--format", "table", "-o", "windows.csv"), "--format table: a table goes to the terminal; leave -o out"),
    (("-o", "windows.doc"), "-o: the ending of windows.doc names no format"),
    (("-o", "windows.md", "--bom"), "--bom: is for .csv files"),
    (("--decimal-comma",), "--decimal-comma: is for .csv files"),
    (("--json", "--delimiter", ";"), "--delimiter: is for .csv files"),
]


@pytest.mark.parametrize("options, sentence", WRONG_USAGE, ids=itertools.count())
def test_what_cannot_be_meant_is_wrong_usage(teskarlt, house, tmp_path, options, sentence):
    before = sorted(tmp_path.iterdir())
    answer = teskarlt("schedule", house, *options, cwd=tmp_path)
    assert (answer.status, answer.stdout) == (2, "")
    assert answer.stderr.startswith("teskarlt: " + sentence)
    assert sorted(tmp_path.iterdir()) == before


def test_file_that_cannot_be_written_is_refused(teskarlt, windows, tmp_path):
    answer = teskarlt("schedule", windows, "-o", tmp_path / "missing" / "windows.csv")
    assert (answer.status, answer.stdout) == (1, "")
    assert "windows.csv" in answer.stderr


def test_units_of_one_drawing_alone_cannot_be_compared(teskarlt, windows, tmp_path):
    old = tmp_path / "old.dxf"
    teskarlt.done("new", old)
    old.write_bytes(old.read_bytes().replace(b"$INSUNITS\n 70\n4\n", b"$INSUNITS\n 70\n0\n"))
    answer = teskarlt("schedule", windows, "--against", old)
    assert answer.status == 1
    assert f"{teskarlt.spelled(old)}: only one of the two drawings says its unit; say it with --units" in answer.stderr
