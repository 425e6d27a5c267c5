#!/usr/bin/python3
# draw.py - makes the drawings of the pages: /usr/bin/python3 docs/drawings/draw.py [FOLDER]
import pathlib
import sys

from architecture import architecture
from file_splices import file_splices
from geometry_pages import anchors, arcs, build_ups, frames, references
from opening_codes import opening_codes
from paper import Svg
from placing import placing
from window_words import window_words

if __name__ == "__main__":
    if len(sys.argv) > 1:
        Svg.folder = pathlib.Path(sys.argv[1])
    for drawing in (anchors, arcs, architecture, build_ups, file_splices, frames, opening_codes, placing, references,
                    window_words):
        drawing()
