#!/usr/bin/python3
# make_catalogues.py - writes the example catalogues BREVANTA.LIB and update.LIB beside this script.
"""The texts stand here in UTF-8; catalogues are in the code page of Czech Windows systems, cp1250. All makers and
windows are invented. The fields of an item:

    key; width cm; length cm; frame width cm; frame depth cm; opening code; description

An opening code "-" is fixed glazing; an empty one would be the default, a pivot window. docs/catalogues.md has the others.
"""
from pathlib import Path

IN_USE = """\
# Ukázkový katalog střešních oken; výrobci jsou smyšlení.
# klíč; šířka cm; délka cm; šířka rámu cm; hloubka rámu cm; otevírání; popis

VYROBCE Oblačnice Lhota
OL 55x78; 55; 78; 8; 8; D; kyvné okno, borovice
OL 66x118; 66; 118; 8; 8; D; kyvné okno, borovice
OL 78x118; 78; 118; 8; 8; D; kyvné okno, borovice
OL 78x140; 78; 140; 8; 8; D; kyvné okno, borovice
OL 94x140; 94; 140; 10; 8; D; kyvné okno, borovice
OL 114x118; 114; 118; 10; 8; D; kyvné okno, borovice

VYROBCE Zorník a synové
Jitřenka 1; 60; 90; 7; 9; BO; výklopné okno se závěsy nahoře
Jitřenka 2; 80; 120; 7; 9; BO; výklopné okno se závěsy nahoře
Jitřenka 3; 100; 140; 7; 9; BO; výklopné okno se závěsy nahoře
Soumrak; 80; 120; 7; 9; EOR; výlez na střechu, závěsy vpravo

VYROBCE Tichá obloha
Ležák; 134; 98; 12; 10; -; pevné zasklení
Strážce; 47; 73; ; ; CI; jen s rozměry, rám podle výchozích hodnot
"""

UPDATE = """\
# Ukázková aktualizace katalogu.

VYROBCE Oblačnice Lhota
OL 78x140; 78; 140; 9; 8; D; kyvné okno, nový rám (okno v katalogu zůstane, jak je)
OL 78x160; 78; 160; 9; 8; D; kyvné okno, borovice
OL 134x140; 134; 140; 10; 8; D; kyvné okno, borovice

VYROBCE Zorník a synové
Jitřenka 4; 120; 140; 7; 9; BO; výklopné okno se závěsy nahoře

VYROBCE Štítary sklo
Úsvit malý; 55; 98; 8; 10; D; kyvné okno, plast
Úsvit velký; 114; 140; 8; 10; D; kyvné okno, plast
"""


def main():
    for name, text in (("BREVANTA.LIB", IN_USE), ("update.LIB", UPDATE)):
        (Path(__file__).parent / name).write_bytes(text.encode("cp1250"))


if __name__ == "__main__":
    main()
