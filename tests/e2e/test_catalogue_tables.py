# test_catalogue_tables.py - catalogues from makers' tables and as tables, through the real program.
import csv

import pytest
from conftest import ROOT
from test_catalogue import refused

TABLE = ("Art.Nr;Bezeichnung;B_mm;H_mm;Rahmen (cm);Öffnung\n"
         "CW 78x140;\"Fenster; groß\";780;1400;8,5;Klapp\n"
         "CW 94x60;fest;940;600 mm;8;Fest\n"
         "CW bad;;-780;1400;8;Klapp\n"
         "CW odd;;780;1400;8;Dreh\n")
MAP = "key=Art.Nr,description=Bezeichnung,width=B_mm/10,length=H_mm,frameWidth=Rahmen (cm),openingCode=Öffnung"
OPTIONS = ["--maker", "Cloudworks", "--map", MAP, "--codes", "Klapp=BO,Fest=-"]
LINES = "CW 78x140; 78; 140; 8.5; ; BO; Fenster, groß\nCW 94x60; 94; 60; 8; ; -; fest\n"


@pytest.fixture
def table(tmp_path):
    path = tmp_path / "maker.csv"
    path.write_bytes(TABLE.encode())
    return path


def test_table_of_a_maker_becomes_a_catalogue(teskarlt, table, tmp_path, house):
    path = tmp_path / "mine.LIB"
    answer = teskarlt("catalogue", "import", table, path, *OPTIONS)
    assert answer.status == 3, answer
    assert path.read_bytes().decode().endswith("\n\nVYROBCE Cloudworks\n" + LINES)
    assert "maker.csv:4: left out: width must be greater than 0 cm, not -78" in answer.stderr
    assert 'maker.csv:5: left out: the opening code "Dreh" is not understood' in answer.stderr
    assert answer.stderr.splitlines()[-1] == "teskarlt: 2 of 4 rows left out"
    assert "2 windows of 4 rows taken; written to" in answer.stdout and 'width: column "B_mm" in mm' in answer.stdout
    teskarlt.done("catalogue", "check", path)
    teskarlt.done("insert", house, "--at", "2500,1200", "--window", "CW 94x60", "--catalogue", path)


def test_import_is_answered_for_programs(teskarlt, table, tmp_path):
    answer = teskarlt("catalogue", "import", table, "-o", tmp_path / "new.LIB", *OPTIONS, "--json")
    assert answer.status == 3
    assert (answer.json["rows"], answer.json["added"], answer.json["replaced"]) == (4, 2, 0)
    assert [row["line"] for row in answer.json["leftOut"]] == [4, 5]


@pytest.mark.parametrize("option", ["--strict", "--dry-run"])
def test_nothing_is_written_where_rows_are_left_out_and_that_is_not_wanted(teskarlt, table, tmp_path, option):
    answer = teskarlt("catalogue", "import", table, tmp_path / "mine.LIB", *OPTIONS, option)
    assert answer.status == 1 and "nothing was written" in answer.stdout and not (tmp_path / "mine.LIB").exists()


def test_import_adds_to_a_catalogue_and_replaces_when_asked(teskarlt, tmp_path):
    path, table = tmp_path / "mine.LIB", tmp_path / "t.csv"
    path.write_bytes("# mine\nVYROBCE Běla\nx; 78; 98; 8\n\nVYROBCE Alfa\n".encode("cp1250"))
    table.write_bytes("maker,key,width\nBěla,x,94\nBěla,ž,55\n".encode("utf-16"))
    answer = teskarlt("catalogue", "import", table, path)
    assert answer.status == 3 and "t.csv:2: left out: Běla has a window x in the catalogue already" in answer.stderr
    kept = "# mine\nVYROBCE Běla\nx; 78; 98; 8\nž; 55\n\nVYROBCE Alfa\n"
    assert path.read_bytes() == kept.encode("cp1250")
    teskarlt.done("catalogue", "import", table, path, "--replace")
    assert path.read_bytes() == kept.replace("x; 78", "x; 94").encode("cp1250")


def test_encoding_and_delimiter_can_be_said(teskarlt, tmp_path):
    table = tmp_path / "t.csv"
    table.write_bytes("key,desc;width\nSmør,a;78\n".encode("cp1252"))
    path = tmp_path / "mine.LIB"
    teskarlt.done("catalogue", "import", table, path, "--maker", "A", "--encoding", "cp1252", "--delimiter", ";",
                  "--map", "key=key,desc,width=width")
    assert path.read_bytes().decode().endswith("VYROBCE A\nSmør,a; 78\n")


def test_without_a_catalogue_the_one_of_the_data_folder_is_filled(teskarlt, table):
    teskarlt("catalogue", "import", table, *OPTIONS)
    assert "CW 94x60" in teskarlt.done("catalogue").stdout


@pytest.mark.parametrize("content, options, parts", [
    ("Nr;B\nx;78\n", [], ["t.csv:1:", "no column is the key", '"Nr", "B"']),
    ("Nr;B\nx;78\n", ["--map", "key=Art"], ["t.csv:1:", 'no column "Art"']),
    ("Nr;B\nx;78\n", ["--map", "kye=Nr"], ["no field kye"]),
    ("Nr;B\nx;78\n", ["--codes", "Schwing=P"], ["Schwing=P", "not understood"]),
    ("key;B\n\"x;78\n", [], ["t.csv:2:", "never closed"]),
    ("key\n", [], ["t.csv", "no rows"]),
    ("", [], ["t.csv", "empty"]),
], ids=lambda value: None)
def test_table_that_cannot_be_read_is_refused(teskarlt, tmp_path, content, options, parts):
    table = tmp_path / "t.csv"
    table.write_text(content)
    refused(teskarlt("catalogue", "import", table, tmp_path / "mine.LIB", "--maker", "A", *options), *parts)
    assert not (tmp_path / "mine.LIB").exists()


def test_wrong_words_are_wrong_usage(teskarlt, table, tmp_path):
    for options in (["--delimiter", "|"], ["--units", "inch"]):
        assert teskarlt("catalogue", "import", table, tmp_path / "x.LIB", *OPTIONS, *options).status == 2
    assert teskarlt("catalogue", "export", ROOT / "examples" / "BREVANTA.LIB").status == 2


@pytest.mark.parametrize("options", [[], ["--delimiter", ";"], ["--delimiter", "tab", "--bom"]], ids=" ".join)
def test_export_is_read_by_others_and_imported_again(teskarlt, tmp_path, options):
    example, table, again = ROOT / "examples" / "BREVANTA.LIB", tmp_path / "x.csv", tmp_path / "again.LIB"
    teskarlt.done("catalogue", "export", example, "--csv", "-o", table, *options)
    delimiter = {"tab": "\t"}.get(options[1], options[1]) if options else ","
    with open(table, encoding="utf-8-sig", newline="") as file:
        rows = list(csv.DictReader(file, delimiter=delimiter))
    assert len(rows) == 12 and rows[0]["maker"] == "Oblačnice Lhota" and rows[10]["openingCode"] == "-"
    teskarlt.done("catalogue", "import", table, again)

    def sections(path):
        return [(section["maker"], section["items"]) for section in
                teskarlt.done("catalogue", path, "--json").json["sections"]]
    assert sections(again) == sections(example)


def test_export_is_printed_without_a_file(teskarlt, tmp_path):
    example, table = ROOT / "examples" / "BREVANTA.LIB", tmp_path / "x.csv"
    teskarlt.done("catalogue", "export", example, "--csv", "-o", table)
    assert teskarlt.done("catalogue", "export", example, "--csv").stdout == table.read_bytes().decode()
